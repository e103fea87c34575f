// A graph captured the way a person makes one: the simulated host hands over its stations and
// goes online, the typical capture is chosen on the sheets (frequency, current and DC bus on
// channels 1 to 3, run and fault on 5 and 6; 600 samples of 100 ms), Start is pressed and the
// host delivers the drive's samples until the capture completes.
#pragma once

#include <string>
#include <vector>

#include "cli/capture_setup.h"
#include "config/sheet_rows.h"
#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

namespace zt::testing {

struct DisplayFixture {
    sim::SimCommonLibrary library;
    ztGraphControl control{library};
    sim::SimHost host{[this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
        return dispatch(control, id, kind, args);
    }};

    explicit DisplayFixture(bool capture = true) {
        control.advise(&host);
        host.runRecords = 700;
        host.countsPerUnit = [this](int channel) {
            const Conversion c = control.conversionTable()[static_cast<std::size_t>(channel)];
            const double unit = c.gain * static_cast<double>(c.decimalFactor);
            return unit != 0 ? 1 / unit : 1.0;
        };
        cli::connectToLink(control, library);
        cli::configureCapture(control, cli::CaptureScenario::Typical);
        if (capture) this->capture();
    }

    void capture() {
        control.surface().cmdStart.click();
        host.run();
    }

    GraphSurface& s() { return control.surface(); }
    const ChartRefs& chart() const { return control.chartRefs(); }
    GRAPHINFO& info() { return control.state().graphInfo; }
    VERTSCALE& scale(int channel) { return info().udtVertScale[static_cast<std::size_t>(channel)]; }
    std::string readout(int channel, int row) const {
        return control.surface().sprChannel.text(channel, row);
    }

    // Types into a combo box and presses Enter, as a person does.
    static void typeAndEnter(ui::ComboBox& box, const std::string& text) {
        box.enter(text);
        box.pressKey(ui::kKeyEnter);
    }
    // Selects "One" and makes `channel` current by clicking its column.
    void selectChannel(int channel) {
        s().optScale[0].click();
        s().sprChannel.clickCell(channel, kRowName);
    }
};

}  // namespace zt::testing
