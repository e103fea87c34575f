// What the run control asks of the other subsystems (setting sheets, plotting, scales,
// cursors, history). Every hook defaults to doing nothing or to the answer stated, so the run
// control works alone; the control object wires the real operations in.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/plot_inputs.h"

namespace zt {

struct RunHooks {
    // Setting sheets: lock every cell, or unlock the editable ones.
    std::function<void(bool locked)> lockSheets;
    // The trigger state label: shown with a text, or hidden.
    std::function<void(const std::string& text)> showStatusLabel;
    std::function<void()> hideStatusLabel;
    // History display refresh (after the controls of the graph states are set).
    std::function<void()> refreshHistoryDisplay;
    // Before a new run: reset vertical and horizontal scales, axes and plot series, clear the
    // history display and the cursor readouts.
    std::function<void()> prepareDisplayForRun;
    // Redraw the vertical-scale labels of the selected channel.
    std::function<void()> redrawVertScaleLabels;
    // Draw records [first, last) of history slot 0, just added to the graph.
    std::function<void(int first, int last)> drawNewRecords;
    // A finished graph in slot 0 enters the history.
    std::function<void()> enterNewGraph;
    // Clear in a state without a graph: reset the settings after the user's confirmation;
    // true when they were reset. Defaults to false (nothing to reset).
    std::function<bool()> initializeSettings;
    // Clear with a graph present, after the user confirmed: empty every history slot.
    std::function<void()> clearAllGraphs;

    // Channel rules of the channel sheet: the channel has a station and an item; the number of
    // set channels; the ascending-order check, which shows its own message when it fails.
    std::function<bool(int channel)> channelIsSet;
    std::function<int16_t()> channelCount;
    std::function<bool()> checkChannelOrder;

    // Item attributes of a channel's item: signed values; zeroed on a fault of its station.
    std::function<bool(int channel)> itemSigned;
    std::function<bool(int channel)> itemZeroedOnFault;
    // Start check: the channel's item is offered for the sampling speed (0 monitor, 1 high
    // speed). Defaults to true.
    std::function<bool(int channel, int16_t speed)> samplingItemOffered;
    // What the conversion of raw counts needs to know of the configuration (channels in use,
    // signed items, model); defaults to nothing in use.
    std::function<PlotInputs()> plotInputs;
    // The horizontal scroll bar is needed: the graph holds points and the sampling time
    // exceeds ten divisions. Defaults to false.
    std::function<bool()> graphNeedsScrolling;
};

// Calls a hook when it is set.
template <typename F, typename... A>
void callHook(const F& hook, A&&... args) {
    if (hook) hook(std::forward<A>(args)...);
}

}  // namespace zt
