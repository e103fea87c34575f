// The run-state machine: seven states, the events that move between them, and what each
// state shows on the surface as a plain record (the view) that one function applies.
#pragma once

#include <cstdint>

namespace zt {

enum RunState : int16_t {
    OnlineNoChannel = 0,
    OnlineReady = 1,
    OnlineGraph = 2,
    OfflineNoChannel = 3,
    OfflineReady = 4,
    OfflineGraph = 5,
    Sampling = 6,
};

enum RunEvent : int16_t {
    LineOffline = 0,
    LineOnline = 1,
    ChannelSet = 2,
    DataDeleted = 3,
    GraphLoaded = 4,
    RunStarted = 5,
    RunStopped = 6,
    ChannelsCleared = 7,
    CommandSucceeded = 8,
    ProjectLoaded = 10,
    GraphReset = 11,
};

// What "recount" needs: finished graphs held and channels in use.
struct RecountFacts {
    int32_t graphCount = 0;
    int channelCount = 0;
};

// New state for an event; unlisted pairs keep the old state, a stored state outside 0 to 6
// becomes 0 first.
int16_t nextRunState(int16_t state, int16_t event, const RecountFacts& facts);

// The inputs the view reads besides the state.
struct RunViewInputs {
    bool cursorChecked = false;   // chkCursor is ticked
    bool needsScrolling = false;  // graph has points and spans more than ten divisions
    int16_t selectedChannel = 0;  // channel of the vertical scale, 0 none
    int32_t graphCount = 0;       // finished graphs held
};

enum class StatusLabelEffect : uint8_t { Unchanged, Hidden };

struct RunStateView {
    bool startEnabled = false;
    bool stopEnabled = false;
    bool clearEnabled = false;
    bool sheetsLocked = false;
    bool scaleOptionsEnabled = false;
    bool cursorCheckEnabled = false;
    bool cursorOptionsEnabled = false;
    bool horzScaleEnabled = false;
    bool scrollBarEnabled = false;
    bool vertScaleEnabled = false;
    bool zeroEnabled = false;
    // History options and overwrite boxes: elements below this count enabled, the rest off.
    int32_t historyEnabledCount = 0;
    bool historyCleared = false;        // options and boxes cleared
    bool historyLabelsEmptied = false;  // lblHistValue emptied
    bool commentEnabled = false;
    int32_t commentBackColor = 0;
    bool optimizeEnabled = false;
    StatusLabelEffect statusLabel = StatusLabelEffect::Unchanged;
    int16_t statusU = 0;
    bool refreshHistory = false;  // history display refreshed after the controls

    friend bool operator==(const RunStateView&, const RunStateView&) = default;
};

RunStateView runStateView(int16_t state, const RunViewInputs& in);

}  // namespace zt
