#include "platform/text/format_pattern.h"

#include <cmath>
#include <limits>
#include <vector>

#include "platform/text/number_text.h"

namespace zt::text {

namespace {

struct Token {
    enum class Kind { Literal, IntegerDigit, Point, FractionDigit };
    Kind kind = Kind::Literal;
    char placeholder = 0;  // '0' or '#'
    std::string text;      // literal text
};

struct Section {
    std::vector<Token> tokens;
    bool grouping = false;
    bool empty() const { return tokens.empty(); }
};

// Splits a pattern at ";" outside quotes and escapes; at most three sections are used.
std::vector<std::string_view> splitSections(std::string_view pattern) {
    std::vector<std::string_view> sections;
    std::size_t start = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        char c = pattern[i];
        if (c == '"') {
            quoted = !quoted;
        } else if (!quoted && c == '\\') {
            ++i;
        } else if (!quoted && c == ';') {
            sections.push_back(pattern.substr(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(pattern.substr(start));
    if (sections.size() > 3) sections.resize(3);
    return sections;
}

Section parseSection(std::string_view text) {
    Section section;
    bool pointSeen = false;
    bool commaPending = false;
    auto literal = [&](std::string_view s) {
        if (!section.tokens.empty() && section.tokens.back().kind == Token::Kind::Literal) {
            section.tokens.back().text += s;
        } else {
            section.tokens.push_back({Token::Kind::Literal, 0, std::string(s)});
        }
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '0' || c == '#') {
            if (pointSeen) {
                section.tokens.push_back({Token::Kind::FractionDigit, c, {}});
            } else {
                if (commaPending) section.grouping = true;
                section.tokens.push_back({Token::Kind::IntegerDigit, c, {}});
            }
            commaPending = false;
        } else if (c == '.' && !pointSeen) {
            pointSeen = true;
            commaPending = false;
            section.tokens.push_back({Token::Kind::Point, 0, {}});
        } else if (c == ',' && !pointSeen) {
            bool afterDigit = false;
            for (const Token& t : section.tokens) {
                if (t.kind == Token::Kind::IntegerDigit) afterDigit = true;
            }
            commaPending = afterDigit;
        } else if (c == '"') {
            std::size_t end = text.find('"', i + 1);
            if (end == std::string_view::npos) end = text.size();
            literal(text.substr(i + 1, end - i - 1));
            i = end;
        } else if (c == '\\') {
            if (i + 1 < text.size()) literal(text.substr(++i, 1));
        } else {
            literal(text.substr(i, 1));
        }
    }
    return section;
}

// Integer and fraction digits of a value, the fraction rounded half away from zero to
// `places` digits.
struct FixedDigits {
    std::string integer;   // no leading zeros; empty for 0
    std::string fraction;  // exactly `places` digits
};

FixedDigits fixedDigits(const SignificantDigits& sd, std::size_t places) {
    FixedDigits result;
    std::string all;  // integer digits followed by every fraction digit
    std::size_t integerLength = 0;
    if (!sd.digits.empty()) {
        if (sd.exponent >= 0) {
            integerLength = static_cast<std::size_t>(sd.exponent) + 1;
            all = sd.digits;
            if (all.size() < integerLength) all.append(integerLength - all.size(), '0');
        } else {
            all = std::string(static_cast<std::size_t>(-sd.exponent - 1), '0') + sd.digits;
        }
    }
    const std::size_t keep = integerLength + places;
    bool roundUp = all.size() > keep && all[keep] >= '5';
    if (all.size() > keep) all.resize(keep);
    if (all.size() < keep) all.append(keep - all.size(), '0');
    if (roundUp) {
        std::size_t i = all.size();
        while (i > 0 && all[i - 1] == '9')
            all[--i] = '0';
        if (i == 0) {
            all = "1" + all;
            ++integerLength;
        } else {
            ++all[i - 1];
        }
    }
    result.integer = all.substr(0, integerLength);
    result.fraction = all.substr(integerLength);
    std::size_t firstNonZero = result.integer.find_first_not_of('0');
    result.integer.erase(0,
                         firstNonZero == std::string::npos ? result.integer.size() : firstNonZero);
    return result;
}

std::string grouped(const std::string& digits, const std::string& separator) {
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) text += separator;
        text += digits[i];
    }
    return text;
}

std::string formatSection(const SignificantDigits& sd, const Section& section, bool sign,
                          const HostLocale& locale) {
    std::vector<char> integerPlaces;
    std::vector<char> fractionPlaces;
    bool hasPoint = false;
    for (const Token& t : section.tokens) {
        if (t.kind == Token::Kind::IntegerDigit) integerPlaces.push_back(t.placeholder);
        if (t.kind == Token::Kind::FractionDigit) fractionPlaces.push_back(t.placeholder);
        if (t.kind == Token::Kind::Point) hasPoint = true;
    }
    if (integerPlaces.empty() && !hasPoint) {
        // Literal text only.
        std::string text = sign ? "-" : "";
        for (const Token& t : section.tokens)
            text += t.text;
        return text;
    }

    FixedDigits fixed = fixedDigits(sd, fractionPlaces.size());

    // Integer digits, padded with zeros from the first "0" placeholder on.
    std::size_t minimum = 0;
    for (std::size_t i = 0; i < integerPlaces.size(); ++i) {
        if (integerPlaces[i] == '0') {
            minimum = integerPlaces.size() - i;
            break;
        }
    }
    std::string integer = fixed.integer;
    if (integer.size() < minimum) integer.insert(0, minimum - integer.size(), '0');

    // What each integer placeholder shows; surplus digits go to the first one.
    std::vector<std::string> shown(integerPlaces.size());
    std::string overflow;  // integer digits without any integer placeholder
    if (section.grouping && !shown.empty()) {
        shown.front() = grouped(integer, locale.thousandsSeparator);
    } else if (shown.empty()) {
        overflow = integer;
    } else if (integer.size() >= shown.size()) {
        std::size_t surplus = integer.size() - shown.size();
        shown.front() = integer.substr(0, surplus + 1);
        for (std::size_t i = 1; i < shown.size(); ++i)
            shown[i] = integer.substr(surplus + i, 1);
    } else {
        std::size_t offset = shown.size() - integer.size();
        for (std::size_t i = 0; i < integer.size(); ++i)
            shown[offset + i] = integer.substr(i, 1);
    }

    // Fraction digits, with trailing zeros at "#" places dropped.
    std::size_t fractionShown = fractionPlaces.size();
    while (fractionShown > 0 && fractionPlaces[fractionShown - 1] == '#' &&
           fixed.fraction[fractionShown - 1] == '0') {
        --fractionShown;
    }

    std::string text;
    bool signPending = sign;
    auto emit = [&](const std::string& s) {
        if (s.empty()) return;
        if (signPending) {
            text += '-';
            signPending = false;
        }
        text += s;
    };
    std::size_t integerIndex = 0;
    std::size_t fractionIndex = 0;
    for (const Token& t : section.tokens) {
        switch (t.kind) {
            case Token::Kind::Literal:
                text += t.text;
                break;
            case Token::Kind::IntegerDigit:
                emit(shown[integerIndex++]);
                break;
            case Token::Kind::Point:
                emit(overflow);
                emit(locale.decimalSeparator.empty() ? "." : locale.decimalSeparator);
                break;
            case Token::Kind::FractionDigit:
                if (fractionIndex < fractionShown) emit(fixed.fraction.substr(fractionIndex, 1));
                ++fractionIndex;
                break;
        }
    }
    return text;
}

}  // namespace

std::string formatNumber(double value, std::string_view pattern, const HostLocale& locale,
                         NumberKind kind) {
    double converted = value;
    if (kind == NumberKind::Single && std::isfinite(value)) {
        // Beyond the single range the value has no single form.
        if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
            converted = std::copysign(std::numeric_limits<double>::infinity(), value);
        } else {
            converted = static_cast<double>(static_cast<float>(value));
        }
    }
    if (!std::isfinite(converted)) return doubleToText(converted, locale);
    const SignificantDigits sd =
        significantDigits(converted, kind == NumberKind::Single ? kSingleDigits : kDoubleDigits);
    const bool zero = sd.digits.empty();

    std::vector<Section> sections;
    for (std::string_view text : splitSections(pattern))
        sections.push_back(parseSection(text));

    const Section* chosen = &sections[0];
    bool sign = sd.negative;
    if (sd.negative && sections.size() >= 2 && !sections[1].empty()) {
        chosen = &sections[1];
        sign = false;
    } else if (zero && sections.size() >= 3 && !sections[2].empty()) {
        chosen = &sections[2];
    }
    if (chosen->empty()) {
        return kind == NumberKind::Single ? singleToText(static_cast<float>(converted), locale)
                                          : doubleToText(converted, locale);
    }
    return formatSection(sd, *chosen, sign, locale);
}

}  // namespace zt::text
