// A test host for the setting sheets: the sheets on their own surface, built over the
// simulated common library with its standard link (general drive on station 1, vector on 2,
// servo on 3, compact on 5), every sheet visible, and the run events recorded.
#pragma once

#include <string>
#include <vector>

#include "config/setting_sheets.h"
#include "core/channel_colors.h"
#include "core/graph_state.h"
#include "core/graph_surface.h"
#include "core/host_services.h"
#include "sim/sim_common_library.h"

namespace zt::testing {

struct SheetHost {
    sim::SimCommonLibrary library;
    HostServices host{library, Font{}};
    HostLocale locale;
    GraphState state;
    GraphSurface surface;
    SettingSheets sheets{state,
                         host,
                         surface.sprChannel,
                         surface.sprTrigger,
                         surface.sprSampling,
                         surface.lblHighSampItem,
                         locale};
    std::vector<int16_t> events;

    ui::SpreadSheet& ch = surface.sprChannel;
    ui::SpreadSheet& trig = surface.sprTrigger;
    ui::SpreadSheet& samp = surface.sprSampling;

    explicit SheetHost(int32_t baud = 19200) {
        state.iniFileItem.lngData[1] = baud;
        state.twoChannelItemNames = {host.text(msg::kPositionCommand),
                                     host.text(msg::kCurrentPosition), host.text(msg::kDroopPulse)};
        for (int c = 1; c <= kChannelCount; ++c)
            state.chSetting[static_cast<size_t>(c)].lngGraphColor =
                kDefaultChannelColor[static_cast<size_t>(c)];
        sheets.hooks.runEvent = [this](int16_t e) { events.push_back(e); };
        sheets.build();
        int32_t value = 0;
        int32_t count = 0;
        library.sim().FillStationTable(state.stations, library.sim().link().sysInfo(), value,
                                       count);
        sheets.refreshStationLists();
        for (ui::SpreadSheet* s : {&ch, &trig, &samp})
            s->Visible = true;
    }

    // A person picks a station and an item for a channel.
    void setChannel(int channel, const std::string& station, const std::string& item) {
        ch.chooseListItem(channel, 2, station);
        ch.chooseListItem(channel, 3, item);
    }
    // A person types into a cell and presses Enter.
    void enter(ui::SpreadSheet& sheet, int row, const std::string& text) {
        sheet.typeIntoCell(1, row, text);
        sheet.pressKey(ui::kKeyEnter);
    }
    const CHSETTING& channel(int c) const { return state.chSetting[static_cast<size_t>(c)]; }
};

}  // namespace zt::testing
