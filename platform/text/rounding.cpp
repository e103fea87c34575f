#include "platform/text/rounding.h"

#include <cmath>
#include <limits>
#include <string>

#include "platform/text/numeric.h"

namespace zt::text {

double roundHalfEven(double value) {
    if (!std::isfinite(value)) return value;
    double lower = std::floor(value);
    double fraction = value - lower;  // exact for every finite double
    if (fraction > 0.5) return lower + 1.0;
    if (fraction < 0.5) return lower;
    return std::fmod(lower, 2.0) == 0.0 ? lower : lower + 1.0;
}

namespace {

template <typename Int>
std::optional<Int> roundedInRange(double value) {
    constexpr double kLow = static_cast<double>(std::numeric_limits<Int>::min()) - 0.5;
    constexpr double kHigh = static_cast<double>(std::numeric_limits<Int>::max()) + 0.5;
    if (!(value >= kLow && value < kHigh)) return std::nullopt;  // also NaN
    return static_cast<Int>(roundHalfEven(value));
}

template <typename Int>
Int saturated(double value) {
    if (std::isnan(value)) return 0;
    if (std::optional<Int> rounded = roundedInRange<Int>(value)) return *rounded;
    return value < 0 ? std::numeric_limits<Int>::min() : std::numeric_limits<Int>::max();
}

// Rounds a decimal number half to even on its digits; nullopt when the magnitude exceeds what
// 64 bits hold comfortably.
std::optional<int64_t> roundDecimal(const DecimalNumber& number) {
    if (number.isZero()) return 0;
    const std::string& digits = number.digits;
    const long length = static_cast<long>(digits.size());
    const long integerLength = length + number.exponent;
    if (integerLength > 18) return std::nullopt;
    int64_t integer = 0;
    for (long i = 0; i < integerLength; ++i) {
        integer = integer * 10 + (i < length ? digits[static_cast<std::size_t>(i)] - '0' : 0);
    }
    if (integerLength >= 0 && integerLength < length) {
        char first = digits[static_cast<std::size_t>(integerLength)];
        // Digits carry no trailing zeros, so any digit after the first dropped one is non-zero.
        bool rest = integerLength + 1 < length;
        if (first > '5' || (first == '5' && (rest || integer % 2 != 0))) ++integer;
    }
    return number.negative ? -integer : integer;
}

template <typename Int>
std::optional<Int> textToInt(std::string_view text, const HostLocale& locale) {
    std::optional<DecimalNumber> number = parseDecimal(text, locale);
    if (!number) return std::nullopt;
    std::optional<int64_t> rounded = roundDecimal(*number);
    if (!rounded || *rounded < std::numeric_limits<Int>::min() ||
        *rounded > std::numeric_limits<Int>::max()) {
        return std::nullopt;
    }
    return static_cast<Int>(*rounded);
}

}  // namespace

std::optional<int16_t> toInt16(double value) {
    return roundedInRange<int16_t>(value);
}
std::optional<int32_t> toInt32(double value) {
    return roundedInRange<int32_t>(value);
}
int16_t toInt16Saturated(double value) {
    return saturated<int16_t>(value);
}
int32_t toInt32Saturated(double value) {
    return saturated<int32_t>(value);
}

std::optional<int16_t> toInt16(std::string_view text, const HostLocale& locale) {
    return textToInt<int16_t>(text, locale);
}

std::optional<int32_t> toInt32(std::string_view text, const HostLocale& locale) {
    return textToInt<int32_t>(text, locale);
}

}  // namespace zt::text
