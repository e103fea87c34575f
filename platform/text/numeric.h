// The platform's text-to-number rules: the locale-aware numeric test (the whole text must be a
// number) and the locale-free leading-number conversion.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/host_locale.h"

namespace zt::text {

// A number read from text, kept in decimal so that later rounding works on the digits as
// written rather than on a binary approximation. value = (-1 if negative) x digits x
// 10^exponent. `digits` holds no leading or trailing zeros; it is empty for zero.
struct DecimalNumber {
    bool negative = false;
    std::string digits;
    int exponent = 0;

    bool isZero() const { return digits.empty(); }
};

// Reads the whole of `text` as a number in the user's locale, or nullopt when it is not one.
// Accepted: leading and trailing blanks (space, tab, CR, LF, VT, FF); one sign, either before
// the number or after it ("1-"); parentheses for a negative ("(1)"); the locale's currency
// symbol once, before or after; digits with the locale's thousands separator after the first
// digit ("1,0,0", "100,"); one locale decimal separator (".5", "5."); an exponent e/E with an
// optional sign and at least one digit; "&H" hexadecimal and "&O" octal integers, which up to
// 16 bits read as a signed 16-bit value and up to 32 bits as a signed 32-bit value ("&HFFFF"
// is -1). Very long digit strings are kept to 40 significant digits plus a marker digit, which
// keeps every rounding decision exact.
std::optional<DecimalNumber> parseDecimal(std::string_view text, const HostLocale& locale);

// The value of a decimal number as the nearest double; nullopt when it is beyond the double
// range. Values below the smallest double become zero.
std::optional<double> toDouble(const DecimalNumber& number);

// The numeric test: the text read by parseDecimal fits in a double.
bool isNumeric(std::string_view text, const HostLocale& locale);

// A numeric text converted to double, or nullopt when isNumeric is false.
std::optional<double> parseNumber(std::string_view text, const HostLocale& locale);

// The leading-number conversion. Blanks (space, tab, CR, LF and the ideographic space) are
// skipped everywhere, even between digits ("2 45 7" is 2457). Grammar: one optional sign,
// digits, at most one ".", then an optional exponent letter E, e, D or d with an optional sign
// and digits; reading stops at the first other character and unreadable text gives 0. Only
// "." is a decimal point, whatever the locale. "&H" and "&O" give hexadecimal and octal
// integers, signed 16-bit up to 0xFFFF and signed 32-bit up to 0xFFFFFFFF ("&HFFFF" is -1);
// longer ones give their unsigned value. A type suffix such as "%" simply ends the number.
// A value beyond the double range gives an infinity of its sign.
double val(std::string_view text);

}  // namespace zt::text
