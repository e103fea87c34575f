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

    // Slot i + 1 takes slot i: the older slots move down by swapping their storage, the old
    // last slot ends up in slot 1 and is overwritten with a copy of slot 0, which stays as it
    // is. Only one graph is copied.
    const int max = std::clamp<int>(state.version.lngHistoryMax, 0, kHistorySlots - 1);
    if (max >= 1) {
        for (int i = max - 1; i >= 1; --i) {
            std::swap(history.udtGraphResultInfo[i + 1], history.udtGraphResultInfo[i]);
            std::swap(history.strComments[i + 1], history.strComments[i]);
        }
        history.udtGraphResultInfo[1] = history.udtGraphResultInfo[0];
        history.strComments[1] = history.strComments[0];
    }
    if (shown.lngGraphTotal < max) ++shown.lngGraphTotal;
    ++history.lngGraphCount;
    return NewGraphOutcome::Entered;
}

}  // namespace zt
