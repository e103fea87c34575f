#include "render/trace_columns.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zt::render {

namespace {

TraceSpan single(double time, double value) {
    return {time, value, value, value, value};
}

// Collects samples into pixel columns; columns are met in non-decreasing order when the
// samples are sorted.
class ColumnBins {
  public:
    explicit ColumnBins(const TraceWindow& w)
        : from_(w.timeFrom), scale_(w.columns / (w.timeTo - w.timeFrom)), columns_(w.columns) {}

    int column(double t) const {
        const double c = std::floor((t - from_) * scale_);
        if (std::isnan(c)) return 0;
        return static_cast<int>(std::clamp(c, 0.0, static_cast<double>(columns_ - 1)));
    }
    double centre(int column) const { return from_ + (column + 0.5) / scale_; }

  private:
    double from_;
    double scale_;
    int columns_;
};

void add(TraceSpan& span, double value) {
    span.last = value;
    span.low = std::min(span.low, value);
    span.high = std::max(span.high, value);
}

std::vector<TraceSpan> binUnsorted(const double* times, const double* values, int count,
                                   const TraceWindow& w) {
    const ColumnBins bins(w);
    std::vector<std::optional<TraceSpan>> columns(static_cast<size_t>(w.columns));
    for (int i = 0; i < count; ++i) {
        const double t = times[i];
        const double v = values[i];
        if (!std::isfinite(v) || !(t >= w.timeFrom && t <= w.timeTo)) continue;
        auto& slot = columns[static_cast<size_t>(bins.column(t))];
        if (slot) {
            add(*slot, v);
        } else {
            slot = single(bins.centre(bins.column(t)), v);
        }
    }
    std::vector<TraceSpan> spans;
    for (const auto& slot : columns) {
        if (slot) spans.push_back(*slot);
    }
    return spans;
}

double interpolate(double t0, double v0, double t1, double v1, double t) {
    if (t1 == t0) return v1;
    return v0 + (v1 - v0) * (t - t0) / (t1 - t0);
}

}  // namespace

ReducedTrace reduceTrace(const double* times, const double* values, int count, bool sorted,
                         const TraceWindow& w) {
    ReducedTrace reduced;
    std::vector<TraceSpan>& spans = reduced.spans;
    if (count <= 0 || w.columns <= 0 || !std::isfinite(w.timeFrom) || !std::isfinite(w.timeTo) ||
        !(w.timeTo > w.timeFrom)) {
        return reduced;
    }
    if (!sorted) return ReducedTrace{binUnsorted(times, values, count, w), true};

    const int lo = static_cast<int>(std::lower_bound(times, times + count, w.timeFrom) - times);
    const int hi = static_cast<int>(std::upper_bound(times, times + count, w.timeTo) - times);
    // The nearest finite samples outside the window on either side.
    int before = lo - 1;
    while (before >= 0 && !std::isfinite(values[before]))
        --before;
    int after = hi;
    while (after < count && !std::isfinite(values[after]))
        ++after;

    const long long visible = hi - lo;
    const bool reduce =
        visible > static_cast<long long>(w.columns) * std::max(w.samplesPerColumn, 1);
    reduced.perColumn = reduce;
    spans.reserve(static_cast<size_t>(std::min<long long>(visible, 2LL * w.columns)) + 2);

    if (before >= 0) {
        double v = values[before];
        if (!w.step) {
            int next = lo;
            while (next < hi && !std::isfinite(values[next]))
                ++next;
            const int to = next < hi ? next : (after < count ? after : -1);
            if (to >= 0) v = interpolate(times[before], v, times[to], values[to], w.timeFrom);
        }
        spans.push_back(single(w.timeFrom, v));
    }

    if (reduce) {
        const ColumnBins bins(w);
        int current = -1;
        for (int i = lo; i < hi; ++i) {
            const double v = values[i];
            if (!std::isfinite(v)) continue;
            const int c = bins.column(times[i]);
            if (c != current) {
                spans.push_back(single(bins.centre(c), v));
                current = c;
            } else {
                add(spans.back(), v);
            }
        }
    } else {
        for (int i = lo; i < hi; ++i) {
            if (std::isfinite(values[i])) spans.push_back(single(times[i], values[i]));
        }
    }

    if (after < count && !spans.empty()) {
        // The trace runs on to the window's right edge: a held value, or the line towards the
        // next sample.
        int last = hi - 1;
        while (last >= lo && !std::isfinite(values[last]))
            --last;
        const int from = last >= lo ? last : before;
        double v = values[from];
        if (!w.step) v = interpolate(times[from], v, times[after], values[after], w.timeTo);
        spans.push_back(single(w.timeTo, v));
    }
    return reduced;
}

}  // namespace zt::render
