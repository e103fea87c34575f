#include "platform/text/numeric.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace zt::text {

namespace {

constexpr std::size_t kMaxSignificantDigits = 40;
constexpr long kExponentCap = 100000;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int hexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Collects the digits of a decimal number while it is read, keeping a bounded number of
// significant digits and the position of the decimal point.
class DigitCollector {
  public:
    void integerDigit(char c) { add(c, false); }
    void fractionDigit(char c) { add(c, true); }

    DecimalNumber finish(bool negative, long writtenExponent) const {
        DecimalNumber result;
        std::string digits = digits_;
        if (sticky_) digits.push_back('1');
        long exponent = scale_ + writtenExponent;
        while (!digits.empty() && digits.back() == '0') {
            digits.pop_back();
            ++exponent;
        }
        if (digits.empty()) return result;
        constexpr long kLimit = std::numeric_limits<int>::max() / 2;
        if (exponent > kLimit) exponent = kLimit;
        if (exponent < -kLimit) exponent = -kLimit;
        result.negative = negative;
        result.digits = std::move(digits);
        result.exponent = static_cast<int>(exponent);
        return result;
    }

  private:
    void add(char c, bool fraction) {
        if (digits_.empty() && c == '0') {
            // A leading zero only moves the point when it follows it.
            if (fraction) --scale_;
            return;
        }
        if (digits_.size() < kMaxSignificantDigits) {
            digits_.push_back(c);
            if (fraction) --scale_;
            return;
        }
        // Beyond the kept digits: an integer digit still counts as a place, and any non-zero
        // digit is remembered so that "exactly half" never becomes true by cutting.
        if (!fraction) ++scale_;
        if (c != '0') sticky_ = true;
    }

    std::string digits_;
    long scale_ = 0;
    bool sticky_ = false;
};

// Adds one digit to an exponent, saturating well inside the int range.
long addExponentDigit(long exponent, char c) {
    if (exponent >= kExponentCap) return exponent;
    return exponent * 10 + (c - '0');
}

// The signed value of a hexadecimal or octal integer: 16-bit when it fits in 16 bits, 32-bit
// when it fits in 32 bits, else unsigned.
int64_t radixValue(uint64_t magnitude) {
    if (magnitude <= 0xFFFF) return static_cast<int16_t>(static_cast<uint16_t>(magnitude));
    if (magnitude <= 0xFFFFFFFFu) return static_cast<int32_t>(static_cast<uint32_t>(magnitude));
    return static_cast<int64_t>(magnitude & 0x7FFFFFFFFFFFFFFFull);
}

DecimalNumber fromInteger(int64_t value, bool negate) {
    bool negative = value < 0;
    uint64_t magnitude = negative ? static_cast<uint64_t>(0) - static_cast<uint64_t>(value)
                                  : static_cast<uint64_t>(value);
    DigitCollector collector;
    for (char c : std::to_string(magnitude))
        collector.integerDigit(c);
    return collector.finish(negative != negate, 0);
}

struct RadixDigits {
    uint64_t magnitude = 0;
    std::size_t count = 0;
    bool overflow = false;
};

// Reads hexadecimal (radix 16) or octal (radix 8) digits from `text` at `pos`, skipping
// characters for which `skip` holds.
template <typename Skip>
RadixDigits readRadixDigits(std::string_view text, std::size_t& pos, int radix, Skip skip) {
    RadixDigits result;
    while (pos < text.size()) {
        std::size_t blank = skip(text, pos);
        if (blank > 0) {
            pos += blank;
            continue;
        }
        int d = hexDigitValue(text[pos]);
        if (d < 0 || d >= radix) break;
        if (result.magnitude > (std::numeric_limits<uint64_t>::max() >> 4)) result.overflow = true;
        result.magnitude =
            result.magnitude * static_cast<uint64_t>(radix) + static_cast<uint64_t>(d);
        ++result.count;
        ++pos;
    }
    return result;
}

std::size_t noSkip(std::string_view, std::size_t) {
    return 0;
}

bool startsAt(std::string_view text, std::size_t pos, std::string_view token) {
    return !token.empty() && text.substr(pos, token.size()) == token;
}

}  // namespace

