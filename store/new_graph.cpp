#include "store/new_graph.h"

#include <algorithm>
#include <utility>

namespace zt {

NewGraphOutcome enterNewGraph(GraphState& state, const std::string& stamp, int channelsInUse) {
    GraphHistory& history = state.history;
    history.strComments[0] = stamp;
    if (channelsInUse <= 0) return NewGraphOutcome::NoChannels;

    HISTORYSTATE& shown = state.graphInfo.udtHistoryState;
    const bool real = state.sampSetting.intTriggerType == 0 || state.triggerPhase == 3;
    if (!real) {
        shown.lngCurrentGraph = 0;
        return NewGraphOutcome::NotTriggered;
    }

    // Slot i + 1 takes slot i for i = max-1 .. 0, newest last so nothing is read after it is
    // overwritten; the old last slot is dropped. Slot 0 keeps its copy.
    const int max = std::clamp<int>(state.version.lngHistoryMax, 0, kHistorySlots - 1);
    for (int i = max - 1; i >= 0; --i) {
        history.udtGraphResultInfo[i + 1] = history.udtGraphResultInfo[i];
        history.strComments[i + 1] = history.strComments[i];
        history.strTimeStamps[i + 1] = history.strTimeStamps[i];
    }
    if (shown.lngGraphTotal < max) ++shown.lngGraphTotal;
    ++history.lngGraphCount;
    return NewGraphOutcome::Entered;
}

}  // namespace zt
