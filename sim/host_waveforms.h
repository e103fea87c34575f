// Signals of a simulated drive run as the host samples them: the output frequency ramps up,
// holds while a load step hits, and ramps down; current, voltage and torque follow; the run
// and up-to-frequency outputs switch with it; an optional fault trips the drive at a chosen
// time (it coasts to a stop and its fault word turns non-zero).
#pragma once

#include <cstdint>
#include <optional>

#include "platform/host_records.h"

namespace zt::sim {

struct DriveRunProfile {
    double startMs = 100;      // run command
    double accelMs = 1000;     // ramp to the set frequency
    double holdMs = 2000;      // at the set frequency
    double decelMs = 1000;     // ramp to a stop
    double setFrequency = 60;  // Hz
    double loadStepMs = 1500;  // from the run command
    double loadBefore = 30;    // % torque
    double loadAfter = 80;
    std::optional<double> faultAtMs;  // from the start of sampling
    int16_t faultWord = 0x0011;
};

// Physical values of the drive at a time (ms since sampling began).
struct DriveSignals {
    double frequency = 0;  // Hz
    double current = 0;    // % of rated
    double voltage = 0;    // V
    double torque = 0;     // %
    bool running = false;
    bool upToFrequency = false;
    bool faulted = false;
};

DriveSignals driveSignals(const DriveRunProfile& profile, double timeMs);

// Raw count of an analog item for the drive's signals: the frequency in hundredths of a hertz
// for frequency and speed items, otherwise the signal as a share of 4095 counts at full scale.
int32_t rawCount(int32_t itemCode, const DriveSignals& signals);

// One sample record: raw counts of the four analog items (0 where the item is 0), digital
// bits run (channel 5), up to frequency (6), fault (7), and the fault word.
SampleRecord driveSample(const DriveRunProfile& profile, double timeMs, int32_t intervalTenths,
                         const int16_t (&analogItems)[4]);

}  // namespace zt::sim
