#include "graph/plot_graph.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/conversion_table.h"
#include "core/sample_conversion.h"
#include "platform/chart/chart_design.h"

namespace zt {

namespace {

namespace d = chart::design;

// Value of the time-base series, at the bottom of its axis.
constexpr int16_t kTimeBaseValue = -125;

// Values of the time-base series for any index range.
const std::vector<double>& timeBaseValues() {
    static const std::vector<double> values(static_cast<size_t>(kGraphRecords), kTimeBaseValue);
    return values;
}

bool validSlot(int slot) {
    return slot >= 0 && slot < kHistorySlots;
}

// The upper half of a two-channel value: channel 2 or 4 holding the item of the channel before.
bool isUpperHalf(const ChannelSettings& ch, size_t c) {
    return (c == 2 || c == 4) && ch[c].lngSamplingItem == ch[c - 1].lngSamplingItem;
}

void styleSeries(chart::Series& series, int channel, int kind, int32_t color) {
    const chart::Color c = kind == kDisplayedGraph ? color : d::kOverlayColor;
    series.LinePen.color = c;
    series.LinePen.style = chart::PenStyle::Solid;
    series.Label.TextColor = c;
    series.Label.Text = "CH" + std::to_string(channel);
}

void fillSeries(chart::Series& series, const SAMPDATA& data, int channel, int kind, int32_t color) {
    series.setPoints(kGraphRecords, data.sngSamplingData, data.sngSamplingTimeByInv);
    styleSeries(series, channel, kind, color);
}

bool triggerValid(const SAMPSETTING& s, const std::vector<SampleRecord>& records) {
    if (!(s.sngTriggerPosition >= 10 && s.sngTriggerPosition <= 90)) return false;
    if (s.intTriggerType == 0 || s.lngTriggerPoint < 1) return false;
    const size_t last = std::min(records.size(), static_cast<size_t>(kGraphRecords));
    for (size_t i = static_cast<size_t>(s.lngTriggerPoint) - 1; i < last; ++i) {
        if (records[i].lngDiffTime > 0) return true;
    }
    return false;
}

void placeTriggerMark(const ChartRefs& refs, const GraphState& state, const PlotInputs& inputs,
                      int slot) {
    const SAMPSETTING& s = state.sampSetting;
    chart::Series& timeBase = *refs.timeBase;
    const bool hasPoints = timeBase.pointCount() > 0;
    if (hasPoints &&
        triggerValid(s, state.history.udtGraphResultInfo[static_cast<size_t>(slot)].udtSample)) {
        refs.triggerCursor->setPointIndex(s.lngTriggerPoint);
        refs.triggerCursor->Visible = true;
        timeBase.Label.Text = " " + inputs.triggerText + " ";
        timeBase.Label.TextColor = d::kTextColor;
        timeBase.setLabelShown(s.lngTriggerPoint, true);
        return;
    }
    refs.triggerCursor->Visible = false;
    if (hasPoints) timeBase.hideAllLabels();
}

}  // namespace

void drawGraph(const ChartRefs& refs, GraphState& state, const PlotInputs& inputs, int slot,
               int kind) {
    if (!refs.held() || !validSlot(slot) || (kind != kDisplayedGraph && kind != kOverlayGraph))
        return;
    const ConversionTable table = buildConversionTable(state.chSetting, state.sampData, inputs);
    convertSamples(state.history.udtGraphResultInfo[static_cast<size_t>(slot)].udtSample, table,
                   state.sampData);

    for (int c = 1; c <= 8; ++c) {
        const auto ch = static_cast<size_t>(c);
        if (!inputs.inUse[ch]) continue;
        chart::Series& series = refs.series(c, kind);
        fillSeries(series, state.sampData[ch], c, kind, state.chSetting[ch].lngGraphColor);
        if (c <= 4 && isUpperHalf(state.chSetting, ch)) {
            series.LinePen.style = chart::PenStyle::Null;
            series.Label.Text.clear();
        }
    }

    if (kind == kDisplayedGraph) {
        static_assert(kGraphRecords > 0);
        refs.timeBase->setPoints(kGraphRecords, std::vector<int16_t>(kGraphRecords, kTimeBaseValue),
                                 state.sampData[1].sngSamplingTimeByInv);
    }
    placeChannelLabels(refs, state, inputs, kind);
    placeTriggerMark(refs, state, inputs, slot);
}

void drawNewRecords(const ChartRefs& refs, GraphState& state, const PlotInputs& inputs, int first,
                    int last) {
    if (!refs.held()) return;
    const auto& records = state.history.udtGraphResultInfo[0].udtSample;
    last = std::min({last, kGraphRecords, static_cast<int>(records.size())});
    if (first < 0 || first >= last) return;
    const ConversionTable table = buildConversionTable(state.chSetting, state.sampData, inputs);
    convertSampleRange(records, first, last, table, state.sampData);
    for (int c = 1; c <= 8; ++c) {
        const auto ch = static_cast<size_t>(c);
        if (!inputs.inUse[ch]) continue;
        chart::Series& series = refs.series(c, kDisplayedGraph);
        const SAMPDATA& data = state.sampData[ch];
        if (first == 0) {
            styleSeries(series, c, kDisplayedGraph, state.chSetting[ch].lngGraphColor);
            if (c <= 4 && isUpperHalf(state.chSetting, ch)) {
                series.LinePen.style = chart::PenStyle::Null;
                series.Label.Text.clear();
            }
        }
        series.setPointRange(first, last, data.sngSamplingData.data(),
                             data.sngSamplingTimeByInv.data());
    }
    // The time base grows with the graph; a new sweep starts it afresh. Labels and the trigger
    // mark follow every reply.
    refs.timeBase->setPointRange(first, last, timeBaseValues().data(),
                                 state.sampData[1].sngSamplingTimeByInv.data());
    placeChannelLabels(refs, state, inputs, kDisplayedGraph);
    placeTriggerMark(refs, state, inputs, 0);
}

void placeChannelLabels(const ChartRefs& refs, const GraphState& state, const PlotInputs& inputs,
                        int kind) {
    if (!refs.held() || (kind != kDisplayedGraph && kind != kOverlayGraph)) return;
    if (refs.timeBase->pointCount() > 0) {
        for (int c = 1; c <= 8; ++c) {
            chart::Series& series = refs.series(c, kind);
            if (inputs.inUse[static_cast<size_t>(c)] && series.pointCount() > 0)
                series.hideAllLabels();
        }
    }
    const double minimum = refs.timeAxis->Minimum;
    const double perDiv = state.graphInfo.udtHorzScale.sngHorzScale;
    const std::vector<double>& times = state.sampData[1].sngSamplingTimeByInv;
    // While a run is drawn the times are valid up to the points drawn so far.
    const int32_t drawn = refs.timeBase->pointCount();
    const int32_t searched = drawn > 0 ? drawn : kGraphRecords;
    std::array<int32_t, 9> at{};
    for (int n = 1; n <= 8; ++n) {
        auto& l = at[static_cast<size_t>(n)];
        l = findSampleInTimeRange(times, minimum + n * perDiv, minimum + (n + 1) * perDiv,
                                  searched);
        if (n >= 2 && l == 0) l = at[1];
    }
    for (int c = 1; c <= 8; ++c) {
        const int32_t l = at[static_cast<size_t>(c)];
        chart::Series& series = refs.series(c, kind);
        if (!inputs.inUse[static_cast<size_t>(c)] || l <= 0 || l >= kGraphRecords ||
            series.pointCount() == 0)
            continue;
        series.setLabelShown(l, true);
        if (c > 4) {
            // The label sits on the side away from the trace.
            series.Label.Placement = series.valueAt(l).value_or(0) == 0
                                         ? chart::LabelPlacement::Above
                                         : chart::LabelPlacement::Below;
        }
    }
}

int32_t findSampleInTimeRange(const std::vector<double>& times, double from, double to,
                              int32_t count) {
    const size_t n = std::min({times.size(), static_cast<size_t>(kGraphRecords),
                               static_cast<size_t>(std::max(count, 0))});
    if (n == 0) return 0;
    double lower = 0;
    double upper = static_cast<double>(n - 1);
    while (lower <= upper) {
        const double mid = (lower + upper) / 2;
        // Rounding to the nearest integer, ties to even.
        const auto m = static_cast<size_t>(std::nearbyint(mid));
        const double t = times[m];
        if (from <= t && t <= to) return static_cast<int32_t>(std::nearbyint(mid));
        if (from < t) {
            upper = mid - 1;
        } else {
            lower = mid + 1;
        }
    }
    return 0;
}

void clearDisplayedGraph(const ChartRefs& refs, GraphState& state) {
    state.history.strComments[0].clear();
    if (!refs.held()) return;
    for (int s = 1; s <= 8; ++s) {
        refs.plotData[static_cast<size_t>(s)]->setPointCount(0);
        refs.pulseData[static_cast<size_t>(s)]->setPointCount(0);
    }
    refs.timeBase->setPointCount(0);
    refs.triggerCursor->Visible = false;
}

void clearAllGraphs(const ChartRefs& refs, GraphState& state) {
    clearDisplayedGraph(refs, state);
    const int last = std::clamp<int>(state.version.lngHistoryMax, 0, kHistorySlots - 1);
    for (int slot = 0; slot <= last; ++slot) {
        for (SampleRecord& r :
             state.history.udtGraphResultInfo[static_cast<size_t>(slot)].udtSample) {
            r.lngDiffTime = 0;
            r.intDigitalData = 0;
            r.lngAnalogData = {};
        }
    }
}

}  // namespace zt
