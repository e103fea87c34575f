// Number formatting with user patterns of the host platform ("00", "######0.0", "#.##",
// "######0;---", ...).
#pragma once

#include <string>
#include <string_view>

#include "platform/host_locale.h"

namespace zt::text {

// Which significant-digit conversion a value goes through before it is formatted.
enum class NumberKind { Single, Double };

// Formats `value` with `pattern`:
// - The value is first reduced to 15 (Double) or 7 (Single) significant decimal digits; all
//   rounding works on those digits.
// - Up to three ";"-separated sections: positive (and everything else), negative, zero. The
//   section is chosen on the unrounded value; a negative value with a non-empty negative
//   section is shown by that section without a sign, otherwise "-" goes directly before the
//   first digit (or before the decimal point). The sign is decided before rounding, so -0.04
//   shows "-0.0" with "0.0".
// - "0" shows a digit or a zero, "#" a digit or nothing; the integer part is never cut (extra
//   digits go to the first placeholder) and is padded with zeros from the first "0" on.
// - The first "." is the locale's decimal separator; the value is rounded half away from zero
//   to the number of placeholders after it; trailing zeros at "#" places are dropped.
// - "," between integer placeholders groups thousands with the locale's separator; elsewhere
//   it is dropped. Text in double quotes and characters after "\" are literal; every other
//   character is copied as it stands (no percent, exponent or date codes).
// An empty section formats as the plain number text. NaN and infinities give the same text as
// doubleToText.
std::string formatNumber(double value, std::string_view pattern, const HostLocale& locale,
                         NumberKind kind = NumberKind::Double);

}  // namespace zt::text
