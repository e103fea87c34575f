#include "store/state_reset.h"

#include <algorithm>

namespace zt {

void resetWholeState(GraphState& state) {
    for (auto& comment : state.history.strComments)
        comment.clear();
    for (auto& slot : state.history.udtGraphResultInfo)
        slot.udtSample.assign(kGraphRecords, SampleRecord{});
    for (auto& channel : state.chSetting)
        channel = CHSETTING{0, 0, 0, 0, 0};
    for (auto& data : state.sampData) {
        data.sngSamplingData.assign(kGraphRecords, 0.0);
        data.sngSamplingTimeByInv.assign(kGraphRecords, 0.0);
        data.sngUnit = 0;
        data.sngBaseValue = 0;
        data.intDecPoint = 0;
    }
    state.graphInfo = GRAPHINFO{};
    state.sampSetting = SAMPSETTING{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    state.version = GRAPH_VERSION_INFO{"", 0};
}

}  // namespace zt
