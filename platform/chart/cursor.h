// A vertical cursor line on the time axis. A cursor with a snap series stands on that series'
// data point nearest to the time it was placed at; it reports the point and its pixel column.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Axis;
class Grid;
class Series;

class Cursor {
  public:
    // Pixel position reported while the cursor is not on the graph.
    static constexpr int32_t kOffGraph = -2;

    // The cursor runs from the grid's top to its bottom at its time on `timeAxis`.
    Cursor(std::string name, const Axis& timeAxis, const Grid& grid)
        : name_(std::move(name)), timeAxis_(timeAxis), grid_(grid) {}
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    const std::string& name() const { return name_; }
    const Axis& timeAxis() const { return timeAxis_; }
    const Grid& grid() const { return grid_; }

    bool Visible = false;
    Pen LinePen{0xE0E0E0, PenStyle::Solid, 1};

    // The series whose points the cursor snaps to; nullptr lets it stand anywhere.
    void setSnapSeries(const Series* series) { snap_ = series; }
    const Series* snapSeries() const { return snap_; }

    // Places the cursor at a time (ms) on the time axis.
    void setPosition(double time);
    // Places the cursor on point `index` of its snap series; an index outside its points (or
    // no snap series) leaves it off the graph until the next placement.
    void setPointIndex(int index);
    // Places the cursor at the time under pixel column `x`.
    void setPixelX(double x);

    // The time the cursor stands at: its snapped point's time, or the time it was placed at.
    double position() const;
    // The snap series' point the cursor stands on; -1 without a snap series or points.
    int pointIndex() const;
    // The pixel column of the cursor, rounded; kOffGraph when it has no point to stand on or
    // lies outside the time axis' range.
    int32_t pixelX() const;

  private:
    std::string name_;
    const Axis& timeAxis_;
    const Grid& grid_;
    const Series* snap_ = nullptr;
    double placed_ = 0;
    bool byIndex_ = false;  // placed by setPointIndex, until the next placement by time
    int placedIndex_ = -1;
};

}  // namespace zt::chart
