#include "platform/text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace zt::text {

SignificantDigits significantDigits(double value, int precision) {
    SignificantDigits result;
    if (!std::isfinite(value) || value == 0.0) return result;
    precision = std::clamp(precision, 1, 17);
    // The exact decimal expansion of a double has at most 767 significant digits; rounding it
    // ourselves makes exact binary ties go away from zero (654322.25 -> 654322.3), as the host
    // platform does, where a C library would round them to even.
    char buffer[900];
    auto [end, ec] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 800);
    if (ec != std::errc()) return result;
    // Form: [-]d.ddd...e(+|-)dd
    const char* p = buffer;
    if (*p == '-') {
        result.negative = true;
        ++p;
    }
    std::string digits;
    for (; p < end && *p != 'e'; ++p) {
        if (*p != '.') digits.push_back(*p);
    }
    int exponent = 0;
    if (p < end) {
        const char* q = p + 1;
        bool negativeExponent = q < end && *q == '-';
        if (q < end && (*q == '-' || *q == '+')) ++q;
        std::from_chars(q, end, exponent);
        if (negativeExponent) exponent = -exponent;
    }
    const std::size_t keep = static_cast<std::size_t>(precision);
    if (digits.size() > keep) {
        bool roundUp = digits[keep] >= '5';
        digits.resize(keep);
        if (roundUp) {
            std::size_t i = keep;
            while (i > 0 && digits[i - 1] == '9')
                digits[--i] = '0';
            if (i == 0) {
                digits = "1" + digits;
                digits.pop_back();
                ++exponent;
            } else {
                ++digits[i - 1];
            }
        }
    }
    while (!digits.empty() && digits.back() == '0')
        digits.pop_back();
    if (digits.empty()) result.negative = false;
    result.digits = std::move(digits);
    result.exponent = exponent;
    return result;
}

namespace {

std::string nonFiniteText(double value) {
    if (std::isnan(value)) return "1.#QNAN";
    return value < 0 ? "-1.#INF" : "1.#INF";
}

std::string numberText(double value, int precision, const std::string& decimalSeparator) {
    if (!std::isfinite(value)) return nonFiniteText(value);
    SignificantDigits sd = significantDigits(value, precision);
    if (sd.digits.empty()) return "0";
    const std::string& d = sd.digits;
    const int e = sd.exponent;
    const int afterPoint = static_cast<int>(d.size()) - 1;

    // Plain digits from 1E-04 up to the precision's power of ten; the exponent form outside,
    // however few the digits (0.0001, but 1E-05).
    const bool plain = e >= -4 && e < precision;

    std::string text = sd.negative ? "-" : "";
    if (!plain) {
        text += d[0];
        if (afterPoint > 0) text += decimalSeparator + d.substr(1);
        text += e < 0 ? "E-" : "E+";
        std::string exponent = std::to_string(std::abs(e));
        if (exponent.size() < 2) exponent = "0" + exponent;
        return text + exponent;
    }
    if (e >= 0) {
        const std::size_t integerLength = static_cast<std::size_t>(e) + 1;
        if (d.size() <= integerLength) {
            text += d + std::string(integerLength - d.size(), '0');
        } else {
            text += d.substr(0, integerLength) + decimalSeparator + d.substr(integerLength);
        }
        return text;
    }
    return text + "0" + decimalSeparator + std::string(static_cast<std::size_t>(-e - 1), '0') + d;
}

std::string withLeadingBlank(std::string text) {
    if (text.empty() || text[0] != '-') text = " " + text;
    return text;
}

}  // namespace

std::string doubleToText(double value, const HostLocale& locale) {
    return numberText(value, kDoubleDigits, locale.decimalSeparator);
}

std::string singleToText(float value, const HostLocale& locale) {
    return numberText(static_cast<double>(value), kSingleDigits, locale.decimalSeparator);
}

std::string doubleToStr(double value) {
    return withLeadingBlank(numberText(value, kDoubleDigits, "."));
}

std::string singleToStr(float value) {
    return withLeadingBlank(numberText(static_cast<double>(value), kSingleDigits, "."));
}

std::string integerToStr(int64_t value) {
    return withLeadingBlank(integerText(value));
}

std::string integerText(int64_t value) {
    return std::to_string(value);
}

namespace {

std::string hexOf(uint32_t value) {
    char buffer[16];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, 16);
    (void)ec;
    std::string text(buffer, end);
    for (char& c : text) {
        if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

}  // namespace

std::string hexText(int32_t value) {
    return hexOf(static_cast<uint32_t>(value));
}

std::string hexText16(int16_t value) {
    return hexOf(static_cast<uint32_t>(static_cast<uint16_t>(value)));
}

}  // namespace zt::text
