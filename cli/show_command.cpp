#include <iomanip>

#include "cli/capture_setup.h"
#include "cli/commands.h"
#include "cli/surface_printer.h"
#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

int runShow(const Args& args, std::ostream& out, std::ostream& err) {
    const bool configured = args.size() == 1 && args[0] == "--configured";
    if (!args.empty() && !configured) {
        err << "usage: ztgraph show [--configured]\n"
               "  --configured  set up a typical capture on the sheets and print them\n";
        return args[0] == "--help" ? 0 : 2;
    }
    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    if (configured) {
        connectToLink(control, library);
        configureCapture(control, CaptureScenario::Typical);
    }
    printControl(control, out);
    if (configured) printSettingSheets(control, out);
    return 0;
}

}  // namespace zt::cli
