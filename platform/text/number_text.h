// Number-to-text conversions of the host platform: the locale text of singles and doubles
// (up to 7 and 15 significant digits), the blank-led form, integers and hexadecimal.
#pragma once

#include <cstdint>
#include <string>

#include "platform/host_locale.h"

namespace zt::text {

// A finite number rounded to a count of significant digits: value = d1.d2d3... x 10^exponent
// with digits d1 d2 ... (no trailing zeros). Zero has no digits and is never negative.
struct SignificantDigits {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

inline constexpr int kSingleDigits = 7;
inline constexpr int kDoubleDigits = 15;

// Rounds a finite value to `precision` significant digits (1 to 17; others are clamped), to
// nearest on the exact binary value, exact ties away from zero.
SignificantDigits significantDigits(double value, int precision);

// Text of a double with up to 15 significant digits: trailing zeros and a trailing separator
// dropped, no grouping, no "+"; the exponent form (1E-05, 1.5E+20) when the decimal exponent is
// 15 or more or below -4, whatever the digit count; the locale's decimal separator; "-0"
// becomes "0". Infinities give "1.#INF" / "-1.#INF", NaN gives "1.#QNAN".
std::string doubleToText(double value, const HostLocale& locale);
// The same for a single: up to 7 significant digits.
std::string singleToText(float value, const HostLocale& locale);

// The blank-led form: the same digits with "." as decimal point whatever the locale, and a
// leading blank for numbers that are not negative (" 2.5", "-2.5", " 0").
std::string doubleToStr(double value);
std::string singleToStr(float value);
std::string integerToStr(int64_t value);

// Plain signed decimal text of an integer ("-312").
std::string integerText(int64_t value);

// Upper-case hexadecimal without leading zeros; negatives in two's complement of the width
// (hexText(-1) == "FFFFFFFF", hexText16(-1) == "FFFF").
std::string hexText(int32_t value);
std::string hexText16(int16_t value);

}  // namespace zt::text
