// A straight line drawn over the plot, between two points in chart pixels.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Line {
  public:
    explicit Line(std::string name) : name_(std::move(name)) {}
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    const std::string& name() const { return name_; }

    bool Visible = false;
    Pen LinePen{0xE0E0E0, PenStyle::Solid, 1};
    int32_t X1 = 0;
    int32_t Y1 = 0;
    int32_t X2 = 0;
    int32_t Y2 = 0;

  private:
    std::string name_;
};

}  // namespace zt::chart
