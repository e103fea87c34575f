// A control on the simulated common library with a simulated host connected, as a host
// application sets it up: stations handed over, line online.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "config/channel_rules.h"
#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "core/item_tables.h"
#include "platform/text/format_pattern.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

namespace zt::testing {

struct RunFixture {
    sim::SimCommonLibrary lib;
    ztGraphControl control{lib};
    sim::SimHost host{[this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
        return dispatch(control, id, kind, args);
    }};
    int graphsEntered = 0;
    std::vector<std::string> statusTexts;  // shown texts; "" for hidden
    std::vector<std::pair<int, int>> drawn;

    RunFixture() {
        control.advise(&host);
        SYS_INFO sys = lib.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control.SetSysInfo(1, sys, parameter);
        control.ChgLineStatus(1);
        RunHooks& h = control.run().hooks();
        h.enterNewGraph = [this] {
            ++graphsEntered;
            auto& history = control.state().graphInfo.udtHistoryState;
            history.lngGraphTotal = std::min(history.lngGraphTotal + 1, 5);
        };
        h.showStatusLabel = [this](const std::string& text) { statusTexts.push_back(text); };
        h.hideStatusLabel = [this] { statusTexts.emplace_back(); };
        h.drawNewRecords = [this](int first, int last) { drawn.emplace_back(first, last); };
    }

    SAMPSETTING& setting() { return control.state().sampSetting; }

    // Puts a station and item on a channel: a person's choice on the channel sheet when the
    // station is present, otherwise the settings a loaded graph file leaves behind.
    void setChannel(int ch, int32_t station, int32_t item, int16_t ad = 0) {
        GraphState& state = control.state();
        ui::SpreadSheet& sheet = control.surface().sprChannel;
        if (station >= 0 && station < kStationCount &&
            state.stations[static_cast<std::size_t>(station)].present()) {
            sheet.chooseListItem(ch, kRowStation, text::formatNumber(station, "00", HostLocale{}));
            const auto& list = channelItemList(state.tableItem, ch, setting().intSamplingSpeed);
            for (const ITEM_INFO& entry : list) {
                if (entry.lngItemCode == item)
                    sheet.chooseListItem(ch, kRowName, itemName(entry, ch));
            }
            return;
        }
        CHSETTING& c = state.chSetting[static_cast<std::size_t>(ch)];
        c.lngTargetNo = station;
        c.lngSamplingItem = item;
        c.intAD = ad;
        const int16_t rs = control.runState();
        if (rs == 0 || rs == 3) control.run().changeRunState(2);
    }

    const std::vector<SampleRecord>& graph() const {
        return control.state().history.udtGraphResultInfo[0].udtSample;
    }
    int graphLength() const {
        const auto& g = graph();
        int n = 0;
        while (n < static_cast<int>(g.size()) && g[static_cast<std::size_t>(n)].lngDiffTime != 0)
            ++n;
        return n;
    }
    std::vector<std::string> boxTexts() {
        std::vector<std::string> texts;
        for (const auto& b : lib.boxes().boxes())
            texts.push_back(b.text);
        return texts;
    }
};

// A record with an interval (tenths of a ms), analog channel 1 raw count, digital word and
// fault word.
inline SampleRecord record(int32_t interval, int32_t ch1 = 0, int16_t digital = 0,
                           int16_t fault = 0) {
    SampleRecord r;
    r.lngDiffTime = interval;
    r.lngAnalogData[0] = ch1;
    r.lngAnalogData[1] = 1234;
    r.intDigitalData = digital;
    r.intFaultData = fault;
    return r;
}

}  // namespace zt::testing
