// An axis of the chart: the time axis shared by all areas, or the vertical axis of one area.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"
#include "platform/font.h"

namespace zt::chart {

class Area;

enum class AxisKind : int16_t {
    Value = 0,     // evenly spaced ticks from minimum to maximum
    TwoLevel = 1,  // two ticks, at minimum and maximum (an on/off band)
};

class Axis {
  public:
    // `area` is the strip a vertical axis scales; nullptr for the time axis.
    Axis(std::string name, const Area* area, bool horizontal)
        : name_(std::move(name)), area_(area), horizontal_(horizontal) {}
    Axis(const Axis&) = delete;
    Axis& operator=(const Axis&) = delete;

    const std::string& name() const { return name_; }
    const Area* area() const { return area_; }
    bool horizontal() const { return horizontal_; }

    double Minimum = 0;
    double Maximum = 0;
    bool Visible = true;
    // Time axis: the pixel where it begins and its length in pixels. Vertical axis: the left
    // edge of its scale column and the column's width; it spans its area's height.
    int32_t Left = 320;
    int32_t Length = 680;
    // Number of tick positions including both ends (11 = ten divisions).
    int32_t TickCount = 11;
    AxisKind Kind = AxisKind::Value;
    Font LabelFont;
    Color LabelColor = 0xFFFFFF;
    // Text shown beside the axis (the time axis' unit).
    std::string Title;

    // Pixel of `value` along the axis, from minimum to maximum over `length` pixels starting
    // at `start`; NaN when the axis has no extent (maximum not above minimum).
    double toPixel(double value, double start, double length) const;
    // The value under pixel `pixel`; NaN when the axis has no extent.
    double fromPixel(double pixel, double start, double length) const;

  private:
    std::string name_;
    const Area* area_;
    bool horizontal_;
};

}  // namespace zt::chart
