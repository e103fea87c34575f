// Puts a run state's view onto the surface: the one place where run states touch controls.
#pragma once

#include "core/graph_surface.h"
#include "run/run_hooks.h"
#include "run/run_states.h"

namespace zt {

void applyRunStateView(GraphSurface& s, const RunStateView& view, const RunHooks& hooks);

}  // namespace zt
