// The ranges every editor of the sampling setting applies: the monitor interval by channel
// count and link, the mask count of high-speed sampling, the sampling time, the trigger
// position, and the shown forms of stations and trigger targets.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/settings_model.h"
#include "platform/host_records.h"

namespace zt {

// Largest value the interval cell accepts, ms (nine minutes of one-item sampling).
inline constexpr double kIntervalCellMax = 540000;
// Mask count bounds of high-speed sampling.
inline constexpr double kMaskMin = 1;
inline constexpr double kMaskMax = 40;
// Time of a sampling run per item, ms.
inline constexpr double kMaxIntervalPerItem = 60000;
inline constexpr double kSamplingTimeCellMax = 5400000000.0;
// Speeds of `intSamplingSpeed`.
inline constexpr int16_t kSpeedMonitor = 0;
inline constexpr int16_t kSpeedHighSpeed = 1;
// Trigger types of `intTriggerType`.
inline constexpr int16_t kTriggerNotUsed = 0;
inline constexpr int16_t kTriggerInside = 1;
inline constexpr int16_t kTriggerFault = 2;

struct Limits {
    double min = 0;
    double max = 0;
};

// Items read per sample: the set channels, plus one for the fault signal of a fault trigger
// with a target.
int itemsRead(int channelCount, int16_t triggerType, int16_t triggerTarget);

// Bounds of the third sampling row: the mask count at "High Speed", the monitor interval
// (whole ms) otherwise.
Limits intervalLimits(int16_t speed, int channelCount, int16_t triggerType, int16_t triggerTarget,
                      const INIFILE_ITEM& iniFile);

// The time between two samples, ms: the monitor interval, or (mask + 1) half milliseconds at
// "High Speed".
double effectiveInterval(const SAMPSETTING& setting);

// Bounds of the sampling time for the interval (monitor) or mask count (high speed).
Limits samplingTimeLimits(int16_t speed, double interval, double mask);

// The trigger position rule: 10 to 90 in steps of 10, half to even; nullopt (not a number)
// gives 10.
float triggerPositionFrom(std::optional<double> value);

// A number of at least two digits: "01", "31", "255".
std::string twoDigitText(int32_t number);

// A station as shown: "00" to "31", `noneText` for no station (32 or anything outside 0-31).
std::string stationText(int32_t station, const std::string& noneText);
// A station cell's text back to a station number: 32 for `noneText` or text that is no number.
int32_t stationFromText(const std::string& text, const std::string& noneText);

// A trigger target as shown: "CH01" for a channel target, "03" for a station target,
// `noValueText` for none.
std::string triggerTargetText(int16_t triggerType, int16_t target, const std::string& noValueText);
// A shown target back to its number: 255 for empty or `noValueText`, the third and fourth
// characters of "CHnn", else the text's number (255 when it is none).
int16_t triggerTargetFromText(const std::string& text, const std::string& noValueText);

}  // namespace zt
