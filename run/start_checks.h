// The checks made when the user starts sampling: trigger settings, sampling settings, sampling
// items and the channel order. Each failure shows its message and answers false; nothing is
// changed either way.
#pragma once

#include "core/graph_state.h"
#include "core/host_services.h"
#include "run/run_hooks.h"

namespace zt {

struct StartCheckContext {
    const GraphState& state;
    HostServices& host;
    const RunHooks& hooks;
};

bool checkTriggerSetting(const StartCheckContext& ctx);
// Interval and time are both reported when both are wrong.
bool checkSamplingSetting(const StartCheckContext& ctx);
bool checkSamplingItems(const StartCheckContext& ctx);
bool checkChannelOrder(const StartCheckContext& ctx);

// All four in order; the first that fails ends the sequence.
bool runStartChecks(const StartCheckContext& ctx);

// Trigger position: 10, 20, ... 90.
bool triggerPositionValid(float position);

}  // namespace zt
