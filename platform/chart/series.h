// A data series: points (time, value) drawn in one area against one vertical axis and the
// shared time axis, with a label that can be shown at chosen points.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/chart/chart_types.h"
#include "platform/chart/label_switches.h"

namespace zt::chart {

class Area;
class Axis;

enum class SeriesKind : int16_t {
    Plot = 0,   // analog trace: points joined by straight lines
    Pulse = 1,  // on/off train: each value holds until the next point
};

// Vertical placement of a series' label relative to its point.
enum class LabelPlacement : int16_t {
    Below = 0,
    Above = 1,
};

struct SeriesLabel {
    std::string Text;
    Color TextColor = 0xFFFFFF;
    LabelPlacement Placement = LabelPlacement::Above;
};

struct Markers {
    bool Visible = false;
    int32_t Size = 8;
};

class Series {
  public:
    Series(std::string name, SeriesKind kind, const Area& area, const Axis& axis)
        : name_(std::move(name)), kind_(kind), area_(area), axis_(axis) {}
    Series(const Series&) = delete;
    Series& operator=(const Series&) = delete;

    // Where changes of the points are reported (the chart's sink); nullptr: nowhere.
    void reportChangesTo(const ChangeSink* sink) { sink_ = sink; }

    const std::string& name() const { return name_; }
    SeriesKind kind() const { return kind_; }
    const Area& area() const { return area_; }
    const Axis& axis() const { return axis_; }

    bool Visible = true;
    Pen LinePen;
    SeriesLabel Label;
    Markers PointMarkers;

    // Replaces all points at once with the first `count` entries of the arrays, which are
    // taken over, not copied. `count` is limited to 0 … the shorter array's size. Every
    // label switch goes off.
    void setPoints(int count, std::vector<double> values, std::vector<double> times);
    // The same with 16-bit values (the time-base series).
    void setPoints(int count, const std::vector<int16_t>& values, std::vector<double> times);

    // Writes points `first` … `last` - 1 from the same indexes of the arrays and makes the
    // series hold points 0 … `last` - 1, keeping the earlier ones: a graph that grows while it
    // is sampled costs only its new points. `first` is limited to 0 … the current count; every
    // label switch goes off.
    void setPointRange(int first, int last, const double* values, const double* times);

    int pointCount() const { return count_; }
    // 0 empties the series; a smaller count drops the points beyond it; a larger or negative
    // count is limited to 0 … the current count.
    void setPointCount(int count);

    // Counts the changes of the points: every call that sets, writes or drops points adds one.
    uint64_t revision() const { return revision_; }
    // The revision of the last change that did more than add points at the end (a replacement,
    // a rewrite of earlier points, a drop). A viewer that saw revision r and n points, with
    // rewriteRevision() <= r, holds points 0 … n - 1 unchanged and only needs the new ones.
    uint64_t rewriteRevision() const { return rewriteRevision_; }

    // Value and time of point `index`; nullopt outside 0 … count - 1.
    std::optional<double> valueAt(int index) const;
    std::optional<double> timeAt(int index) const;
    // The first `pointCount()` values and times.
    const double* values() const { return values_.data(); }
    const double* times() const { return times_.data(); }
    // True when the times are finite and never decrease, so they can be searched.
    bool timesSorted() const { return sorted_; }

    // The point whose time is nearest to `time` (the earlier one on a tie); -1 without points.
    int nearestPoint(double time) const;

    // Per-point label switch: show the series' label at point `index` or not. Indices outside
    // the points are ignored.
    void setLabelShown(int index, bool on) { labels_.set(index, on); }
    bool labelShown(int index) const { return labels_.isOn(index); }
    // Switches the label off at every point at once.
    void hideAllLabels() { labels_.allOff(); }
    const LabelSwitches& labelSwitches() const { return labels_; }

  private:
    void adopt(int count, std::vector<double>&& values, std::vector<double>&& times);

    std::string name_;
    SeriesKind kind_;
    const Area& area_;
    const Axis& axis_;
    std::vector<double> values_;
    std::vector<double> times_;
    int count_ = 0;
    bool sorted_ = true;
    uint64_t revision_ = 0;
    uint64_t rewriteRevision_ = 0;
    LabelSwitches labels_;
    const ChangeSink* sink_ = nullptr;
};

}  // namespace zt::chart
