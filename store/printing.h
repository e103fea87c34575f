// Printing: the control takes the host's printer object, checks that it is a printer and
// releases it again. Graphs are not printed by this control.
#pragma once

#include "platform/graph_host_interface.h"

namespace zt {

// Throws AutomationError with the type-mismatch status when the object is not a printer
// (or is missing).
void printOut(PrinterObject* printer);

}  // namespace zt
