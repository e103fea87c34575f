#include "control/graph_display.h"

#include "config/item_attribute.h"
#include "platform/text/numeric.h"
#include "platform/ui/control_base.h"
#include "run/run_states.h"

namespace zt {

GraphDisplay::GraphDisplay(GraphState& state, GraphSurface& surface, ChartRefs& chart,
                           SettingSheets& sheets, HostServices& host, const HostEnvironment& env,
                           std::function<PlotInputs()> plotInputs)
    : state_(state),
      s_(surface),
      chart_(chart),
      sheets_(sheets),
      host_(host),
      env_(env),
      plotInputs_(std::move(plotInputs)) {}

void GraphDisplay::connect() {
    s_.optScale[0].Click.connect([this] { optScaleClick(0); });
    s_.optScale[1].Click.connect([this] { optScaleClick(1); });
    s_.cboVertScale.Click.connect([this] { takeVertScaleEntry(); });
    s_.cboVertScale.LostFocus.connect([this] { takeVertScaleEntry(); });
    s_.cboVertScale.KeyPress.connect([this](int& key) {
        if (key == ui::kKeyEnter) takeVertScaleEntry();
    });
    s_.updZero.UpClick.connect([this] { zeroStep(true); });
    s_.updZero.DownClick.connect([this] { zeroStep(false); });
    s_.cboHorzScale.Click.connect([this] { takeHorzScaleEntry(); });
    s_.cboHorzScale.LostFocus.connect([this] { takeHorzScaleEntry(); });
    s_.cboHorzScale.KeyPress.connect([this](int& key) {
        if (key == ui::kKeyEnter) takeHorzScaleEntry();
    });
    s_.hsbGraph.Change.connect([this] { scrollChanged(); });
    s_.cmdOptVert.Click.connect([this] { optimizeVertScale(); });
    s_.chkCursor.Click.connect([this] { chkCursorClick(); });
    s_.optCursor[0].Click.connect([this] { optCursorClick(0); });
    s_.optCursor[1].Click.connect([this] { optCursorClick(1); });
    if (!alive()) return;
    chart_.root->MouseDown.connect(
        [this](int16_t b, int16_t sh, float x, float y) { mouseDown(b, sh, x, y); });
    chart_.root->MouseMove.connect(
        [this](int16_t b, int16_t sh, float x, float y) { mouseMove(b, sh, x, y); });
    chart_.root->MouseUp.connect(
        [this](int16_t b, int16_t sh, float x, float y) { mouseUp(b, sh, x, y); });
}

bool GraphDisplay::settingsOrGraph() const {
    const int16_t rs = state_.runState;
    return rs == OnlineReady || rs == OnlineGraph || rs == OfflineReady || rs == OfflineGraph;
}

bool GraphDisplay::graphShown() const {
    return state_.runState == OnlineGraph || state_.runState == OfflineGraph;
}

bool GraphDisplay::channelInUse(int channel) const {
    return sheets_.channelIsSet(channel);
}

int GraphDisplay::firstChannelInUse() const {
    for (int c = 1; c <= kChannelCount; ++c)
        if (channelInUse(c)) return c;
    return 0;
}

std::string GraphDisplay::itemText(int channel, int16_t column) {
    if (channel < 1 || channel > kChannelCount) return {};
    const int32_t item = state_.chSetting[static_cast<size_t>(channel)].lngSamplingItem;
    return sheets_.itemAttribute(item, column, static_cast<int16_t>(channel),
                                 state_.sampSetting.intSamplingSpeed);
}

bool GraphDisplay::itemSigned(int channel) {
    return itemText(channel, kAttrSign) == "1";
}

ChannelTexts GraphDisplay::unitTexts() {
    ChannelTexts units;
    for (int c = 1; c <= kAnalogChannels; ++c)
        if (channelInUse(c)) units[static_cast<size_t>(c)] = itemText(c, kAttrUnit);
    return units;
}

}  // namespace zt
