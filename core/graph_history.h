// The graphs the component holds: slot 0 is the newest result, slots 1 to 5 the history.
// Every slot always holds 10,000 sample records and a comment, which starts as the date and
// time the graph was finished.
#pragma once

#include <array>
#include <string>

#include "platform/host_records.h"

namespace zt {

inline constexpr int kHistorySlots = 6;

struct GRAPH_VERSION_INFO {
    std::string strMainVersion = "1.00";
    int32_t lngHistoryMax = 5;
};

struct GraphHistory {
    GraphHistory() {
        for (auto& slot : udtGraphResultInfo)
            slot.udtSample.resize(kGraphRecords);
    }
    std::array<GRAPH_RESULT_INFO, kHistorySlots> udtGraphResultInfo;
    std::array<std::string, kHistorySlots> strComments;
    int32_t lngGraphCount = 0;  // graphs entered since start-up (not saved)
};

}  // namespace zt
