// A filled rectangle behind a vertical axis' scale column. It is drawn where its axis is: from
// the axis' left edge, `Size` pixels wide, over the height of the axis' area.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Axis;

class Shape {
  public:
    Shape(std::string name, const Axis& axis) : name_(std::move(name)), axis_(axis) {}
    Shape(const Shape&) = delete;
    Shape& operator=(const Shape&) = delete;

    const std::string& name() const { return name_; }
    const Axis& axis() const { return axis_; }

    // Shown only while its axis is visible too.
    bool Visible = true;
    Color FillColor = 0x808080;
    int32_t Size = 80;

  private:
    std::string name_;
    const Axis& axis_;
};

}  // namespace zt::chart
