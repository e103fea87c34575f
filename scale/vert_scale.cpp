#include "scale/vert_scale.h"

#include <cmath>

#include "platform/text/format_pattern.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"

namespace zt {

namespace {

constexpr double kCentreGuard = 30000;
constexpr double kSignedBound = 999999999;
constexpr int kZeroGuard = 32700;

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

// A value held in the platform's fixed-point currency: four decimals, ties to even.
double currency(double value) {
    return text::roundHalfEven(value * 10000.0) / 10000.0;
}

}  // namespace

std::vector<std::string> vertScaleList(int32_t fullScale, const HostLocale& locale) {
    std::vector<std::string> list;
    for (const double divisor : {10.0, 20.0, 100.0, 200.0, 1000.0})
        list.push_back(text::doubleToText(static_cast<double>(fullScale) / divisor, locale));
    return list;
}

std::string vertScaleText(double scale, const HostLocale& locale) {
    return text::formatNumber(scale, "########0.0", locale);
}

std::optional<double> vertScaleFromText(const std::string& text, const HostLocale& locale) {
    if (!text::isNumeric(text, locale)) return std::nullopt;
    const std::string cut = trimmed(text).substr(0, 9);
    const std::optional<double> value = text::parseNumber(cut, locale);
    if (!value) return kVertScaleMin;
    const std::string rounded = text::formatNumber(*value, "#####0.0", locale);
    return text::parseNumber(rounded, locale).value_or(kVertScaleMin);
}

double limitVertScale(double scale) {
    if (std::isnan(scale) || scale <= kVertScaleMin) return kVertScaleMin;
    if (scale > kVertScaleMax) return kVertScaleMax;
    return scale;
}

VERTSCALE centredVertScale(double centre, double scale) {
    if (!std::isfinite(centre)) centre = 0;
    if (!(scale > 0) || !std::isfinite(scale)) scale = kVertScaleMin;
    if (std::fabs(centre / scale) > kCentreGuard)
        scale = std::floor(std::fabs(centre / kCentreGuard)) + 1;
    const double middle = text::roundHalfEven(centre / scale);
    return {scale, text::toInt16Saturated(5.0 - middle)};
}

VERTSCALE optimisedVertScale(double minimum, double maximum) {
    const double centre = (maximum + minimum) / 2;
    double scale = std::fabs(maximum - minimum) / 8;
    if (!(scale >= kVertScaleMin)) {
        scale = kVertScaleMin;
    } else {
        const HostLocale plain;
        const std::string up = text::formatNumber(scale + 0.09, "#######0.0", plain);
        scale = text::parseNumber(up, plain).value_or(scale);
    }
    return centredVertScale(centre, scale);
}

bool analogZeroCanRise(int zero, double scale, bool signedItem) {
    const double top = currency((10.0 - (zero + 1)) * currency(scale));
    const double lowest = signedItem ? -kSignedBound : 0;
    return top >= lowest && zero < kZeroGuard;
}

bool analogZeroCanFall(int zero, double scale, bool signedItem) {
    const double bottom = currency(-(zero - 1.0) * currency(scale));
    const double highest = signedItem ? kSignedBound : 0;
    return bottom <= highest && -(zero - 1) < kZeroGuard;
}

}  // namespace zt
