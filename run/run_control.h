// Sampling run control: Start, Stop and Clear, the line status, the host's command answers,
// the request record exchange and the replies of a run, around the run-state machine.
#pragma once

#include <cstdint>
#include <functional>

#include "core/graph_state.h"
#include "core/graph_surface.h"
#include "core/host_services.h"
#include "run/run_hooks.h"
#include "run/run_states.h"
#include "run/sweep_capture.h"

namespace zt {

// Command codes of ReqCommand.
inline constexpr int32_t kCommandStart = 77;
inline constexpr int32_t kCommandStop = 78;

class RunControl {
  public:
    using CommandSink = std::function<void(int32_t command)>;

    RunControl(GraphState& state, GraphSurface& surface, HostServices& host, CommandSink raise);

    RunHooks& hooks() { return hooks_; }

    // The one state-change operation: looks the new state up and applies it.
    void changeRunState(int16_t event);
    // Puts the current state's view on the surface again.
    void applyRunState();
    // Locks or unlocks the setting sheets as the current state wants them, after code that
    // rewrote the sheets (a project load) outside a state change.
    void applySheetLocks();

    void cmdStart_Click();
    void cmdStop_Click();
    void cmdClear_Click();

    void ChgLineStatus(int16_t intstatus);
    void EventResCommand(int32_t lngResult);
    GRAPH_REQUEST GetGraphRequest();
    void SetGraphRequest(GRAPH_REQUEST& udtGraphRequest);
    void SetSamplingData(GRAPH_RESULT_INFO& udtGraphResultInfo, int32_t lngErrCode);

    // A run is in progress: from the start request until the control raises the stop
    // command, whatever the run state shows meanwhile.
    bool runInProgress() const;

  private:
    enum class RunPhase : uint8_t { Idle, Starting, Running };

    int16_t channelCount() const;
    bool terminated() const { return state_.terminated; }
    // Raises the stop command once; the run is over before the host hears of it.
    void raiseStop();
    bool stationsReady();
    void beginSweep(bool clearAll);
    void showTriggerPhase(int16_t before);
    void endRun(int16_t event);

    GraphState& state_;
    GraphSurface& surface_;
    HostServices& host_;
    CommandSink raise_;
    RunHooks hooks_;
    SweepCapture capture_;
    bool clearWholeGraph_ = true;
    RunPhase phase_ = RunPhase::Idle;
    // Commands being raised: the host's handler is running and may call back.
    int raisingStart_ = 0;
    int raisingStop_ = 0;
};

}  // namespace zt
