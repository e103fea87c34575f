// The host's text and number rules on any text: the numeric test, number parsing, the number
// texts, the Format patterns and the code-page conversions. Nothing may crash, and the answers
// must agree with each other.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz/fuzz_input.h"
#include "platform/host_locale.h"
#include "platform/text/code_page.h"
#include "platform/text/format_pattern.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"

namespace {

zt::HostLocale localeFor(uint8_t choice) {
    zt::HostLocale l;
    switch (choice % 3) {
        case 1:  // comma decimal, dot thousands
            l.decimalSeparator = ",";
            l.thousandsSeparator = ".";
            l.currencySymbol = "\xe2\x82\xac";
            break;
        case 2:  // Japanese
            l.codePage = 932;
            l.currencySymbol = "\xc2\xa5";
            break;
        default:
            break;
    }
    return l;
}

// Stops the run with the broken condition's line, so that a crash report says what failed.
#define check(condition)                                                                       \
    ((condition) ? void()                                                                      \
                 : (std::fprintf(stderr, "check failed: line %d: %s\n", __LINE__, #condition), \
                    std::abort()))

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace zt;
    fuzz::FuzzInput in(data, size);
    const HostLocale locale = localeFor(in.byte());
    const std::string pattern = in.text(40);
    const double raw = in.value<double>();
    const std::string text = in.rest();

    // The numeric test and the parse agree; a parsed number is finite.
    const auto number = text::parseNumber(text, locale);
    check(text::isNumeric(text, locale) == number.has_value());
    if (number) check(std::isfinite(*number));
    (void)text::val(text);
    (void)text::toInt16(text, locale);
    (void)text::toInt32(text, locale);

    // Number texts of the parsed value and of any bit pattern read back as numbers.
    for (const double v : {number.value_or(0.0), raw}) {
        if (!std::isfinite(v)) continue;
        const std::string shown = text::doubleToText(v, locale);
        // Fifteen digits round the largest doubles up past the maximum ("1.79769313486232E+308"),
        // which then no longer reads as a number, as on the host platform.
        if (std::fabs(v) < 1.797693134862315e308) check(text::isNumeric(shown, locale));
        if (std::fabs(v) <= 3.4028234663852886e38) {
            check(!text::singleToText(static_cast<float>(v), locale).empty());
        }
        (void)text::formatNumber(v, pattern, locale);
        (void)text::roundHalfEven(v);
        (void)text::toInt16(v);
        (void)text::toInt32(v);
    }

    // Code pages: any 1252 byte survives the trip to UTF-8 and back; 932 never crashes and its
    // byte count matches the conversion.
    const std::string utf8 = text::fromAnsi(text, 1252);
    check(text::toAnsi(utf8, 1252) == text);
    const std::string japanese = text::fromAnsi(text, 932);
    check(text::ansiByteCount(japanese, 932) == text::toAnsi(japanese, 932).size());
    const std::string clean = text::sanitizeUtf8(text);
    for (const int cp : {1252, 932}) {
        const std::size_t limit = static_cast<std::size_t>(in.byte());
        check(text::toAnsi(text::cutAnsi(clean, limit, cp), cp).size() <= limit);
        (void)text::fitAnsi(clean, limit, cp);
        (void)text::keepAnsiBytes(clean, limit, cp);
    }
    (void)text::leftCharacters(clean, text.size() / 2);
    return 0;
}
