// How the subsystems reach one another. The setting sheets send run events to the run-state
// machine; the run control locks the sheets, asks them about items, prepares the display,
// draws each reply's records, resets the settings on Clear and hands finished graphs to the
// history. Every link is made here, once, at construction.
#include <algorithm>

#include "config/item_attribute.h"
#include "control/graph_control.h"
#include "core/item_tables.h"
#include "graph/plot_graph.h"
#include "platform/text/date_time_text.h"
#include "platform/text/numeric.h"
#include "scale/run_scales.h"
#include "store/new_graph.h"

namespace zt {

namespace {

// Attribute columns: the item's values are zeroed on a fault of its station.
constexpr int16_t kAttrZeroOnFault = 9;

}  // namespace

void ztGraphControl::linkSubsystems() {
    sheets_.hooks.runEvent = [this](int16_t event) { run_.changeRunState(event); };
    // An edit redraws the graph only while one is shown: a discarded or never-sampled graph
    // stays off the chart.
    sheets_.hooks.redrawGraph = [this] {
        if (graphShown()) showGraph();
    };
    sheets_.hooks.currentChannelChanged = [this](int channel) {
        display_.currentChannelChanged(channel);
    };
    sheets_.hooks.refreshScaleDisplay = [this] { display_.refreshScaleDisplay(); };
    sheets_.hooks.rebuildTimeScaleList = [this] { display_.rebuildHorzScaleList(); };
    sheets_.hooks.resetDisplay = [this] {
        display_.showCursors(0, false);
        display_.redrawVertScales();
    };

    RunHooks& run = run_.hooks();
    run.lockSheets = [this](bool locked) { sheets_.setSheetsLocked(locked); };
    run.channelIsSet = [this](int channel) { return sheets_.channelIsSet(channel); };
    run.channelCount = [this] { return sheets_.ReturnChCount(); };
    run.checkChannelOrder = [this] { return sheets_.ascendingOrderCheck(); };
    run.initializeSettings = [this] { return sheets_.initializeSettings(); };
    run.itemSigned = [this](int channel) { return itemFlag(channel, kAttrSign); };
    run.itemZeroedOnFault = [this](int channel) { return itemFlag(channel, kAttrZeroOnFault); };
    run.samplingItemOffered = [this](int channel, int16_t speed) {
        const auto& list = channelItemList(state_.tableItem, channel, speed);
        const int32_t item = state_.chSetting[static_cast<std::size_t>(channel)].lngSamplingItem;
        return std::any_of(list.begin(), list.end(), [item](const ITEM_INFO& entry) {
            return entry.lngItemCode == item && entry.lngItemCode != kNoneItem;
        });
    };
    run.plotInputs = [this] { return plotInputs(); };
    run.prepareDisplayForRun = [this] { prepareDisplayForRun(); };
    run.redrawVertScaleLabels = [this] { display_.redrawVertScales(); };
    // The settings are locked while sampling and the request is complete before the first
    // reply, so a sweep's plot inputs are read once, at its first records.
    run.drawNewRecords = [this](int first, int last) {
        if (!chart_.held()) return;
        if (first == 0) sweepInputs_ = plotInputs();
        drawNewRecords(chart_, state_, sweepInputs_, first, last);
    };
    run.showStatusLabel = [this](const std::string& text) {
        if (!chart_.held()) return;
        chart_.triggerStateLabel->Text = text;
        chart_.triggerStateLabel->Visible = true;
    };
    run.hideStatusLabel = [this] {
        if (chart_.held()) chart_.triggerStateLabel->Visible = false;
    };
    run.enterNewGraph = [this] {
        showGraph();
        const std::string stamp = text::dateTimeText(text::localTime(env_.now()), env_.locale);
        history_.afterNewGraph(enterNewGraph(state_, stamp, sheets_.ReturnChCount()));
    };
    run.refreshHistoryDisplay = [this] { history_.refresh(); };

    HistoryHooks& history = history_.hooks();
    history.drawSlot = [this](int slot, int kind) {
        const PlotInputs in = plotInputs();
        drawGraph(chart_, state_, in, slot, kind);
    };
    history.clearOverlay = [this] {
        for (int c = 5; c <= 8; ++c) {
            chart_.plotData[c]->setPointCount(0);
            chart_.pulseData[c]->setPointCount(0);
        }
    };
    run.clearAllGraphs = [this] { clearAllGraphs(chart_, state_); };
    run.graphNeedsScrolling = [this] {
        const double shown = state_.graphInfo.udtHorzScale.sngHorzScale * 10.0;
        return graphShown() && shown < state_.sampSetting.dblSamplingTime;
    };
}

bool ztGraphControl::itemFlag(int channel, int16_t column) {
    if (channel < 1 || channel > kChannelCount) return false;
    const int16_t speed = state_.sampSetting.intSamplingSpeed;
    const int32_t item = state_.chSetting[static_cast<std::size_t>(channel)].lngSamplingItem;
    return sheets_.itemAttribute(item, column, static_cast<int16_t>(channel), speed) == "1";
}

PlotInputs ztGraphControl::plotInputs() {
    PlotInputs in;
    for (int c = 1; c <= kChannelCount; ++c) {
        const auto ch = static_cast<std::size_t>(c);
        in.inUse[ch] = sheets_.channelIsSet(c);
        in.directValue[ch] = state_.directValue[ch];
        if (isAnalogChannel(c)) in.signedItem[ch] = in.inUse[ch] && itemFlag(c, kAttrSign);
    }
    host_.common().GetModelText(in.modelText);
    in.triggerText = host_.text(msg::kTriggerMark);
    return in;
}

ConversionTable ztGraphControl::conversionTable() {
    return buildConversionTable(state_.chSetting, state_.sampData, plotInputs());
}

bool ztGraphControl::graphShown() const {
    return chart_.held() && chart_.timeBase->pointCount() > 0;
}

void ztGraphControl::prepareDisplayForRun() {
    if (!chart_.held()) return;
    const PlotInputs in = plotInputs();
    const int16_t speed = state_.sampSetting.intSamplingSpeed;
    for (int c = 1; c <= kChannelCount; ++c) {
        const auto ch = static_cast<std::size_t>(c);
        if (!in.inUse[ch]) continue;
        const int32_t item = state_.chSetting[ch].lngSamplingItem;
        const std::string fullScale =
            sheets_.itemAttribute(item, kAttrFullScale, static_cast<int16_t>(c), speed);
        const double fs = text::val(fullScale);
        state_.graphInfo.udtVertScale[ch] = defaultVertScale(c, static_cast<int32_t>(fs));
    }
    resetHorzScale(state_.graphInfo.udtHorzScale, state_.sampSetting);
    display_.rebuildHorzScaleList();
    clearDisplayedGraph(chart_, state_);
    display_.redrawVertScales();
    display_.configureScrollBar();
    display_.resetForRun();
}

void ztGraphControl::showGraph() {
    if (!chart_.held()) return;
    const PlotInputs in = plotInputs();
    display_.redrawVertScales();
    applyTimeAxis(chart_, state_.graphInfo.udtHorzScale);
    drawGraph(chart_, state_, in, 0, kDisplayedGraph);
    display_.configureScrollBar();
}

}  // namespace zt
