// Which points of a series show the series' label. Few points are ever on, while a series has
// thousands, so switching all off is O(1) (a generation count) and switching one point on or
// off is O(1) (a slot per point remembering its place in the list of on-points).
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace zt::chart {

class LabelSwitches {
  public:
    // Sizes the switches for `count` points, all off.
    void reset(int count);
    void allOff();
    // Ignored for an index outside the points.
    void set(int index, bool on);
    bool isOn(int index) const;
    // The points that are on, in no particular order.
    std::span<const int32_t> onIndices() const { return on_; }

  private:
    struct Slot {
        uint32_t generation = 0;  // on while equal to generation_
        uint32_t place = 0;       // its index in on_
    };
    std::vector<Slot> slots_;
    std::vector<int32_t> on_;
    uint32_t generation_ = 1;
    int count_ = 0;
};

}  // namespace zt::chart
