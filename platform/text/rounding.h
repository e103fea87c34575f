// Conversion of numbers and numeric texts to 16-bit and 32-bit integers the way the host
// platform's integer conversions do it: round half to even, with fixed valid ranges.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/host_locale.h"

namespace zt::text {

// Rounds to the nearest integer, ties to the even neighbour (2.5 -> 2, 3.5 -> 4, -2.5 -> -2).
// NaN and infinities are returned unchanged. Independent of the floating-point rounding mode.
double roundHalfEven(double value);

// Round half to even into a 16-bit integer: valid for -32768.5 <= value < 32767.5. nullopt on
// overflow, NaN or infinity.
std::optional<int16_t> toInt16(double value);
// Round half to even into a 32-bit integer: valid for -2147483648.5 <= value < 2147483647.5.
std::optional<int32_t> toInt32(double value);

// The same conversions for callers that must never fail: out-of-range values give the nearest
// limit, NaN gives 0.
int16_t toInt16Saturated(double value);
int32_t toInt32Saturated(double value);

// A text read by the numeric test (parseDecimal), rounded half to even on its decimal digits
// as written ("2.5" -> 2, "2.50001" -> 3, "1,000" -> 1000, "(5)" -> -5). nullopt when the text
// is not numeric or the rounded value is out of range.
std::optional<int16_t> toInt16(std::string_view text, const HostLocale& locale);
std::optional<int32_t> toInt32(std::string_view text, const HostLocale& locale);

}  // namespace zt::text
