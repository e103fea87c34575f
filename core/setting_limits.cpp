#include "core/setting_limits.h"

#include <algorithm>
#include <cmath>

#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"

namespace zt {

namespace {

// Minimum monitor interval per item at each serial baud rate, ms.
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

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

// A whole number in a text of plain digits (optionally signed); nullopt for anything else.
std::optional<long long> wholeNumber(const std::string& text) {
    const std::optional<double> v = text::parseNumber(text, HostLocale{});
    if (!v || !std::isfinite(*v) || std::abs(*v) > 1e15) return std::nullopt;
    return static_cast<long long>(text::roundHalfEven(*v));
}

}  // namespace

double effectiveInterval(const SAMPSETTING& setting) {
    if (setting.intSamplingSpeed == kSpeedHighSpeed) return (setting.dblMask + 1) * 0.5;
    return setting.dblSamplingInterval;
}

int itemsRead(int channelCount, int16_t triggerType, int16_t triggerTarget) {
    return channelCount + (triggerType == kTriggerFault && triggerTarget != kNoTriggerTarget);
}

Limits intervalLimits(int16_t speed, int channelCount, int16_t triggerType, int16_t triggerTarget,
                      const INIFILE_ITEM& iniFile) {
    if (speed == kSpeedHighSpeed) return {kMaskMin, kMaskMax};
    const int n = itemsRead(channelCount, triggerType, triggerTarget);
    const int32_t link = iniFile.linkKind();
    Limits limits;
    if (n == 0) {
        limits.min = link == 1 ? 50 : 100;
        limits.max = kMaxIntervalPerItem;
        return limits;
    }
    if (link == 0) {
        const double factor = serialFactor(iniFile.baudRate());
        limits.min = factor == 0 ? 100 : n * factor;
    } else if (link == 1) {
        limits.min = n * 50.0;
    } else {
        limits.min = 0;
    }
    if (iniFile.factorFlag() == 1) limits.min *= 2;
    limits.max = std::min(n * kMaxIntervalPerItem, kIntervalCellMax);
    return limits;
}

Limits samplingTimeLimits(int16_t speed, double interval, double mask) {
    // High speed: about (mask + 1) x 0.5 ms per sample at the lower and (mask + 1) x 0.4 ms at
    // the upper bound; multiplied out so that the bounds are whole numbers.
    if (speed == kSpeedHighSpeed) return {(mask + 1) * 50, (mask + 1) * 4000};
    return {interval * 100, interval * 10000};
}

float triggerPositionFrom(std::optional<double> value) {
    if (!value || !(*value >= 10)) return 10;
    if (*value >= 91) return 90;
    return static_cast<float>(text::roundHalfEven(*value / 10) * 10);
}

std::string twoDigitText(int32_t number) {
    std::string text = number >= 0 && number < 10 ? "0" : "";
    text += std::to_string(number);
    return text;
}

std::string stationText(int32_t station, const std::string& noneText) {
    if (station < 0 || station >= kStationCount) return noneText;
    return twoDigitText(station);
}

int32_t stationFromText(const std::string& text, const std::string& noneText) {
    if (text == noneText) return kNoStation;
    const auto n = wholeNumber(text);
    if (!n || *n < 0 || *n > kNoStation) return kNoStation;
    return static_cast<int32_t>(*n);
}

std::string triggerTargetText(int16_t triggerType, int16_t target, const std::string& noValueText) {
    if (target == kNoTriggerTarget || target < 0) return noValueText;
    const std::string two = twoDigitText(target);
    return triggerType == kTriggerInside ? "CH" + two : two;
}

int16_t triggerTargetFromText(const std::string& text, const std::string& noValueText) {
    const std::string t = trimmed(text);
    if (t.empty() || t == noValueText) return kNoTriggerTarget;
    const std::string digits = t.rfind("CH", 0) == 0 ? t.substr(2, 2) : t;
    const auto n = wholeNumber(digits);
    if (!n || *n < 0 || *n >= kNoTriggerTarget) return kNoTriggerTarget;
    return static_cast<int16_t>(*n);
}

}  // namespace zt
