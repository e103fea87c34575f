#include "run/run_control.h"

#include <algorithm>

#include "core/comm_error_text.h"
#include "run/graph_request.h"
#include "run/run_state_apply.h"
#include "run/start_checks.h"

namespace zt {

RunControl::RunControl(GraphState& state, GraphSurface& surface, HostServices& host,
                       CommandSink raise)
    : state_(state), surface_(surface), host_(host), raise_(std::move(raise)) {}

int16_t RunControl::channelCount() const {
    return hooks_.channelCount ? hooks_.channelCount() : int16_t{0};
}

void RunControl::changeRunState(int16_t event) {
    const RecountFacts facts{state_.graphInfo.udtHistoryState.lngGraphTotal, channelCount()};
    state_.runState = nextRunState(state_.runState, event, facts);
    applyRunState();
}

void RunControl::applyRunState() {
    RunViewInputs in;
    in.cursorChecked = surface_.chkCursor.value() == ui::kChecked;
    in.needsScrolling = hooks_.graphNeedsScrolling && hooks_.graphNeedsScrolling();
    in.selectedChannel = state_.graphInfo.intChNumber;
    in.graphCount = state_.graphInfo.udtHistoryState.lngGraphTotal;
    const RunStateView view = runStateView(state_.runState, in);
    applyRunStateView(surface_, view, hooks_);
    state_.statusU = view.statusU;
}

bool RunControl::stationsReady() {
    ztCommon& common = host_.common();
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const CHSETTING& c = state_.chSetting[static_cast<std::size_t>(ch)];
        if (c.lngTargetNo == kNoStation || c.lngSamplingItem == kNoneItem) continue;
        const auto station = static_cast<int16_t>(c.lngTargetNo);
        STATION_STATE st;
        STATION_COMM comm;
        int32_t value = 0;
        common.GetStationState(station, st, value);
        common.GetStationComm(station, comm, value);
        if (st.lngLinkState != 1 || comm.lngErrorCode != 0) {
            showComErrDlg(host_, c.lngTargetNo, comm.lngErrorCode);
            return false;
        }
    }
    return true;
}

void RunControl::cmdStart_Click() {
    const int16_t rs = state_.runState;
    if (rs != OnlineReady && rs != OnlineGraph && rs != OfflineReady && rs != OfflineGraph) return;
    state_.startErr = false;
    if (!stationsReady()) return;

    const int16_t count = channelCount();
    if (count < 1 || count > kChannelCount) {
        surface_.cmdStart.Enabled = false;
        host_.notify(msg::kAllChannelsNotSet);
        return;
    }
    if (!runStartChecks({state_, host_, hooks_})) return;

    // A new graph: scales, series, history selection and cursors start afresh.
    surface_.optScale[1].setValue(true);
    callHook(hooks_.prepareDisplayForRun);
    surface_.optHistory[0].setValue(true);
    for (auto& box : surface_.chkOverWrite)
        if (box.value() != ui::kUnchecked) box.setValue(ui::kUnchecked);
    if (surface_.chkCursor.value() != ui::kUnchecked) surface_.chkCursor.setValue(ui::kUnchecked);

    state_.replyPhase = 10;
    state_.statusU = 1;
    clearWholeGraph_ = true;
    surface_.registry.mousePointer = ui::MousePointer::Hourglass;
    raise_(kCommandStart);
    callHook(hooks_.redrawVertScaleLabels);
    if (!state_.startErr) changeRunState(RunStarted);
    surface_.registry.mousePointer = ui::MousePointer::Default;
}

void RunControl::endRun(int16_t event) {
    state_.statusU = 0;
    raise_(kCommandStop);
    callHook(hooks_.enterNewGraph);
    changeRunState(event);
}

void RunControl::cmdStop_Click() {
    endRun(RunStopped);
}

void RunControl::cmdClear_Click() {
    switch (state_.runState) {
        case OnlineNoChannel:
        case OnlineReady:
        case OfflineNoChannel:
        case OfflineReady:
            if (hooks_.initializeSettings && hooks_.initializeSettings())
                changeRunState(ChannelsCleared);
            break;
        case OnlineGraph:
        case OfflineGraph:
            if (host_.showMessage(host_.text(msg::kDataDeleted), kStyleConfirm) != kResultOk) break;
            callHook(hooks_.clearAllGraphs);
            state_.graphInfo.udtHistoryState = HISTORYSTATE{};
            changeRunState(DataDeleted);
            break;
        default:
            break;
    }
}

