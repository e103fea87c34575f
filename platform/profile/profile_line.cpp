#include "platform/profile/profile_line.h"

#include <cstring>

namespace zt::profile {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\v';
}

char foldCase(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// Removes one pair of matching single or double quotes around a value of two or more chars.
std::string_view stripQuotes(std::string_view value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.back() == value.front()) {
        return value.substr(1, value.size() - 2);
    }
    return value;
}

}  // namespace

LineSpan splitLine(std::string_view text, std::size_t pos) {
    if (pos >= text.size()) return {text.size(), text.size()};
    const char* begin = text.data() + pos;
    const std::size_t rest = text.size() - pos;
    const auto* lf = static_cast<const char*>(std::memchr(begin, '\n', rest));
    const std::size_t scan = lf != nullptr ? static_cast<std::size_t>(lf - begin) : rest;
    // A CR before the LF ends the line there: either the CR of a CR LF pair or a lone CR.
    const auto* cr = static_cast<const char*>(std::memchr(begin, '\r', scan));
    if (cr != nullptr) {
        const std::size_t end = pos + static_cast<std::size_t>(cr - begin);
        std::size_t next = end + 1;
        if (next < text.size() && text[next] == '\n') ++next;
        return {end, next};
    }
    if (lf != nullptr) return {pos + scan, pos + scan + 1};
    return {text.size(), text.size()};
}

std::string_view trimBlanks(std::string_view text) {
    std::size_t b = 0;
    std::size_t e = text.size();
    while (b < e && isBlank(text[b]))
        ++b;
    while (e > b && isBlank(text[e - 1]))
        --e;
    return text.substr(b, e - b);
}

std::string_view trimSpaces(std::string_view text) {
    std::size_t b = 0;
    std::size_t e = text.size();
    while (b < e && text[b] == ' ')
        ++b;
    while (e > b && text[e - 1] == ' ')
        --e;
    return text.substr(b, e - b);
}

bool equalsIgnoreCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (foldCase(a[i]) != foldCase(b[i])) return false;
    }
    return true;
}

bool isSectionLine(std::string_view line) {
    std::size_t first = 0;
    while (first < line.size() && isBlank(line[first]))
        ++first;
    return first < line.size() && line[first] == '[';
}

ProfileLine parseLine(std::string_view line) {
    std::size_t first = 0;
    while (first < line.size() && isBlank(line[first]))
        ++first;
    if (first == line.size()) return {};
    const std::string_view text = line.substr(first);
    if (text.front() == ';') return {LineKind::Comment, {}, {}};
    if (text.front() == '[') {
        // The name runs to the last ']' ("[x]]" is "x]"); anything after it is ignored. A
        // header that is never closed names no section and is not a key either.
        const std::size_t close = text.rfind(']');
        if (close == 0 || close == std::string_view::npos) return {LineKind::Other, {}, {}};
        return {LineKind::Section, trimBlanks(text.substr(1, close - 1)), {}};
    }
    const std::size_t eq = text.find('=');
    if (eq == std::string_view::npos) return {LineKind::Other, {}, {}};
    return {LineKind::Key, trimBlanks(text.substr(0, eq)),
            stripQuotes(trimBlanks(text.substr(eq + 1)))};
}

std::size_t findSectionHeader(std::string_view text, std::string_view section) {
    for (std::size_t at = text.find('['); at != std::string_view::npos;
         at = text.find('[', at + 1)) {
        std::size_t start = at;
        while (start > 0 && isBlank(text[start - 1]))
            --start;
        if (start > 0 && text[start - 1] != '\n' && text[start - 1] != '\r') continue;
        const LineSpan span = splitLine(text, start);
        const ProfileLine parsed = parseLine(text.substr(start, span.contentEnd - start));
        if (parsed.kind == LineKind::Section && equalsIgnoreCase(parsed.name, section))
            return start;
    }
    return std::string_view::npos;
}

}  // namespace zt::profile
