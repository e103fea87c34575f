#include "run/run_control.h"

#include <algorithm>

#include "core/comm_error_text.h"
#include "run/graph_request.h"
#include "run/run_state_apply.h"
#include "run/start_checks.h"

namespace zt {

namespace {

// Counts a command being raised for as long as the host's handler runs, exceptions included.
class Raising {
  public:
    explicit Raising(int& depth) : depth_(depth) { ++depth_; }
    ~Raising() { --depth_; }
    Raising(const Raising&) = delete;
    Raising& operator=(const Raising&) = delete;

  private:
    int& depth_;
};

}  // namespace

RunControl::RunControl(GraphState& state, GraphSurface& surface, HostServices& host,
                       CommandSink raise)
    : state_(state), surface_(surface), host_(host), raise_(std::move(raise)) {}

int16_t RunControl::channelCount() const {
    return hooks_.channelCount ? hooks_.channelCount() : int16_t{0};
}

bool RunControl::runInProgress() const {
    if (terminated()) return false;
    if (phase_ != RunPhase::Idle) return true;
    // A state set to Sampling from outside a start counts too, until its stop is raised.
    return state_.runState == Sampling && raisingStop_ == 0;
}

void RunControl::changeRunState(int16_t event) {
    if (terminated()) return;
    const RecountFacts facts{state_.graphInfo.udtHistoryState.lngGraphTotal, channelCount()};
    state_.runState = nextRunState(state_.runState, event, facts);
    applyRunState();
}

void RunControl::applyRunState() {
    if (terminated()) return;
    RunViewInputs in;
    in.cursorChecked = surface_.chkCursor.value() == ui::kChecked;
    in.needsScrolling = hooks_.graphNeedsScrolling && hooks_.graphNeedsScrolling();
    in.selectedChannel = state_.graphInfo.intChNumber;
    in.graphCount = state_.graphInfo.udtHistoryState.lngGraphTotal;
    const RunStateView view = runStateView(state_.runState, in);
    applyRunStateView(surface_, view, hooks_);
    state_.statusU = view.statusU;
}

void RunControl::applySheetLocks() {
    if (terminated() || !hooks_.lockSheets) return;
    hooks_.lockSheets(runStateView(state_.runState, RunViewInputs{}).sheetsLocked);
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
    // One run at a time: no start while a run is in progress or a command is being raised
    // (the host's handler pressing Start again).
    if (terminated() || phase_ != RunPhase::Idle || raisingStart_ > 0 || raisingStop_ > 0) return;
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
    phase_ = RunPhase::Starting;
    try {
        Raising raising(raisingStart_);
        raise_(kCommandStart);
    } catch (...) {
        // A handler that fails leaves no start half made.
        if (phase_ == RunPhase::Starting) phase_ = RunPhase::Idle;
        surface_.registry.mousePointer = ui::MousePointer::Default;
        throw;
    }
    if (terminated()) {
        surface_.registry.mousePointer = ui::MousePointer::Default;
        return;
    }
    callHook(hooks_.redrawVertScaleLabels);
    // The host may have ended the start inside its handler (Stop, line offline, a reply that
    // completed the run): then the run is over already and Sampling is not entered.
    if (phase_ == RunPhase::Starting) {
        if (state_.startErr) {
            phase_ = RunPhase::Idle;
        } else {
            phase_ = RunPhase::Running;
            changeRunState(RunStarted);
        }
    }
    surface_.registry.mousePointer = ui::MousePointer::Default;
}

void RunControl::raiseStop() {
    phase_ = RunPhase::Idle;
    state_.statusU = 0;
    Raising raising(raisingStop_);
    raise_(kCommandStop);
}

void RunControl::endRun(int16_t event) {
    // A start ended inside its own request sampled nothing: no graph enters the history.
    const bool sampled = phase_ != RunPhase::Starting;
    raiseStop();
    if (terminated()) return;
    if (sampled) callHook(hooks_.enterNewGraph);
    changeRunState(event);
}

void RunControl::cmdStop_Click() {
    // Stop ends the run in progress once; the host's stop handler pressing it again, or a
    // press after the run ended, does nothing.
    if (terminated() || raisingStop_ > 0 || !runInProgress()) return;
    endRun(RunStopped);
}

void RunControl::cmdClear_Click() {
    // Nothing is cleared under a run that is still sampling, whatever the state shows.
    if (terminated() || runInProgress()) return;
    switch (state_.runState) {
        case OnlineNoChannel:
        case OnlineReady:
        case OfflineNoChannel:
        case OfflineReady:
            // Resetting the settings ends with run event 7 of its own.
            callHook(hooks_.initializeSettings);
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
    if (terminated()) return;
    if (intstatus == 1) {
        changeRunState(LineOnline);
        return;
    }
    if (intstatus != 0) return;
    // Offline while the stop command is being raised: the host has been told already, only
    // the line state follows.
    if (raisingStop_ > 0) {
        changeRunState(LineOffline);
        return;
    }
    // A run in progress ends as a stop does, whichever state the host's answers left it in.
    if (runInProgress()) {
        endRun(LineOffline);
        return;
    }
    const int16_t rs = state_.runState;
    if (rs == OnlineNoChannel || rs == OnlineReady || rs == OnlineGraph) {
        raiseStop();
        changeRunState(LineOffline);
    }
}

void RunControl::EventResCommand(int32_t lngResult) {
    if (lngResult == 1) changeRunState(CommandSucceeded);
}

GRAPH_REQUEST RunControl::GetGraphRequest() {
    if (terminated()) return state_.request;
    ChannelsSet set{};
    for (int c = 1; c <= kChannelCount; ++c)
        set[static_cast<std::size_t>(c)] = hooks_.channelIsSet && hooks_.channelIsSet(c);
    buildGraphRequest(state_.request, state_.sampSetting, state_.chSetting, set);
    return state_.request;
}

void RunControl::SetGraphRequest(GRAPH_REQUEST& udtGraphRequest) {
    if (terminated()) return;
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
    // A reply belongs to the run in progress whatever the run state shows meanwhile (the host
    // may have answered a command, or the line may have come back, while it samples). Once
    // the control has raised the stop command the run is over and its graph is in the
    // history; a host may still have blocks in flight then. Such a late reply is ignored as a
    // whole: its records stay in the host's record untaken, an error code shows no message,
    // and no command or run event follows.
    if (terminated() || !runInProgress()) return;
    if (lngErrCode != 0) {
        host_.showMessage(samplingErrorText(host_, lngErrCode), kStyleNotice);
        if (terminated() || !runInProgress()) return;
        endRun(RunStopped);
        return;
    }
    std::vector<SampleRecord>& records = udtGraphResultInfo.udtSample;
    for (;;) {
        int16_t before = state_.triggerPhase;
        if (state_.replyPhase == 10) {
            beginSweep(clearWholeGraph_);
            clearWholeGraph_ = false;
            before = -1;
        }
        const FeedResult fed = capture_.feed(std::span<const SampleRecord>(records));
        state_.replyPhase = 0;
        // The taken records leave the host's record before anything is drawn or raised: once
        // the host's stop handler has run, the record is the host's alone again.
        const auto taken = static_cast<std::ptrdiff_t>(std::min(fed.consumed, records.size()));
        records.erase(records.begin(), records.begin() + taken);
        showTriggerPhase(before);
        if (fed.drawLast > fed.drawFirst)
            callHook(hooks_.drawNewRecords, fed.drawFirst, fed.drawLast);
        if (!fed.complete || terminated()) return;
        if (state_.sampSetting.intSamplingMode != 0) {
            callHook(hooks_.enterNewGraph);
            state_.replyPhase = 10;
            continue;
        }
        endRun(RunStopped);
        return;
    }
}

}  // namespace zt