std::optional<DecimalNumber> parseDecimal(std::string_view text, const HostLocale& locale) {
    const std::string_view currency = locale.currencySymbol;
    const std::string_view thousands = locale.thousandsSeparator;
    const std::string_view decimal = locale.decimalSeparator;
    std::size_t pos = 0;
    const std::size_t n = text.size();
    bool hasSign = false;
    bool negative = false;
    bool openParen = false;
    bool hasCurrency = false;

    while (pos < n) {
        char c = text[pos];
        if (isBlank(c)) {
            ++pos;
        } else if (!hasSign && (c == '+' || c == '-')) {
            hasSign = true;
            negative = c == '-';
            ++pos;
        } else if (!openParen && c == '(') {
            openParen = true;
            ++pos;
        } else if (!hasCurrency && startsAt(text, pos, currency)) {
            hasCurrency = true;
            pos += currency.size();
        } else {
            break;
        }
    }

    DecimalNumber number;
    if (pos + 1 < n && text[pos] == '&' &&
        (text[pos + 1] == 'H' || text[pos + 1] == 'h' || text[pos + 1] == 'O' ||
         text[pos + 1] == 'o')) {
        int radix = (text[pos + 1] == 'H' || text[pos + 1] == 'h') ? 16 : 8;
        pos += 2;
        RadixDigits digits = readRadixDigits(text, pos, radix, noSkip);
        if (digits.count == 0 || digits.overflow || digits.magnitude > 0xFFFFFFFFu) {
            return std::nullopt;
        }
        number = fromInteger(radixValue(digits.magnitude), false);
    } else {
        DigitCollector collector;
        bool anyDigit = false;
        bool inFraction = false;
        while (pos < n) {
            char c = text[pos];
            if (isDigit(c)) {
                anyDigit = true;
                if (inFraction) {
                    collector.fractionDigit(c);
                } else {
                    collector.integerDigit(c);
                }
                ++pos;
            } else if (!inFraction && startsAt(text, pos, decimal)) {
                inFraction = true;
                pos += decimal.size();
            } else if (!inFraction && anyDigit && startsAt(text, pos, thousands)) {
                pos += thousands.size();
            } else {
                break;
            }
        }
        if (!anyDigit) return std::nullopt;
        long exponent = 0;
        if (pos < n && (text[pos] == 'e' || text[pos] == 'E')) {
            ++pos;
            bool negativeExponent = false;
            if (pos < n && (text[pos] == '+' || text[pos] == '-')) {
                negativeExponent = text[pos] == '-';
                ++pos;
            }
            if (pos >= n || !isDigit(text[pos])) return std::nullopt;
            while (pos < n && isDigit(text[pos]))
                exponent = addExponentDigit(exponent, text[pos++]);
            if (negativeExponent) exponent = -exponent;
        }
        number = collector.finish(false, exponent);
    }

    bool closedParen = false;
    while (pos < n) {
        char c = text[pos];
        if (isBlank(c)) {
            ++pos;
        } else if (!hasSign && !openParen && (c == '+' || c == '-')) {
            hasSign = true;
            negative = c == '-';
            ++pos;
        } else if (openParen && !closedParen && c == ')') {
            closedParen = true;
            ++pos;
        } else if (!hasCurrency && startsAt(text, pos, currency)) {
            hasCurrency = true;
            pos += currency.size();
        } else {
            return std::nullopt;
        }
    }
    if (openParen && (!closedParen || hasSign)) return std::nullopt;
    if (openParen) negative = true;
    if (!number.isZero() && negative) number.negative = !number.negative;
    return number;
}

std::optional<double> toDouble(const DecimalNumber& number) {
    if (number.isZero()) return 0.0;
    std::string text = number.digits + "e" + std::to_string(number.exponent);
    double value = 0.0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    (void)end;
    if (ec == std::errc::result_out_of_range) {
        // The magnitude tells overflow from underflow.
        long magnitude =
            static_cast<long>(number.exponent) + static_cast<long>(number.digits.size());
        if (magnitude > 0) return std::nullopt;
        value = 0.0;
    } else if (ec != std::errc()) {
        return std::nullopt;
    }
    return number.negative ? -value : value;
}

bool isNumeric(std::string_view text, const HostLocale& locale) {
    return parseNumber(text, locale).has_value();
}

std::optional<double> parseNumber(std::string_view text, const HostLocale& locale) {
    std::optional<DecimalNumber> number = parseDecimal(text, locale);
    if (!number) return std::nullopt;
    return toDouble(*number);
}

namespace {

// Bytes of a blank that the leading-number conversion skips at `pos`, 0 if none.
std::size_t valBlank(std::string_view text, std::size_t pos) {
    char c = text[pos];
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') return 1;
    if (startsAt(text, pos, "\xE3\x80\x80")) return 3;
    return 0;
}

void skipValBlanks(std::string_view text, std::size_t& pos) {
    while (pos < text.size()) {
        std::size_t blank = valBlank(text, pos);
        if (blank == 0) break;
        pos += blank;
    }
}

}  // namespace

double val(std::string_view text) {
    std::size_t pos = 0;
    const std::size_t n = text.size();
    skipValBlanks(text, pos);
    if (pos < n && text[pos] == '&') {
        std::size_t next = pos + 1;
        skipValBlanks(text, next);
        if (next >= n) return 0.0;
        char kind = text[next];
        int radix = (kind == 'H' || kind == 'h') ? 16 : (kind == 'O' || kind == 'o') ? 8 : 0;
        if (radix == 0) return 0.0;
        pos = next + 1;
        RadixDigits digits = readRadixDigits(text, pos, radix, valBlank);
        if (digits.overflow) return static_cast<double>(std::numeric_limits<uint64_t>::max());
        if (digits.magnitude > 0xFFFFFFFFu) return static_cast<double>(digits.magnitude);
        return static_cast<double>(radixValue(digits.magnitude));
    }

    bool negative = false;
    if (pos < n && (text[pos] == '+' || text[pos] == '-')) {
        negative = text[pos] == '-';
        ++pos;
    }
    DigitCollector collector;
    bool inFraction = false;
    long exponent = 0;
    while (pos < n) {
        skipValBlanks(text, pos);
        if (pos >= n) break;
        char c = text[pos];
        if (isDigit(c)) {
            if (inFraction) {
                collector.fractionDigit(c);
            } else {
                collector.integerDigit(c);
            }
            ++pos;
        } else if (c == '.' && !inFraction) {
            inFraction = true;
            ++pos;
        } else if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
            ++pos;
            skipValBlanks(text, pos);
            bool negativeExponent = false;
            if (pos < n && (text[pos] == '+' || text[pos] == '-')) {
                negativeExponent = text[pos] == '-';
                ++pos;
            }
            while (pos < n) {
                skipValBlanks(text, pos);
                if (pos >= n || !isDigit(text[pos])) break;
                exponent = addExponentDigit(exponent, text[pos++]);
            }
            if (negativeExponent) exponent = -exponent;
            break;
        } else {
            break;
        }
    }
    DecimalNumber number = collector.finish(negative, exponent);
    std::optional<double> value = toDouble(number);
    if (!value) {
        return negative ? -std::numeric_limits<double>::infinity()
                        : std::numeric_limits<double>::infinity();
    }
    return *value;
}

}  // namespace zt::text
