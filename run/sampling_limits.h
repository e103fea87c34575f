// Limits of the sampling interval for the current speed, channel count, trigger and link.
// Monitor sampling: the interval in ms; high-speed sampling: the mask count.
#pragma once

#include <cstdint>

#include "config/settings_model.h"

namespace zt {

struct IntervalBounds {
    double lower = 0;
    double upper = 0;
};

IntervalBounds samplingIntervalBounds(const SAMPSETTING& setting, int channelCount,
                                      const INIFILE_ITEM& iniFileItem);

// The effective interval: the monitor interval, or (mask + 1) x 0.5 ms at high speed.
double effectiveInterval(const SAMPSETTING& setting);

}  // namespace zt
