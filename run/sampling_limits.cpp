#include "run/sampling_limits.h"

namespace zt {

namespace {

// Minimum interval per item on the serial link, by baud rate; 0 for a rate not listed.
double serialFactor(int32_t baud) {
    switch (baud) {
        case 300:
            return 2500;
        case 600:
            return 1300;
        case 1200:
            return 700;
        case 2400:
            return 350;
        case 4800:
            return 250;
        case 9600:
            return 150;
        case 19200:
        case 38400:
            return 100;
        default:
            return 0;
    }
}

}  // namespace

IntervalBounds samplingIntervalBounds(const SAMPSETTING& setting, int channelCount,
                                      const INIFILE_ITEM& iniFileItem) {
    if (setting.intSamplingSpeed == 1) return {1, 40};
    int n = channelCount;
    // The fault signal of the trigger station is read as one more item.
    if (setting.intTriggerType == 2 && setting.intTriggerTarget != kNoTriggerTarget) ++n;
    const double upper = n == 0 ? 60000.0 : n * 60000.0;
    if (n == 0) return {iniFileItem.linkKind() == 1 ? 50.0 : 100.0, upper};
    double lower = 0;
    if (iniFileItem.linkKind() == 0) {
        const double factor = serialFactor(iniFileItem.baudRate());
        lower = factor == 0 ? 100 : n * factor;
    } else if (iniFileItem.linkKind() == 1) {
        lower = n * 50.0;
    }
    if (iniFileItem.factorFlag() == 1) lower *= 2;
    return {lower, upper};
}

double effectiveInterval(const SAMPSETTING& setting) {
    if (setting.intSamplingSpeed == 1) return (setting.dblMask + 1) * 0.5;
    return setting.dblSamplingInterval;
}

}  // namespace zt
