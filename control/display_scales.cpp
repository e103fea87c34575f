// The scale panel: scale display option, the selected channel's scale and zero position, the
// time scale with the scroll bar, and the optimiser.
#include <algorithm>
#include <cmath>

#include "config/item_attribute.h"
#include "control/graph_display.h"
#include "graph/chart_setup.h"
#include "graph/plot_graph.h"
#include "platform/chart/chart_design.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"
#include "scale/horz_scale.h"
#include "scale/run_scales.h"
#include "scale/vert_scale.h"

namespace zt {

namespace {

// Largest and smallest value of a series, starting from its first point; 0 and 0 for a series
// without points or beyond a graph's length.
struct Extremes {
    double max = 0;
    double min = 0;
    bool any = false;
};

Extremes scan(const chart::Series& series) {
    Extremes e;
    const int n = series.pointCount();
    if (n < 1 || n > kGraphRecords) return e;
    const double* v = series.values();
    e.max = e.min = v[0];
    e.any = true;
    for (int i = 1; i < n; ++i) {
        e.max = std::max(e.max, v[i]);
        e.min = std::min(e.min, v[i]);
    }
    return e;
}

}  // namespace

void GraphDisplay::placeLabels() {
    const PlotInputs in = plotInputs_();
    placeChannelLabels(chart_, state_, in, 0);
    if (state_.graphInfo.udtHistoryState.lngOverWriteState != 0)
        placeChannelLabels(chart_, state_, in, 1);
}

void GraphDisplay::enableVertScaleControls() {
    const int c = state_.graphInfo.intChNumber;
    const bool allowed = settingsOrGraph();
    s_.cboVertScale.Enabled = allowed && isAnalogChannel(c) && channelInUse(c);
    s_.updZero.Enabled = allowed && c != 0;
}

void GraphDisplay::optScaleClick(int index) {
    if (!alive()) return;
    state_.graphInfo.intChNumber =
        index == 1 ? int16_t{0} : static_cast<int16_t>(firstChannelInUse());
    enableVertScaleControls();
    setScaleMargin(chart_, state_.graphInfo.intChNumber);
    if (!settingsOrGraph()) return;
    rebuildVertScaleList();
    redrawVertScales();
    placeLabels();
    configureScrollBar();
    refreshCursors();
}

void GraphDisplay::currentChannelChanged(int channel) {
    if (!alive() || channel < 1 || channel > kChannelCount) return;
    if (!s_.optScale[0].value()) return;
    state_.graphInfo.intChNumber = static_cast<int16_t>(channel);
    enableVertScaleControls();
    rebuildVertScaleList();
    redrawVertScales();
}

void GraphDisplay::refreshScaleDisplay() {
    if (!alive()) return;
    enableVertScaleControls();
    rebuildVertScaleList();
    redrawVertScales();
}

void GraphDisplay::rebuildVertScaleList() {
    s_.cboVertScale.Clear();
    const int c = state_.graphInfo.intChNumber;
    if (!isAnalogChannel(c) || !channelInUse(c)) return;
    const double fs = text::val(itemText(c, kAttrFullScale));
    for (std::string& entry : vertScaleList(text::toInt32Saturated(fs), env_.locale))
        s_.cboVertScale.AddItem(std::move(entry));
    VERTSCALE& v = state_.graphInfo.udtVertScale[static_cast<size_t>(c)];
    v.dblVertScale = limitVertScale(v.dblVertScale);
    s_.cboVertScale.setText(vertScaleText(v.dblVertScale, env_.locale));
}

void GraphDisplay::redrawVertScales() {
    if (!alive()) return;
    const PlotInputs in = plotInputs_();
    const ChannelTexts units = unitTexts();
    applyVertScales(chart_, state_.graphInfo, in);
    placeScaleColumns(chart_, state_.graphInfo, in, units);
    showScaleLabels(s_, state_.graphInfo, units, env_.locale);
}

void GraphDisplay::takeVertScaleEntry() {
    if (!alive() || !settingsOrGraph()) return;
    const int c = s_.optScale[0].value() ? state_.graphInfo.intChNumber : 0;
    if (!isAnalogChannel(c)) return;
    VERTSCALE& v = state_.graphInfo.udtVertScale[static_cast<size_t>(c)];
    const double typed =
        vertScaleFromText(s_.cboVertScale.text(), env_.locale).value_or(v.dblVertScale);
    const chart::Axis& axis = *chart_.vertAxis[static_cast<size_t>(c)];
    const double centre = axis.Minimum + (axis.Maximum - axis.Minimum) / 2;
    v = centredVertScale(centre, limitVertScale(typed));
    s_.cboVertScale.setText(vertScaleText(v.dblVertScale, env_.locale));
    redrawVertScales();
    if (state_.graphInfo.udtCursorState.intCursorState == 2) refreshReadouts();
}

void GraphDisplay::zeroStep(bool up) {
    if (!alive() || !settingsOrGraph() || !s_.optScale[0].value()) return;
    const int c = state_.graphInfo.intChNumber;
    if (c < 1 || c > kChannelCount) return;
    VERTSCALE& v = state_.graphInfo.udtVertScale[static_cast<size_t>(c)];
    const int z = v.intZeroPos;
    int next = z;
    if (isAnalogChannel(c)) {
        const bool sign = itemSigned(c);
        if (up && analogZeroCanRise(z, v.dblVertScale, sign)) next = z + 1;
        if (!up && analogZeroCanFall(z, v.dblVertScale, sign)) next = z - 1;
    } else {
        next = std::clamp(up ? z + 1 : z - 1, 0, kDigitalZeroMax);
        if (z > kDigitalZeroMax || z < 0) next = std::clamp(z, 0, kDigitalZeroMax);
    }
    if (next == z) return;
    v.intZeroPos = static_cast<int16_t>(next);
    redrawVertScales();
    refreshReadouts();
}

void GraphDisplay::rebuildHorzScaleList() {
    s_.cboHorzScale.Clear();
    std::vector<std::string> list = horzScaleList(state_.sampSetting, env_.locale);
    for (const std::string& entry : list)
        s_.cboHorzScale.AddItem(entry);
    s_.cboHorzScale.setText(list.front());
    state_.graphInfo.udtHorzScale.sngHorzScale =
        static_cast<float>(horzScaleBounds(state_.sampSetting).upper);
}

void GraphDisplay::takeHorzScaleEntry() {
    if (!alive() || !graphShown()) return;
    HORZSCALE& h = state_.graphInfo.udtHorzScale;
    h.sngHorzScale = static_cast<float>(
        horzScaleFromText(s_.cboHorzScale.text(), state_.sampSetting, env_.locale));
    s_.cboHorzScale.setText(text::singleToText(h.sngHorzScale, env_.locale));
    configureScrollBar();
    placeLabels();
    refreshCursors();
}

void GraphDisplay::configureScrollBar() {
    if (!alive()) return;
    HORZSCALE& h = state_.graphInfo.udtHorzScale;
    const double t = state_.sampSetting.dblSamplingTime;
    ui::HScrollBar& bar = s_.hsbGraph;
    bar.setMin(0);
    bar.setMax(horzScrollMax(h.sngHorzScale, t));
    bar.setValue(std::clamp<int>(h.lngHScrollPos, 0, bar.Max()));
    h.lngHScrollPos = bar.value();
    bar.Enabled = graphShown() && chart_.timeBase->pointCount() > 0 &&
                  recordingExceedsScreen(h.sngHorzScale, t);
    applyTimeAxis(chart_, h);
    const int32_t margin = state_.graphInfo.intChNumber != 0 ? chart::design::kMarginOneScale
                                                             : chart::design::kMarginAllScales;
    const float right = bar.Left + bar.Width;
    bar.Left = static_cast<float>(margin * env_.twipsPerPixelX);
    bar.Width = std::max(0.0f, right - bar.Left);
}

void GraphDisplay::scrollChanged() {
    if (!alive() || !graphShown()) return;
    HORZSCALE& h = state_.graphInfo.udtHorzScale;
    h.lngHScrollPos = s_.hsbGraph.value();
    applyTimeAxis(chart_, h);
    placeLabels();
    refreshCursors();
}

void GraphDisplay::optimizeVertScale() {
    if (!alive()) return;
    const bool overlay = state_.graphInfo.udtHistoryState.lngOverWriteState != 0;
    for (int c = 1; c <= kAnalogChannels; ++c) {
        Extremes e = scan(chart_.series(c, 0));
        if (overlay) {
            const Extremes o = scan(chart_.series(c, 1));
            if (o.any && e.any) {
                e.max = std::max(e.max, o.max);
                e.min = std::min(e.min, o.min);
            } else if (o.any) {
                e = o;
            }
        }
        state_.graphInfo.udtVertScale[static_cast<size_t>(c)] = optimisedVertScale(e.min, e.max);
    }
    const int selected = state_.graphInfo.intChNumber;
    if (isAnalogChannel(selected)) {
        VERTSCALE& v = state_.graphInfo.udtVertScale[static_cast<size_t>(selected)];
        v.dblVertScale = limitVertScale(v.dblVertScale);
        s_.cboVertScale.setText(vertScaleText(v.dblVertScale, env_.locale));
    }
    redrawVertScales();
    refreshReadouts();
}

}  // namespace zt
