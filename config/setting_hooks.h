// What the setting sheets ask of the subsystems around them: the run-state machine, the scale
// panel, the plot and the cursors. Each hook does nothing until its owner connects it.
#pragma once

#include <cstdint>
#include <functional>

namespace zt {

struct SettingHooks {
    // Sends a run event to the run-state machine.
    std::function<void(int16_t event)> runEvent = [](int16_t) {};
    // The channel the scale panel shows changed (1 to 8, 0 for none).
    std::function<void(int channel)> currentChannelChanged = [](int) {};
    // The vertical scale display of the current channel and the graph must be redrawn.
    std::function<void()> refreshScaleDisplay = [] {};
    std::function<void()> redrawGraph = [] {};
    // The horizontal scale list must be rebuilt for a new sampling time.
    std::function<void()> rebuildTimeScaleList = [] {};
    // Initialize cleared the data, scales and cursors: plot, cursor display and readouts
    // follow (cursor display switched on and then off).
    std::function<void()> resetDisplay = [] {};
};

// Run events the sheets send.
inline constexpr int16_t kEventChannelSet = 2;
inline constexpr int16_t kEventChannelsCleared = 7;

}  // namespace zt
