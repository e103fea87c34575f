// Prints the component as a person sees it: caption, size, run state, run buttons and sheet
// tabs.
#pragma once

#include <ostream>

#include "control/graph_control.h"

namespace zt::cli {

void printControl(ztGraphControl& control, std::ostream& out);
// The operation panel's three panels (Scale, Cursor, History): each control's caption, value
// and whether it is enabled.
void printOperationPanels(const ztGraphControl& control, std::ostream& out);
// The channel, trigger and sampling sheets as tables, and the high-speed item note when shown.
void printSettingSheets(const ztGraphControl& control, std::ostream& out);

}  // namespace zt::cli
