// The division grid over the plotting field: 10 x 10 divisions between its edges.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Grid {
  public:
    explicit Grid(std::string name) : name_(std::move(name)) {}
    Grid(const Grid&) = delete;
    Grid& operator=(const Grid&) = delete;

    const std::string& name() const { return name_; }

    bool Visible = true;
    // Division lines and the field's frame.
    Color LineColor1 = 0x404000;
    Color LineColor2 = 0x404000;
    int32_t Divisions = 10;
    // Edges in chart pixels.
    int32_t Left = 320;
    int32_t Right = 1000;
    int32_t Top = 20;
    int32_t Bottom = 450;

  private:
    std::string name_;
};

}  // namespace zt::chart
