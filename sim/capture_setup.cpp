#include "sim/capture_setup.h"

#include <array>
#include <string>

#include "config/sheet_rows.h"
#include "core/setting_limits.h"

namespace zt::sim {

namespace {

struct ChannelChoice {
    int channel;
    const char* item;
};

constexpr std::array<ChannelChoice, 5> kMonitorChannels{{{1, "*Output frequency"},
                                                         {2, "*Output current"},
                                                         {3, "DC link bus voltage"},
                                                         {5, "*RUN"},
                                                         {6, "*Fault"}}};
constexpr std::array<ChannelChoice, 5> kHighSpeedChannels{{{1, "*Output frequency"},
                                                           {2, "*Output current"},
                                                           {3, "*Output voltage"},
                                                           {5, "*RUN"},
                                                           {6, "*Fault"}}};

void typeAndEnter(ui::SpreadSheet& sheet, int row, const std::string& text) {
    sheet.typeIntoCell(1, row, text);
    sheet.pressKey(ui::kKeyEnter);
}

}  // namespace

std::optional<CaptureScenario> parseCaptureScenario(std::string_view name) {
    for (auto s : {CaptureScenario::Typical, CaptureScenario::Fault, CaptureScenario::HighSpeed,
                   CaptureScenario::Continuous}) {
        if (scenarioName(s) == name) return s;
    }
    return std::nullopt;
}

std::string_view scenarioName(CaptureScenario scenario) {
    switch (scenario) {
        case CaptureScenario::Typical:
            return "typical";
        case CaptureScenario::Fault:
            return "fault";
        case CaptureScenario::HighSpeed:
            return "high-speed";
        case CaptureScenario::Continuous:
            return "continuous";
    }
    return "typical";
}

void connectToLink(ztGraphControl& control, SimCommonLibrary& library) {
    INIFILE_ITEM settings;
    settings.lngData[1] = kDemoBaudRate;
    control.SetIniFileItem(settings);
    SYS_INFO sysInfo = library.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    control.SetSysInfo(static_cast<int16_t>(kDemoStation), sysInfo, parameter);
    control.ChgLineStatus(1);
}

CaptureTiming scenarioTiming(CaptureScenario scenario) {
    switch (scenario) {
        case CaptureScenario::HighSpeed:
            return {1, 4000};  // mask count 1: a sample every millisecond
        case CaptureScenario::Continuous:
            return {100, 20000};
        default:
            return {100, 60000};
    }
}

void configureCapture(ztGraphControl& control, CaptureScenario scenario) {
    GraphSurface& s = control.surface();
    const std::string station = twoDigitText(kDemoStation);

    // Sampling first: the speed decides which items the channel lists offer.
    s.tabSpread.select(2);
    ui::SpreadSheet& samp = s.sprSampling;
    const bool highSpeed = scenario == CaptureScenario::HighSpeed;
    if (highSpeed) samp.chooseListItem(1, kSamplingRowSpeed, "High Speed");
    samp.leaveSheet();
    s.tabSpread.select(1);

    ui::SpreadSheet& ch = s.sprChannel;
    for (const ChannelChoice& c : highSpeed ? kHighSpeedChannels : kMonitorChannels) {
        ch.chooseListItem(c.channel, kRowStation, station);
        ch.chooseListItem(c.channel, kRowName, c.item);
    }
    ch.leaveSheet();

    s.tabSpread.select(2);
    ui::SpreadSheet& trig = s.sprTrigger;
    switch (scenario) {
        case CaptureScenario::Typical:
        case CaptureScenario::HighSpeed:
            trig.chooseListItem(1, kTriggerRowType, "Inside");
            trig.chooseListItem(1, kTriggerRowTarget, "CH01");
            trig.chooseListItem(1, kTriggerRowBoot, "Rise");
            typeAndEnter(trig, kTriggerRowLevel, "30");
            typeAndEnter(trig, kTriggerRowPosition, "20");
            break;
        case CaptureScenario::Fault:
            trig.chooseListItem(1, kTriggerRowType, "Fault");
            trig.chooseListItem(1, kTriggerRowTarget, station);
            typeAndEnter(trig, kTriggerRowPosition, "50");
            break;
        case CaptureScenario::Continuous:
            break;
    }
    trig.leaveSheet();

    if (scenario == CaptureScenario::Continuous)
        samp.chooseListItem(1, kSamplingRowMode, "Continuous");
    const CaptureTiming timing = scenarioTiming(scenario);
    typeAndEnter(samp, kSamplingRowInterval,
                 std::to_string(static_cast<long long>(timing.interval)));
    typeAndEnter(samp, kSamplingRowTime, std::to_string(static_cast<long long>(timing.timeMs)));
    samp.leaveSheet();
    s.tabSpread.select(1);
}

}  // namespace zt::sim
