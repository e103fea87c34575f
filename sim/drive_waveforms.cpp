#include "sim/drive_waveforms.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zt::sim {

namespace {

constexpr double kPi = 3.14159265358979323846;

// The drive's state at one instant, in engineering units.
struct DriveState {
    double frequency = 0;  // Hz
    double current = 0;    // A
    double voltage = 0;    // V
    double torque = 0;     // %
    double speed = 0;      // r/min
    double speedRef = 0;   // r/min
    double dcBus = 560;    // V
    double command = 0;    // pulses
    double position = 0;   // pulses
    double pid = 0;        // %
    bool run = false;
    bool upToFrequency = false;
    bool forward = false;
    bool fault = false;
    bool inPosition = false;
};

// Deterministic small noise in -1 … 1.
double noise(uint32_t& seed) {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<double>(seed >> 8) / static_cast<double>(1u << 23) - 1.0;
}

double ramp(double t, double start, double length) {
    if (length <= 0) return t >= start ? 1.0 : 0.0;
    return std::clamp((t - start) / length, 0.0, 1.0);
}

// Smooth 0 … 1 step (S-curve).
double sCurve(double x) {
    return x * x * (3 - 2 * x);
}

DriveState driveAt(double u, double span, const std::optional<double>& tripAt, uint32_t& seed) {
    DriveState s;
    constexpr double kTop = 60;  // Hz
    const double start = 0.05, accel = 0.25, loadAt = 0.5, decelAt = 0.72, decel = 0.2;
    const double t = u * span;
    const bool tripped = tripAt && t >= *tripAt;
    const double up = ramp(u, start, accel);
    const double down = ramp(u, decelAt, decel);
    double f = kTop * up * (1 - down);
    const bool accelerating = u >= start && u < start + accel;
    const bool decelerating = u >= decelAt && u < decelAt + decel;
    const double load = u >= loadAt ? 0.6 : 0.15;
    s.run = u >= start && u < decelAt + decel;
    if (tripped) {
        // The output is cut off; the motor coasts and the fault output is held.
        s.fault = true;
        s.run = false;
        f = 0;
    }
    s.frequency = f + (f > 0 ? 0.02 * noise(seed) : 0);
    s.forward = s.run;
    s.upToFrequency = s.run && !accelerating && !decelerating && f > kTop * 0.98;
    const double accelTorque = accelerating ? 80 : decelerating ? -60 : 0;
    s.torque = s.run ? accelTorque + 100 * load + 2 * noise(seed) : 0;
    const double magnetising = 8;
    s.current = s.run ? magnetising + std::fabs(s.torque) * 0.22 + 0.3 * noise(seed) : 0;
    if (tripAt && !tripped && t > *tripAt - 0.03 * span) {
        // Overcurrent building up before the trip.
        s.current *= 1 + 1.5 * (t - (*tripAt - 0.03 * span)) / (0.03 * span);
    }
    s.voltage = std::min(400.0, 400.0 * f / kTop) + (f > 0 ? 3 * noise(seed) : 0);
    s.speedRef = 30 * f;
    s.speed = s.run ? 30 * f - 0.5 * s.torque + 2 * noise(seed) : 0;
    s.dcBus = 560 - (s.run ? 0.15 * s.torque : 0) +
              (decelerating && s.run ? 120 * sCurve(down) : 0) + 2 * noise(seed);
    s.pid = 50 + 30 * std::sin(2 * kPi * u * 3) * up + noise(seed);
    return s;
}

DriveState servoAt(double u, uint32_t& seed) {
    DriveState s;
    constexpr double kMove = 200000;  // pulses
    const double x = ramp(u, 0.1, 0.5);
    s.command = kMove * sCurve(x);
    // The position follows the command with a lag.
    const double lagged = ramp(u, 0.105, 0.5);
    s.position = kMove * sCurve(lagged) + 3 * noise(seed);
    const double droop = s.command - s.position;
    const double velocity = kMove * 6 * x * (1 - x);  // pulses per unit of u
    s.speedRef = velocity / kMove * 1500;
    s.speed = s.speedRef * (lagged > 0 ? 0.98 : 0) + 3 * noise(seed);
    s.frequency = s.speed / 30;
    s.torque = (x > 0 && x < 1 ? 120 * (1 - 2 * x) : 0) + 20 + 2 * noise(seed);
    s.current = 4 + std::fabs(s.torque) * 0.2 + 0.2 * noise(seed);
    s.voltage = 200 * s.frequency / 50;
    s.dcBus = 300 + noise(seed);
    s.run = u >= 0.08 && u < 0.9;
    s.forward = s.run;
    s.inPosition = std::fabs(droop) < 50 && u > 0.6;
    s.upToFrequency = s.inPosition;
    return s;
}

double itemValue(int32_t item, const DriveState& s) {
    switch (item) {
        case 201:
            return s.frequency;
        case 202:
            return s.current;
        case 203:
            return s.voltage;
        case 204:
            return s.voltage * s.current * 1.7 / 1000;
        case 206:
            return s.current * (s.torque >= 0 ? 0.9 : -0.9);
        case 207:
        case 208:
            return s.torque;
        case 209:
        case 211:
            return s.speed;
        case 210:
            return s.speedRef;
        case 212:
            return s.dcBus;
        case 213:
            return s.voltage * s.current * 1.6 / 1000;
        case 222:
            return s.command;
        case 224:
            return s.position;
        case 226:
            return s.command - s.position;
        case 242:
            return s.pid;
        default:
            return 0;
    }
}

bool itemSignal(int32_t item, const DriveState& s) {
    switch (item) {
        case 1:
        case 34:
            return s.forward;
        case 33:
            return s.run;
        case 35:
            return s.upToFrequency;
        case 36:
        case 37:
            return s.fault;
        case 39:
            return s.inPosition;
        default:
            return false;
    }
}

int32_t toCounts(double value, double countsPerUnit) {
    const double raw = std::round(value * countsPerUnit);
    if (!std::isfinite(raw)) return 0;
    return static_cast<int32_t>(
        std::clamp(raw, static_cast<double>(INT32_MIN), static_cast<double>(INT32_MAX)));
}

}  // namespace

