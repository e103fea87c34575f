#include "scale/horz_scale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/setting_limits.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"
#include "scale/run_scales.h"

namespace zt {

namespace {

// The scroll bar's positions are 16-bit.
constexpr int kScrollLimit = 32767;

bool hasExponentLetter(const std::string& text) {
    return text.find_first_of("eEdD") != std::string::npos;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

}  // namespace

std::vector<std::string> horzScaleList(const SAMPSETTING& setting, const HostLocale& locale) {
    const HorzScaleBounds b = horzScaleBounds(setting);
    std::vector<std::string> list;
    for (const double divisor : {1.0, 2.0, 5.0, 10.0, 50.0}) {
        const double candidate = b.upper / divisor;
        if (candidate > b.lower) list.push_back(text::doubleToText(candidate, locale));
    }
    list.push_back(text::doubleToText(b.lower, locale));
    return list;
}

double horzScaleFromText(const std::string& text, const SAMPSETTING& setting,
                         const HostLocale& locale) {
    if (!text::isNumeric(text, locale) || hasExponentLetter(text))
        return effectiveInterval(setting) * 10;
    const std::string cut = trimmed(text).substr(0, 9);
    double scale = 0;
    if (const std::optional<double> value = text::parseNumber(cut, locale)) {
        scale = text::toInt32Saturated(*value);
    } else {
        scale = text::toInt32Saturated(setting.dblSamplingInterval * 10);
    }
    const HorzScaleBounds b = horzScaleBounds(setting);
    if (scale > b.upper) scale = b.upper;
    if (scale < b.lower) scale = b.lower;
    return scale;
}

int horzScrollMax(double scale, double samplingTime) {
    if (!(scale > 0)) return 0;
    const double divisions = samplingTime / scale - 10;
    if (!(divisions > 0)) return 0;
    return static_cast<int>(std::min<double>(text::roundHalfEven(divisions), kScrollLimit));
}

bool recordingExceedsScreen(double scale, double samplingTime) {
    return scale * 10 < samplingTime;
}

}  // namespace zt
