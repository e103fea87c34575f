#include "platform/ui/spread_cell.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zt::ui {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Checks the shape first so that from_chars never sees "inf", "nan" or hexadecimal forms.
bool hasNumberShape(std::string_view s) {
    size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t digits = 0;
    while (i < s.size() && isDigit(s[i]))
        ++i, ++digits;
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && isDigit(s[i]))
            ++i, ++digits;
    }
    if (digits == 0) return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
        size_t expDigits = 0;
        while (i < s.size() && isDigit(s[i]))
            ++i, ++expDigits;
        if (expDigits == 0) return false;
    }
    return i == s.size();
}

}  // namespace

std::optional<double> parseCellNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    if (!hasNumberShape(text)) return std::nullopt;
    bool negative = false;
    if (text.front() == '+' || text.front() == '-') {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    double value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

std::string formatCellNumber(double value, int decimals) {
    if (!std::isfinite(value)) return {};
    decimals = std::clamp(decimals, 0, kMaxDecimals);
    // The largest double has 309 integer digits.
    std::array<char, 400> buf{};
    const auto [end, ec] = std::to_chars(buf.data(), buf.data() + buf.size(), value,
                                         std::chars_format::fixed, decimals);
    if (ec != std::errc()) return {};
    std::string out(buf.data(), end);
    if (out.front() == '-' && out.find_first_not_of("-0.") == std::string::npos) out.erase(0, 1);
    return out;
}

std::string plainNumberText(double value) {
    if (!std::isfinite(value)) return {};
    if (value == 0) value = 0;  // no "-0"
    // Fixed notation so that large values read as plain digits ("5400000000").
    std::array<char, 400> buf{};
    const auto [end, ec] =
        std::to_chars(buf.data(), buf.data() + buf.size(), value, std::chars_format::fixed);
    if (ec != std::errc()) return {};
    return std::string(buf.data(), end);
}

}  // namespace zt::ui
