// Sample records of a simulated drive run, as the host would deliver them: an acceleration
// ramp, a load step, a deceleration, the run and up-to-frequency signals, and optionally a
// trip on a fault. Used for pictures and by the simulated host loop.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/host_records.h"

namespace zt::sim {

enum class DriveScenario {
    Typical,  // start, accelerate, load step, decelerate, stop
    Fault,    // the same run tripping on an overcurrent fault
    Servo,    // a positioning move with command, position and droop
};

std::optional<DriveScenario> parseScenario(std::string_view name);

struct WaveformChannel {
    int32_t item = kNoneItem;
    int32_t station = kNoStation;
    // Raw counts per engineering unit of the item (1 / (gain x decimal factor)).
    double countsPerUnit = 1;
};

struct WaveformRequest {
    // Index = channel number 1 to 8 (element 0 unused).
    std::array<WaveformChannel, 9> channel{};
    int32_t intervalTenths = 10;  // interval between samples, 0.1 ms
    int count = kGraphRecords;
    DriveScenario scenario = DriveScenario::Typical;
    // Time of the trip in ms from the first sample; without it a Fault run trips at 60 % of
    // the run and other runs do not trip.
    std::optional<double> faultAtMs;
};

// Records 0 … count - 1 (count limited to 0 … 10,000). Record 0 has interval 0, every other
// record `intervalTenths`. Analog channels carry their item's value in raw counts; digital
// channels 5-8 (bits 0-3) the run, up-to-frequency, forward, fault and positioning signals
// that their item names. The same request always gives the same records.
std::vector<SampleRecord> driveWaveforms(const WaveformRequest& request);

}  // namespace zt::sim
