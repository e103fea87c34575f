// Everything the control remembers, in the records it is kept in. The control owns exactly
// one GraphState; the subsystems read and change it through the operations that own each part.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/graph_history.h"
#include "core/graph_info.h"
#include "core/item_tables.h"
#include "core/samp_data.h"
#include "core/settings_model.h"
#include "core/two_channel_memory.h"
#include "platform/host_records.h"
#include "platform/zt_common.h"

namespace zt {

// Help context id of the component.
inline constexpr int32_t kHelpContextId = 1400976;
// Smallest width and height of the control, twips.
inline constexpr float kMinControlSize = 7500;

struct GraphState {
    // Host set-up.
    StationTable stations{};         // stations 0 to 31
    INIFILE_ITEM iniFileItem{};      // settings-file record
    std::vector<MSG_ITEM> msgItems;  // host message list, kept as given
    int16_t selectedNode = 0;        // station the host works on

    // Settings.
    SAMPSETTING sampSetting;
    ChannelSettings chSetting{};
    // Item lists of each channel and what the two-channel items took over.
    ItemTables tableItem{};
    TwoChannelMemory twoChannel{};
    // Set while a graph file is read: item lookups then keep unknown items.
    bool loadingGraphFile = false;

    // Run control.
    int16_t runState = 0;
    int16_t statusU = 0;
    bool startErr = false;
    int32_t replyPhase = 0;
    GRAPH_REQUEST request{};
    // Per channel 1 to 8: the station's values are taken without conversion.
    std::array<bool, kChannelCount + 1> directValue{};
    // 0 untriggered, 1 pre-trigger, 2 waiting for the trigger, 3 triggered.
    int16_t triggerPhase = 0;

    // Data.
    ChannelData sampData;
    GraphHistory history;
    GRAPH_VERSION_INFO version;

    // Display.
    GRAPHINFO graphInfo;
    // Names of the built-in two-channel position items.
    std::array<std::string, 3> twoChannelItemNames;

    int32_t helpContextId = kHelpContextId;

    // Set once by Terminate: from then on no member, handler or hook changes anything.
    bool terminated = false;
};

}  // namespace zt
