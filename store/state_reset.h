// The reset of the whole graph state that precedes every import and project load: comments,
// samples, channel settings, scaling data, display state and sampling settings all become zero.
#pragma once

#include "core/graph_state.h"

namespace zt {

void resetWholeState(GraphState& state);

}  // namespace zt
