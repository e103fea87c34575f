#include <iomanip>

#include "cli/commands.h"
#include "cli/surface_printer.h"
#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

int runShow(const Args& args, std::ostream& out, std::ostream& err) {
    if (!args.empty()) {
        err << "usage: ztgraph show\n";
        return args[0] == "--help" ? 0 : 2;
    }
    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    printControl(control, out);
    return 0;
}

}  // namespace zt::cli
