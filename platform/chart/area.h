// A plotting strip of the chart: a rectangle in chart pixels in which its series are drawn.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Area {
  public:
    explicit Area(std::string name) : name_(std::move(name)) {}
    Area(const Area&) = delete;
    Area& operator=(const Area&) = delete;

    const std::string& name() const { return name_; }

    bool Visible = true;
    // Draw the strip's top and bottom border in `BorderColor`.
    bool ShowTopBottomLine = false;
    Color BorderColor = 0x004000;
    // Edges in chart pixels; `Left` is the left margin that holds the vertical scales.
    int32_t Left = 320;
    int32_t Right = 1000;
    int32_t Top = 20;
    int32_t Bottom = 450;

  private:
    std::string name_;
};

}  // namespace zt::chart
