// The smallest host: make the control on the simulated common library, bring the link
// online, put the drive's output frequency on channel 1, start an untriggered capture and
// print the highest frequency it saw.
#include <algorithm>
#include <cstdio>

#include "config/sheet_rows.h"
#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

int main() {
    zt::sim::SimCommonLibrary library;
    zt::ztGraphControl control(library);
    zt::sim::SimHost host(
        [&control](int32_t id, zt::DispatchKind kind, std::vector<zt::DispatchValue>& args) {
            return zt::dispatch(control, id, kind, args);
        });
    control.advise(&host);
    host.runRecords = 100;  // the simulated drive starts, runs and stops within the capture

    // The host hands over its stations and goes online.
    zt::SYS_INFO stations = library.sim().link().sysInfo();
    zt::PARAMETER_INFO parameter;
    control.SetSysInfo(1, stations, parameter);
    control.ChgLineStatus(1);

    // The user picks station 01 and its output frequency on channel 1, then presses Start.
    zt::ui::SpreadSheet& sheet = control.surface().sprChannel;
    sheet.chooseListItem(1, zt::kRowStation, "01");
    sheet.chooseListItem(1, zt::kRowName, "*Output frequency");
    sheet.leaveSheet();
    control.surface().cmdStart.click();

    const int replies = host.run();
    const zt::GraphState& state = control.state();
    const auto& frequency = state.sampData[1].sngSamplingData;
    std::printf("%d replies, %d graph(s); output frequency up to %.2f Hz\n", replies,
                static_cast<int>(state.history.lngGraphCount),
                *std::max_element(frequency.begin(), frequency.end()));
    return state.history.lngGraphCount > 0 ? 0 : 1;
}
