// Captures set up the way a person does it: the simulated host hands over its stations and
// goes online, then the channels, trigger and sampling are chosen on the sheets.
#pragma once

#include <optional>
#include <string_view>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::sim {

enum class CaptureScenario {
    Typical,     // frequency, current, DC bus; run and fault; rising trigger on the frequency
    Fault,       // the same channels, triggered by a fault of the drive
    HighSpeed,   // high-speed sampling of frequency, current and voltage
    Continuous,  // untriggered sweeps, one after the other
};

std::optional<CaptureScenario> parseCaptureScenario(std::string_view name);
std::string_view scenarioName(CaptureScenario scenario);

// The drive of every scenario: the one on this station.
inline constexpr int kDemoStation = 1;

// Baud rate of the simulated serial link: above 38400 the interval minimum is 100 ms whatever
// the channel count.
inline constexpr int32_t kDemoBaudRate = 115200;

// Hands the simulated link's stations and settings-file record to the control and puts the
// line online.
void connectToLink(ztGraphControl& control, SimCommonLibrary& library);

// The interval (ms, or the mask count at high speed) and time (ms) a scenario samples with.
struct CaptureTiming {
    double interval = 100;
    double timeMs = 60000;
};
CaptureTiming scenarioTiming(CaptureScenario scenario);

// Chooses channels, trigger and sampling on the sheets as a person types them.
void configureCapture(ztGraphControl& control, CaptureScenario scenario);

}  // namespace zt::sim