void RunControl::ChgLineStatus(int16_t intstatus) {
    if (intstatus == 1) {
        changeRunState(LineOnline);
        return;
    }
    if (intstatus != 0) return;
    const int16_t rs = state_.runState;
    if (rs == OnlineNoChannel || rs == OnlineReady || rs == OnlineGraph) {
        state_.statusU = 0;
        raise_(kCommandStop);
        changeRunState(LineOffline);
    } else if (rs == Sampling) {
        endRun(LineOffline);
    }
}

void RunControl::EventResCommand(int32_t lngResult) {
    if (lngResult == 1) changeRunState(CommandSucceeded);
}

GRAPH_REQUEST RunControl::GetGraphRequest() {
    ChannelsSet set{};
    for (int c = 1; c <= kChannelCount; ++c)
        set[static_cast<std::size_t>(c)] = hooks_.channelIsSet && hooks_.channelIsSet(c);
    buildGraphRequest(state_.request, state_.sampSetting, state_.chSetting, set);
    return state_.request;
}

void RunControl::SetGraphRequest(GRAPH_REQUEST& udtGraphRequest) {
    takeGraphRequest(state_, host_.common(), udtGraphRequest);
}

void RunControl::beginSweep(bool clearAll) {
    const SAMPSETTING& s = state_.sampSetting;
    SweepSetup setup;
    setup.triggerType = s.intTriggerType;
    setup.triggerBoot = s.intTriggerBoot;
    setup.triggerLevel = s.dblTriggerLevel;
    setup.samplingTime = s.dblSamplingTime * 10.0;
    setup.preTriggerTime = preTriggerTime(s.sngTriggerPosition, s.dblSamplingTime);
    const int c = s.intTriggerTarget;
    if (s.intTriggerType == 1 && c >= 1 && c <= kChannelCount) {
        setup.triggerChannel = c;
        setup.triggerChannelDigital = state_.chSetting[static_cast<std::size_t>(c)].intAD != 0;
        if (!setup.triggerChannelDigital && isAnalogChannel(c)) {
            const PlotInputs inputs = hooks_.plotInputs ? hooks_.plotInputs() : PlotInputs{};
            setup.conversion = buildConversionTable(state_.chSetting, state_.sampData,
                                                    inputs)[static_cast<std::size_t>(c)];
        }
    }
    if (s.intTriggerType == 2) {
        for (int ch = 1; ch <= kAnalogChannels; ++ch) {
            const CHSETTING& cs = state_.chSetting[static_cast<std::size_t>(ch)];
            setup.zeroOnFault[static_cast<std::size_t>(ch - 1)] =
                cs.lngTargetNo == s.intTriggerTarget && hooks_.itemZeroedOnFault &&
                hooks_.itemZeroedOnFault(ch);
        }
    }
    capture_.begin(setup, state_.history.udtGraphResultInfo[0].udtSample, clearAll);
}

void RunControl::showTriggerPhase(int16_t before) {
    const int16_t now = capture_.phase();
    state_.triggerPhase = now;
    if (now != kUntriggered) state_.sampSetting.lngTriggerPoint = capture_.triggerPoint();
    if (now == before) return;
    if (now == kPreTrigger) {
        callHook(hooks_.showStatusLabel, host_.text(msg::kPreTriggerData));
    } else if (now == kWaitingForTrigger) {
        callHook(hooks_.showStatusLabel, host_.text(msg::kWaitingForTrigger));
    } else {
        callHook(hooks_.hideStatusLabel);
    }
}

void RunControl::SetSamplingData(GRAPH_RESULT_INFO& udtGraphResultInfo, int32_t lngErrCode) {
    // Replies only belong to a run in progress; a late one after the run ended is dropped.
    if (state_.runState != Sampling) return;
    if (lngErrCode != 0) {
        host_.showMessage(samplingErrorText(host_, lngErrCode), kStyleNotice);
        endRun(RunStopped);
        return;
    }
    std::vector<SampleRecord>& records = udtGraphResultInfo.udtSample;
    std::size_t offset = 0;
    for (;;) {
        int16_t before = state_.triggerPhase;
        if (state_.replyPhase == 10) {
            beginSweep(clearWholeGraph_);
            clearWholeGraph_ = false;
            before = -1;
        }
        const FeedResult fed =
            capture_.feed(std::span<const SampleRecord>(records).subspan(offset));
        state_.replyPhase = 0;
        offset += fed.consumed;
        showTriggerPhase(before);
        if (fed.drawLast > fed.drawFirst)
            callHook(hooks_.drawNewRecords, fed.drawFirst, fed.drawLast);
        if (!fed.complete) break;
        if (state_.sampSetting.intSamplingMode != 0) {
            callHook(hooks_.enterNewGraph);
            state_.replyPhase = 10;
            continue;
        }
        endRun(RunStopped);
        break;
    }
    records.erase(records.begin(), records.begin() + static_cast<std::ptrdiff_t>(offset));
}

}  // namespace zt
