// Traces drawn straight into an image buffer. Each device pixel column of the time axis keeps the
// first, last, lowest and highest value of the samples that fall into it; a trace is then one
// crisp vertical span per column, joined to its neighbours, whatever the number of samples. The
// columns are kept and extended as samples are added at a trace's end, so a growing trace costs
// only its new samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zt::render {

// Pixels as 0xAARRGGBB, `stride` pixels from one row to the next.
struct PixelView {
    uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;
};

// Where the time axis lies in device pixels.
struct ColumnGeometry {
    double timeFrom = 0;  // the time axis' minimum …
    double timeTo = 0;    // … and maximum
    double xFrom = 0;     // their device x
    double xTo = 0;
    int columnFrom = 0;  // device columns columnFrom … columnTo - 1 cover the axis
    int columnTo = 0;

    bool operator==(const ColumnGeometry&) const = default;
};

// Device columns first … last, both included; empty when last < first.
struct ColumnRange {
    int first = 0;
    int last = -1;
    bool empty() const { return last < first; }
    void add(const ColumnRange& other);
};

class ColumnTrace {
  public:
    // One column's samples; `any` is false for a column no sample falls into.
    struct Column {
        double first = 0;
        double last = 0;
        double low = 0;
        double high = 0;
        bool any = false;
    };
    // A column as drawn: its samples merged with the trace's crossing of the axis' ends.
    struct Entry {
        int column = 0;
        double first = 0;
        double last = 0;
        double low = 0;
        double high = 0;
    };

    // Empties the trace and sets its columns; `step` holds each value until the next sample
    // (an on/off train) instead of joining samples by straight lines.
    void reset(const ColumnGeometry& geometry, bool step);
    // Takes in the samples (times[i], values[i]) from consumed() up to `count`; the earlier ones
    // must be unchanged since they were taken in. Samples whose value is not finite are left
    // out. Unsorted times are binned afresh every time. Returns the columns whose drawing may
    // have changed.
    ColumnRange extend(const double* times, const double* values, int count, bool sorted);

    int consumed() const { return consumed_; }
    const ColumnGeometry& geometry() const { return geometry_; }
    bool step() const { return step_; }
    // Finite samples inside the time window and the columns from the first to the last of
    // them: together they say whether the trace is dense.
    long long visibleSamples() const { return visible_; }
    int spannedColumns() const;

    // The drawn columns needed to draw columns `range`: those inside it plus the nearest one on
    // either side, in column order.
    void entries(ColumnRange range, std::vector<Entry>& out) const;

    // The device column a time falls into, limited to the axis' columns.
    int columnOf(double t) const {
        const double x = (t - geometry_.timeFrom) * perTime_ + offset_;
        // Truncation of a value >= 0 is its floor; NaN lands in the first column.
        return geometry_.columnFrom + static_cast<int>(x >= 0 ? (x < lastX_ ? x : lastX_) : 0.0);
    }

  private:
    bool edgeValue(bool left, double& v) const;
    Column* columnAt(int c) { return &columns_[static_cast<size_t>(c - geometry_.columnFrom)]; }
    const Column* columnAt(int c) const {
        return &columns_[static_cast<size_t>(c - geometry_.columnFrom)];
    }
    bool entryAt(int c, Entry& e) const;

    ColumnGeometry geometry_;
    double perTime_ = 0;  // device pixels per unit of time
    double offset_ = 0;   // device x of the axis' minimum from the first column's left edge
    double lastX_ = 0;    // the last column's left edge, counted the same way
    bool step_ = false;
    bool sorted_ = true;
    std::vector<Column> columns_;
    const double* times_ = nullptr;  // the series' arrays as last seen, for the edge values
    const double* values_ = nullptr;
    int consumed_ = 0;
    int before_ = -1;   // the last finite sample before the window
    int firstIn_ = -1;  // the first and last finite sample inside it
    int lastIn_ = -1;
    int after_ = -1;  // the first finite sample after it
    long long visible_ = 0;
};

// How a trace's values land on device rows and in which rectangle it may draw.
struct RasterStyle {
    double valueLow = 0;  // value at device row yLow …
    double valueHigh = 1;
    double yLow = 0;  // … and at yHigh
    double yHigh = 0;
    // Rows are kept inside bandTop … bandBottom - 1 (on/off trains keep their levels inside
    // their band); no limit when bandBottom <= bandTop.
    int bandTop = 0;
    int bandBottom = 0;
    int clipLeft = 0;  // device pixels that may be drawn: clipLeft … clipRight - 1, …
    int clipTop = 0;
    int clipRight = 0;
    int clipBottom = 0;
    int penX = 1;  // pen size in device pixels
    int penY = 1;
    uint32_t color = 0xFF000000;
};

// Draws columns `range` of the trace into `view`.
void rasterTrace(const PixelView& view, const ColumnTrace& trace, const RasterStyle& style,
                 ColumnRange range);

}  // namespace zt::render
