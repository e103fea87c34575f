// The new-graph entry: a finished sampling result in slot 0 is stamped and, when it is a
// real result (no trigger set, or the trigger occurred), pushed into the five-deep history.
#pragma once

#include <string>

#include "core/graph_state.h"

namespace zt {

// What the entry did, so the caller can refresh the history display.
enum class NewGraphOutcome {
    NoChannels,    // nothing in use: only slot 0's stamp changed
    Entered,       // the result is history slot 1; older graphs moved down, the oldest dropped
    NotTriggered,  // a trigger was set and never occurred: history unchanged, no selection
};

// `stamp` is the date and time text in the user's locale; `channelsInUse` the channel count.
NewGraphOutcome enterNewGraph(GraphState& state, const std::string& stamp, int channelsInUse);

}  // namespace zt
