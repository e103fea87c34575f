// One channel's plotted values and sample times with the scaling data of its item.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/host_records.h"

namespace zt {

struct SAMPDATA {
    std::vector<double> sngSamplingData = std::vector<double>(kGraphRecords);       // values
    std::vector<double> sngSamplingTimeByInv = std::vector<double>(kGraphRecords);  // ms
    float sngUnit = 0;
    float sngBaseValue = 0;
    int16_t intDecPoint = 0;
};

// Sampled data indexed by channel number 1 to 8 (element 0 is unused).
using ChannelData = std::array<SAMPDATA, 9>;

}  // namespace zt
