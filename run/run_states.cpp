#include "run/run_states.h"

#include "platform/ui/control_base.h"

namespace zt {

namespace {

constexpr int16_t kKeep = -1;
constexpr int16_t kRecount = -2;
constexpr int kEvents = 12;

// Transition table: [state][event] -> new state, kKeep or kRecount.
constexpr int16_t kTable[7][kEvents] = {
    // events: 0   1      2      3      4      5      6      7      8      9      10       11
    {3, kKeep, 1, kKeep, 2, kKeep, kKeep, kKeep, kKeep, kKeep, kKeep, kKeep},
    {4, kKeep, kKeep, kKeep, 2, 6, kKeep, 0, 2, kKeep, kKeep, 0},
    {5, kKeep, kKeep, 1, kKeep, 6, kKeep, kKeep, kKeep, kKeep, kKeep, 0},
    {kKeep, 0, 4, kKeep, 5, kKeep, kKeep, kKeep, kKeep, kKeep, kRecount, kKeep},
    {kKeep, 1, kKeep, kKeep, 5, 6, kKeep, 3, 2, kKeep, kRecount, 3},
    {kKeep, 2, kKeep, 4, kKeep, kKeep, kKeep, kKeep, kKeep, kKeep, kRecount, 3},
    {4, 1, kKeep, kKeep, kKeep, kKeep, 2, kKeep, 2, kKeep, kKeep, kKeep},
};

}  // namespace

int16_t nextRunState(int16_t state, int16_t event, const RecountFacts& facts) {
    if (state < 0 || state > 6) state = 0;
    if (event < 0 || event >= kEvents) return state;
    const int16_t next = kTable[state][event];
    if (next == kKeep) return state;
    if (next == kRecount) {
        if (facts.graphCount >= 1) return OfflineGraph;
        return facts.channelCount < 1 ? OfflineNoChannel : OfflineReady;
    }
    return next;
}

RunStateView runStateView(int16_t state, const RunViewInputs& in) {
    RunStateView v;
    const bool analogSelected = in.selectedChannel >= 1 && in.selectedChannel <= 4;
    const bool channelSelected = in.selectedChannel >= 1 && in.selectedChannel <= 8;
    v.commentBackColor = ui::kColorButtonFace;
    switch (state) {
        case OnlineReady:
        case OfflineReady:
            v.startEnabled = state == OnlineReady;
            v.scaleOptionsEnabled = true;
            v.vertScaleEnabled = analogSelected;
            v.zeroEnabled = channelSelected;
            [[fallthrough]];
        case OnlineNoChannel:
        case OfflineNoChannel:
            v.clearEnabled = true;
            v.historyCleared = true;
            v.historyLabelsEmptied = true;
            break;
        case OnlineGraph:
        case OfflineGraph:
            v.startEnabled = state == OnlineGraph;
            v.clearEnabled = true;
            v.sheetsLocked = true;
            v.scaleOptionsEnabled = true;
            v.cursorCheckEnabled = true;
            v.cursorOptionsEnabled = in.cursorChecked;
            v.horzScaleEnabled = true;
            v.scrollBarEnabled = in.needsScrolling;
            v.vertScaleEnabled = analogSelected;
            v.zeroEnabled = channelSelected;
            v.historyEnabledCount = in.graphCount;
            v.commentEnabled = true;
            v.commentBackColor = ui::kColorWindow;
            v.optimizeEnabled = true;
            v.statusLabel = StatusLabelEffect::Hidden;
            v.refreshHistory = true;
            break;
        case Sampling:
            v.stopEnabled = true;
            v.sheetsLocked = true;
            v.statusU = 1;
            break;
        default:
            break;
    }
    return v;
}

}  // namespace zt
