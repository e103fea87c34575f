// The current sampling and trigger setting and the eight channel settings, with their
// defaults. Every editor of these records (the sheets, initialize, the file loaders) keeps
// them within the ranges of the setting limits.
#pragma once

#include <array>
#include <cstdint>

#include "platform/host_records.h"

namespace zt {

// Trigger target value meaning "no target".
inline constexpr int16_t kNoTriggerTarget = 255;
// Start condition value meaning "no trigger used".
inline constexpr int16_t kNoTriggerBoot = 99;

struct SAMPSETTING {
    double dblSamplingInterval = 100;         // ms, monitor sampling
    double dblSamplingTime = 10000;           // ms
    double dblMask = 1;                       // mask count of high-speed sampling, 1 to 40
    int16_t intTriggerType = 0;               // 0 "Not used", 1 "Inside", 2 "Fault"
    int16_t intTriggerBoot = kNoTriggerBoot;  // 0 "Rise", 1 "Fall"
    double dblTriggerLevel = 0;
    float sngTriggerPosition = 10;                // percent: 10, 20, ... 90
    int32_t lngTriggerPoint = 0;                  // sample index of the trigger, -1 when none
    int16_t intSamplingMode = 0;                  // 0 "Single", 1 "Continuous"
    int16_t intSamplingSpeed = 0;                 // 0 "Monitor", 1 "High Speed"
    int16_t intTriggerTarget = kNoTriggerTarget;  // channel 1-8 (type 1), station 0-31 (type 2)

    friend bool operator==(const SAMPSETTING&, const SAMPSETTING&) = default;
};

struct CHSETTING {
    int16_t intChNo = 0;
    int16_t intAD = 0;                 // 0 analog item, 1 on/off item
    int32_t lngSamplingItem = 0;       // item code, kNoneItem for "None"
    int32_t lngTargetNo = kNoStation;  // station 0 to 31, kNoStation for "None"
    int32_t lngGraphColor = 0;         // 0x00BBGGRR

    friend bool operator==(const CHSETTING&, const CHSETTING&) = default;
};

inline constexpr int kChannelCount = 8;
inline constexpr int kAnalogChannels = 4;

// Channel settings indexed by channel number 1 to 8 (element 0 is unused).
using ChannelSettings = std::array<CHSETTING, kChannelCount + 1>;

inline bool isAnalogChannel(int channel) {
    return channel >= 1 && channel <= kAnalogChannels;
}

}  // namespace zt
