// Small value types shared by the chart's objects: colours, pens, the lookup error.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace zt::chart {

// A colour as 0x00BBGGRR (red in the low byte).
using Color = int32_t;

enum class PenStyle : int16_t {
    Solid = 0,
    Null = 5,  // nothing is drawn
};

struct Pen {
    Color color = 0xFFFFFF;
    PenStyle style = PenStyle::Solid;
    int32_t width = 1;
};

// Where the chart's objects report that what they show changed: one optional listener (the
// window drawing the chart). Reporting with nobody listening costs a test.
class ChangeSink {
  public:
    void listen(std::function<void()> listener) { listener_ = std::move(listener); }
    void changed() const {
        if (listener_) listener_();
    }

  private:
    std::function<void()> listener_;
};

// Error code of a lookup of a name a collection does not hold (invalid index).
inline constexpr int32_t kErrorNoSuchObject = static_cast<int32_t>(0x8002000B);

}  // namespace zt::chart
