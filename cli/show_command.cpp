#include <iomanip>

#include "cli/commands.h"
#include "cli/surface_printer.h"
#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

namespace {

// A typical capture set up the way a person does it on the sheets: frequency, current and DC
// bus voltage of the drive on station 01 on channels 1 to 3, its run and fault signals on
// channels 5 and 6, triggered on channel 1 rising, at 20 % of the sampling time.
void configureTypicalCapture(ztGraphControl& control, sim::SimCommonLibrary& library) {
    SYS_INFO sysInfo = library.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    control.SetSysInfo(1, sysInfo, parameter);

    GraphSurface& s = control.surface();
    ui::SpreadSheet& ch = s.sprChannel;
    const char* items[] = {"*Output frequency", "*Output current", "DC link bus voltage"};
    for (int c = 1; c <= 3; ++c) {
        ch.chooseListItem(c, 2, "01");
        ch.chooseListItem(c, 3, items[c - 1]);
    }
    ch.chooseListItem(5, 2, "01");
    ch.chooseListItem(5, 3, "*RUN");
    ch.chooseListItem(6, 2, "01");
    ch.chooseListItem(6, 3, "*Fault");

    s.tabSpread.select(2);
    ui::SpreadSheet& trig = s.sprTrigger;
    trig.chooseListItem(1, 1, "Inside");
    trig.chooseListItem(1, 2, "CH01");
    trig.chooseListItem(1, 3, "Rise");
    trig.typeIntoCell(1, 5, "20");
    trig.pressKey(ui::kKeyEnter);
    trig.leaveSheet();
    s.tabSpread.select(1);
}

}  // namespace

int runShow(const Args& args, std::ostream& out, std::ostream& err) {
    const bool configured = args.size() == 1 && args[0] == "--configured";
    if (!args.empty() && !configured) {
        err << "usage: ztgraph show [--configured]\n"
               "  --configured  set up a typical capture on the sheets and print them\n";
        return args[0] == "--help" ? 0 : 2;
    }
    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    if (configured) configureTypicalCapture(control, library);
    printControl(control, out);
    if (configured) printSettingSheets(control, out);
    return 0;
}

}  // namespace zt::cli
