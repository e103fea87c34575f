#include "render/trace_raster.h"

#include <algorithm>
#include <cmath>

namespace zt::render {

namespace {

// Rows and columns far outside any picture are pulled in before they become integers.
constexpr double kFarPixels = 1e6;

int toPixel(double v) {
    if (!(v >= -kFarPixels)) return static_cast<int>(-kFarPixels);
    if (!(v <= kFarPixels)) return static_cast<int>(kFarPixels);
    return static_cast<int>(std::floor(v));
}

double interpolate(double t0, double v0, double t1, double v1, double t) {
    if (t1 == t0) return v1;
    return v0 + (v1 - v0) * (t - t0) / (t1 - t0);
}

void fillColumns(const PixelView& view, int x0, int x1, int y0, int y1, uint32_t color) {
    for (int x = x0; x <= x1; ++x) {
        uint32_t* p = view.pixels + static_cast<ptrdiff_t>(y0) * view.stride + x;
        for (int y = y0; y <= y1; ++y, p += view.stride)
            *p = color;
    }
}

}  // namespace

void ColumnRange::add(const ColumnRange& other) {
    if (other.empty()) return;
    if (empty()) {
        *this = other;
        return;
    }
    first = std::min(first, other.first);
    last = std::max(last, other.last);
}

void ColumnTrace::reset(const ColumnGeometry& geometry, bool step) {
    geometry_ = geometry;
    step_ = step;
    sorted_ = true;
    columns_.assign(static_cast<size_t>(std::max(geometry.columnTo - geometry.columnFrom, 0)),
                    Column{});
    perTime_ = (geometry.xTo - geometry.xFrom) / (geometry.timeTo - geometry.timeFrom);
    if (!std::isfinite(perTime_)) perTime_ = 0;
    offset_ = geometry.xFrom - geometry.columnFrom;
    lastX_ = std::max(static_cast<double>(columns_.size()) - 1, 0.0);
    times_ = nullptr;
    values_ = nullptr;
    consumed_ = 0;
    before_ = firstIn_ = lastIn_ = after_ = -1;
    visible_ = 0;
}

ColumnRange ColumnTrace::extend(const double* times, const double* values, int count, bool sorted) {
    const ColumnRange all{geometry_.columnFrom, geometry_.columnTo - 1};
    times_ = times;
    values_ = values;
    if (columns_.empty() || count <= consumed_) {
        consumed_ = std::max(count, 0);
        return {};
    }
    if (!sorted || !sorted_) {
        // Unsorted times: every column may change, so all are binned again.
        reset(geometry_, step_);
        sorted_ = false;
        times_ = times;
        values_ = values;
    }
    const int oldBefore = before_;
    const int oldFirst = firstIn_;
    const int oldLast = lastIn_;
    const int oldAfter = after_;
    const double from = geometry_.timeFrom;
    const double to = geometry_.timeTo;
    // The column being filled is held in `open` until the samples move on to another one.
    Column open;
    int openAt = geometry_.columnFrom - 1;
    const auto close = [&] {
        if (openAt >= geometry_.columnFrom) *columnAt(openAt) = open;
    };
    for (int i = consumed_; i < count; ++i) {
        const double v = values[i];
        if (!std::isfinite(v)) continue;
        const double t = times[i];
        if (t >= from && t <= to) {
            const int c = columnOf(t);
            if (c != openAt) {
                close();
                openAt = c;
                open = *columnAt(c);
            }
            if (open.any) {
                open.last = v;
                open.low = std::min(open.low, v);
                open.high = std::max(open.high, v);
            } else {
                open = Column{v, v, v, v, true};
            }
            if (firstIn_ < 0) firstIn_ = i;
            lastIn_ = i;
            ++visible_;
        } else if (!sorted_) {
            continue;
        } else if (t < from) {
            before_ = i;
        } else if (after_ < 0) {
            after_ = i;
        }
    }
    close();
    consumed_ = count;
    if (!sorted_) return all;

    ColumnRange changed;
    const auto columnAtSample = [&](int i) { return columnOf(times[i]); };
    // The stretch from the left end to the first sample inside.
    if (before_ != oldBefore || firstIn_ != oldFirst || (firstIn_ < 0 && after_ != oldAfter)) {
        changed.add({geometry_.columnFrom, firstIn_ >= 0 ? columnAtSample(firstIn_) : all.last});
    }
    // New samples inside, joined to the previous last one.
    if (lastIn_ != oldLast) {
        changed.add({oldLast >= 0 ? columnAtSample(oldLast) : geometry_.columnFrom,
                     columnAtSample(lastIn_)});
    }
    // The stretch from the last sample inside to the right end.
    if (after_ != oldAfter) {
        changed.add({lastIn_ >= 0 ? columnAtSample(lastIn_) : geometry_.columnFrom, all.last});
    }
    return changed;
}

int ColumnTrace::spannedColumns() const {
    if (firstIn_ < 0 || !sorted_) return static_cast<int>(columns_.size());
    return columnOf(times_[lastIn_]) - columnOf(times_[firstIn_]) + 1;
}

bool ColumnTrace::edgeValue(bool left, double& v) const {
    if (!sorted_) return false;
    if (left) {
        const int to = firstIn_ >= 0 ? firstIn_ : after_;
        if (before_ < 0 || to < 0) return false;
        v = values_[before_];
        if (!step_)
            v = interpolate(times_[before_], v, times_[to], values_[to], geometry_.timeFrom);
        return true;
    }
    const int from = lastIn_ >= 0 ? lastIn_ : before_;
    if (after_ < 0 || from < 0) return false;
    v = values_[from];
    if (!step_) v = interpolate(times_[from], v, times_[after_], values_[after_], geometry_.timeTo);
    return true;
}

bool ColumnTrace::entryAt(int c, Entry& e) const {
    const Column& col = *columnAt(c);
    double left = 0;
    double right = 0;
    const bool hasLeft = c == geometry_.columnFrom && edgeValue(true, left);
    const bool hasRight = c == geometry_.columnTo - 1 && edgeValue(false, right);
    if (!col.any && !hasLeft && !hasRight) return false;
    e = Entry{c, col.first, col.last, col.low, col.high};
    bool any = col.any;
    const auto merge = [&](double v, bool atStart) {
        if (!any) {
            e = Entry{c, v, v, v, v};
            any = true;
            return;
        }
        (atStart ? e.first : e.last) = v;
        e.low = std::min(e.low, v);
        e.high = std::max(e.high, v);
    };
    if (hasLeft) merge(left, true);
    if (hasRight) merge(right, false);
    return true;
}

void ColumnTrace::entries(ColumnRange range, std::vector<Entry>& out) const {
    out.clear();
    if (columns_.empty()) return;
    const int lo = std::max(range.first, geometry_.columnFrom);
    const int hi = std::min(range.last, geometry_.columnTo - 1);
    Entry e;
    for (int c = std::min(lo, geometry_.columnTo) - 1; c >= geometry_.columnFrom; --c) {
        if (entryAt(c, e)) {
            out.push_back(e);
            break;
        }
    }
    for (int c = lo; c <= hi; ++c) {
        if (entryAt(c, e)) out.push_back(e);
    }
    for (int c = std::max(hi, geometry_.columnFrom - 1) + 1; c < geometry_.columnTo; ++c) {
        if (entryAt(c, e)) {
            out.push_back(e);
            break;
        }
    }
}

void rasterTrace(const PixelView& view, const ColumnTrace& trace, const RasterStyle& style,
                 ColumnRange range) {
    const int left = std::max({range.first, style.clipLeft, 0});
    const int right = std::min({range.last, style.clipRight - 1, view.width - 1});
    const int top = std::max(style.clipTop, 0);
    const int bottom = std::min(style.clipBottom, view.height) - 1;
    if (left > right || top > bottom || view.pixels == nullptr) return;

    const int penX = std::max(style.penX, 1);
    const int penY = std::max(style.penY, 1);
    const int padLeft = (penX - 1) / 2;  // a column is drawn over padLeft + 1 + padRight pixels
    const int padRight = penX / 2;
    const int padTop = (penY - 1) / 2;
    const int padBottom = penY / 2;
    const bool band = style.bandBottom > style.bandTop;
    const double scale = (style.yHigh - style.yLow) / (style.valueHigh - style.valueLow);
    const auto yOf = [&](double v) { return style.yLow + (v - style.valueLow) * scale; };
    const auto rowOf = [&](double y) {
        const int r = toPixel(y);
        return band ? std::clamp(r, style.bandTop, style.bandBottom - 1) : r;
    };
    // Fills column `c` from device y `y0` to `y1` (either order).
    const auto span = [&](int c, double y0, double y1) {
        const int x0 = std::max(c - padLeft, left);
        const int x1 = std::min(c + padRight, right);
        if (x0 > x1) return;
        const int r0 = std::max(rowOf(std::min(y0, y1)) - padTop, top);
        const int r1 = std::min(rowOf(std::max(y0, y1)) + padBottom, bottom);
        if (r0 <= r1) fillColumns(view, x0, x1, r0, r1, style.color);
    };

    std::vector<ColumnTrace::Entry> entries;
    entries.reserve(static_cast<size_t>(right - left + 3));
    trace.entries({left - padRight, right + padLeft}, entries);
    const ColumnTrace::Entry* prev = nullptr;
    for (size_t k = 0; k < entries.size(); ++k) {
        const ColumnTrace::Entry& e = entries[k];
        const ColumnTrace::Entry* next = k + 1 < entries.size() ? &entries[k + 1] : nullptr;
        const double y0 = yOf(e.high);
        const double y1 = yOf(e.low);
        if (trace.step()) {
            if (prev) {
                // The previous value holds up to this column, where it steps.
                const double held = yOf(prev->last);
                for (int c = prev->column + 1; c < e.column; ++c)
                    span(c, held, held);
                span(e.column, std::min({y0, y1, held}), std::max({y0, y1, held}));
            } else {
                span(e.column, y0, y1);
            }
        } else {
            // Straight lines between column centres; each column reaches the lines' height at
            // its edges, so neighbouring columns meet.
            const double yFirst = yOf(e.first);
            const double yLast = yOf(e.last);
            double lo = std::min(y0, y1);
            double hi = std::max(y0, y1);
            if (prev) {
                const double yPrev = yOf(prev->last);
                const double run = e.column - prev->column;
                const auto line = [&](double x) {
                    return yPrev + (yFirst - yPrev) * (x - (prev->column + 0.5)) / run;
                };
                for (int c = prev->column + 1; c < e.column; ++c)
                    span(c, line(c), line(c + 1));
                lo = std::min(lo, line(e.column));
                hi = std::max(hi, line(e.column));
            }
            if (next) {
                const double yNext = yOf(next->first);
                const double x = e.column + 1;
                const double y =
                    yLast + (yNext - yLast) * (x - (e.column + 0.5)) / (next->column - e.column);
                lo = std::min(lo, y);
                hi = std::max(hi, y);
            }
            span(e.column, lo, hi);
        }
        prev = &e;
    }
}

}  // namespace zt::render
