#include "sim/host_waveforms.h"

#include <algorithm>
#include <cmath>

namespace zt::sim {

DriveSignals driveSignals(const DriveRunProfile& p, double timeMs) {
    DriveSignals s;
    const double t = timeMs - p.startMs;
    const double decelStart = p.accelMs + p.holdMs;
    const double stop = decelStart + p.decelMs;
    s.faulted = p.faultAtMs && timeMs >= *p.faultAtMs;
    if (t >= 0 && t < stop && !s.faulted) {
        s.running = true;
        if (t < p.accelMs) {
            s.frequency = p.setFrequency * t / p.accelMs;
        } else if (t < decelStart) {
            s.frequency = p.setFrequency;
            s.upToFrequency = true;
        } else {
            s.frequency = p.setFrequency * (stop - t) / p.decelMs;
        }
    }
    if (s.running) {
        s.torque = t >= p.loadStepMs ? p.loadAfter : p.loadBefore;
        // Accelerating needs extra torque; decelerating gives some back.
        if (t < p.accelMs) s.torque += 40;
        if (t >= decelStart) s.torque -= 30;
        s.current = std::max(20.0, std::abs(s.torque));
        s.voltage = 400.0 * s.frequency / std::max(1.0, p.setFrequency);
    }
    return s;
}

int32_t rawCount(int32_t itemCode, const DriveSignals& s) {
    auto share = [](double value, double fullScale) {
        return static_cast<int32_t>(std::lround(value / fullScale * 4095.0));
    };
    switch (itemCode) {
        case 0:
            return 0;
        case 201:
        case 209:
        case 210:
        case 211:
            return static_cast<int32_t>(std::lround(s.frequency * 100.0));
        case 202:
        case 206:
            return share(s.current, 200.0);
        case 203:
        case 212:
            return share(s.voltage, 500.0);
        default:
            return share(s.torque, 200.0);
    }
}

SampleRecord driveSample(const DriveRunProfile& profile, double timeMs, int32_t intervalTenths,
                         const int16_t (&analogItems)[4]) {
    const DriveSignals s = driveSignals(profile, timeMs);
    SampleRecord r;
    r.lngDiffTime = intervalTenths;
    for (std::size_t k = 0; k < 4; ++k)
        r.lngAnalogData[k] = rawCount(analogItems[k], s);
    r.intDigitalData =
        static_cast<int16_t>((s.running ? 1 : 0) | (s.upToFrequency ? 2 : 0) | (s.faulted ? 4 : 0));
    r.intFaultData = s.faulted ? profile.faultWord : int16_t{0};
    return r;
}

}  // namespace zt::sim
