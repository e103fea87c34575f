// What a person does with a captured graph, done on the control's surface as a person would:
// type a time scale and press Enter, move the scroll bar, press "Optimize VertScale", choose
// "One", click a channel and type its scale, switch the cursors on and drag their handles with
// the mouse; and the host's colour scheme.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "control/graph_control.h"

namespace zt::cli {

struct DisplayActions {
    std::optional<std::string> horzScale;  // ms per division, typed
    std::optional<int> scroll;             // scroll position in divisions
    bool optimize = false;
    std::optional<int> scaleChannel;  // with scaleText: the channel whose scale is typed
    std::string scaleText;
    int cursorKind = 0;  // 0 none, 1 time cursors, 2 value cursors
    double cursorA = 0;  // fractions 0 to 1 of the field
    double cursorB = 1;
    std::optional<int32_t> scheme;  // 0 dark, 1 light
};

// Reads one option (and its value) into `actions`; nullopt when `option` is not one of them,
// else an error text (empty when it was understood).
std::optional<std::string> parseDisplayOption(const std::string& option, const std::string* value,
                                              DisplayActions& actions);
// True for an option that takes no value.
bool isDisplayFlag(const std::string& option);

// Performs the actions in this order: time scale, scroll, optimiser, channel scale, cursors,
// colour scheme. An error text when a control a person needs is not usable.
std::optional<std::string> performDisplayActions(ztGraphControl& control,
                                                 const DisplayActions& actions);

// The channel sheet's readout rows of the channels in use and the cursor panel's three times,
// as the surface shows them; nothing while the cursors are off.
void printCursorReadouts(ztGraphControl& control, std::ostream& out);

}  // namespace zt::cli
