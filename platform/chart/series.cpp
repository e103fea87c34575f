#include "platform/chart/series.h"

#include <algorithm>
#include <cmath>

namespace zt::chart {

void Series::setPoints(int count, std::vector<double> values, std::vector<double> times) {
    adopt(count, std::move(values), std::move(times));
}

void Series::setPoints(int count, const std::vector<int16_t>& values, std::vector<double> times) {
    const size_t n = std::min(values.size(), static_cast<size_t>(std::max(count, 0)));
    std::vector<double> converted(values.begin(), values.begin() + static_cast<ptrdiff_t>(n));
    adopt(count, std::move(converted), std::move(times));
}

void Series::adopt(int count, std::vector<double>&& values, std::vector<double>&& times) {
    const size_t limit = std::min(values.size(), times.size());
    count_ = static_cast<int>(std::clamp<size_t>(static_cast<size_t>(std::max(count, 0)), 0,
                                                 std::min<size_t>(limit, INT32_MAX)));
    values_ = std::move(values);
    times_ = std::move(times);
    sorted_ = true;
    for (int i = 0; i < count_; ++i) {
        const double t = times_[static_cast<size_t>(i)];
        if (!std::isfinite(t) || (i > 0 && t < times_[static_cast<size_t>(i - 1)])) {
            sorted_ = false;
            break;
        }
    }
    labels_.reset(count_);
    rewriteRevision_ = ++revision_;
    if (sink_) sink_->changed();
}

void Series::setPointRange(int first, int last, const double* values, const double* times) {
    first = std::clamp(first, 0, count_);
    if (last <= first || values == nullptr || times == nullptr) return;
    ++revision_;
    if (first < count_) rewriteRevision_ = revision_;
    const auto end = static_cast<size_t>(last);
    if (values_.size() < end) values_.resize(end);
    if (times_.size() < end) times_.resize(end);
    if (first == 0) sorted_ = true;
    for (size_t i = static_cast<size_t>(first); i < end; ++i) {
        values_[i] = values[i];
        times_[i] = times[i];
        if (!std::isfinite(times_[i]) || (i > 0 && times_[i] < times_[i - 1])) sorted_ = false;
    }
    count_ = last;
    labels_.reset(count_);
    if (sink_) sink_->changed();
}

void Series::setPointCount(int count) {
    const int n = std::clamp(count, 0, count_);
    if (n == count_) return;
    count_ = n;
    rewriteRevision_ = ++revision_;
    labels_.reset(count_);
    if (sink_) sink_->changed();
}

std::optional<double> Series::valueAt(int index) const {
    if (index < 0 || index >= count_) return std::nullopt;
    return values_[static_cast<size_t>(index)];
}

std::optional<double> Series::timeAt(int index) const {
    if (index < 0 || index >= count_) return std::nullopt;
    return times_[static_cast<size_t>(index)];
}

int Series::nearestPoint(double time) const {
    if (count_ == 0 || std::isnan(time)) return -1;
    if (!sorted_) {
        int best = -1;
        double bestDistance = 0;
        for (int i = 0; i < count_; ++i) {
            const double d = std::fabs(times_[static_cast<size_t>(i)] - time);
            if (std::isfinite(d) && (best < 0 || d < bestDistance)) {
                best = i;
                bestDistance = d;
            }
        }
        return best;
    }
    const auto begin = times_.begin();
    const auto end = begin + count_;
    auto it = std::lower_bound(begin, end, time);
    if (it == end) {
        --it;
    } else if (it != begin && time - *(it - 1) <= *it - time) {
        --it;
    }
    // The first of the points that share this time.
    it = std::lower_bound(begin, it, *it);
    return static_cast<int>(it - begin);
}

}  // namespace zt::chart