std::optional<DriveScenario> parseScenario(std::string_view name) {
    if (name == "typical") return DriveScenario::Typical;
    if (name == "fault") return DriveScenario::Fault;
    if (name == "servo") return DriveScenario::Servo;
    return std::nullopt;
}

std::vector<SampleRecord> driveWaveforms(const WaveformRequest& request) {
    const int count = std::clamp(request.count, 0, kGraphRecords);
    const int32_t interval = std::max(request.intervalTenths, 0);
    const double span = std::max(1, count - 1) * (interval / 10.0);
    std::optional<double> tripAt = request.faultAtMs;
    if (!tripAt && request.scenario == DriveScenario::Fault) tripAt = 0.6 * span;

    std::vector<SampleRecord> records(static_cast<size_t>(count));
    uint32_t seed = 12345;
    for (int i = 0; i < count; ++i) {
        const double u = static_cast<double>(i) / std::max(1, count - 1);
        const DriveState s = request.scenario == DriveScenario::Servo
                                 ? servoAt(u, seed)
                                 : driveAt(u, span, tripAt, seed);
        SampleRecord& r = records[static_cast<size_t>(i)];
        r.lngDiffTime = i == 0 ? 0 : interval;
        r.intFaultData = s.fault ? 0x0001 : 0;
        for (size_t c = 1; c <= 4; ++c) {
            const WaveformChannel& ch = request.channel[c];
            r.lngAnalogData[c - 1] = toCounts(itemValue(ch.item, s), ch.countsPerUnit);
        }
        uint16_t word = 0;
        for (size_t k = 5; k <= 8; ++k) {
            if (itemSignal(request.channel[k].item, s))
                word |= static_cast<uint16_t>(1u << (k - 5));
        }
        r.intDigitalData = static_cast<int16_t>(word);
    }
    return records;
}

}  // namespace zt::sim
