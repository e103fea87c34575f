// Writing side of the private-profile functions. The file is edited in place the way Windows
// does it: only the affected lines change, every other byte stays as it was.
#include <string>
#include <string_view>

#include "platform/profile/private_profile.h"
#include "platform/profile/profile_file_io.h"
#include "platform/profile/profile_line.h"

namespace zt::profile {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kNone = std::string_view::npos;

// Where the first section named `section` and the first `key` in it lie in the file's bytes.
struct SectionLayout {
    bool found = false;
    std::size_t headerBegin = kNone;
    std::size_t afterHeader = kNone;  // start of the line after the header
    bool headerHasEnd = false;
    std::size_t afterLastKey = kNone;  // start of the line after the section's last key line
    bool lastKeyHasEnd = false;
    std::size_t keyBegin = kNone;  // the line of `key`
    std::size_t keyNext = kNone;
    std::string_view keyName;  // `key` as the file spells it
};

// `from` is where the search may begin: 0, or the start of the first header naming `section`.
SectionLayout locate(std::string_view text, std::string_view section, std::string_view key,
                     bool wantKey, std::size_t from = 0) {
    SectionLayout layout;
    bool inSection = false;
    for (std::size_t pos = from; pos < text.size();) {
        const LineSpan span = splitLine(text, pos);
        const ProfileLine parsed = parseLine(text.substr(pos, span.contentEnd - pos));
        const bool hasEnd = span.next > span.contentEnd;
        if (parsed.kind == LineKind::Section) {
            if (inSection) break;
            if (equalsIgnoreCase(parsed.name, section)) {
                inSection = layout.found = true;
                layout.headerBegin = pos;
                layout.afterHeader = span.next;
                layout.headerHasEnd = hasEnd;
            }
        } else if (inSection && parsed.kind == LineKind::Key) {
            layout.afterLastKey = span.next;
            layout.lastKeyHasEnd = hasEnd;
            if (wantKey && layout.keyBegin == kNone && equalsIgnoreCase(parsed.name, key)) {
                layout.keyBegin = pos;
                layout.keyNext = span.next;
                layout.keyName = parsed.name;
            }
        } else if (inSection && parsed.kind == LineKind::Other && wantKey &&
                   layout.keyBegin == kNone) {
            // A line without '=' is a key without a value: reading it gives the default, but
            // writing or deleting its name takes that line. New keys still go before such
            // lines (the data tables of a graph file stay after its keys).
            const std::string_view name = trimBlanks(text.substr(pos, span.contentEnd - pos));
            if (equalsIgnoreCase(name, key)) {
                layout.keyBegin = pos;
                layout.keyNext = span.next;
                layout.keyName = name;
            }
        }
        pos = span.next;
    }
    return layout;
}

bool endsWithLineEnd(std::string_view text) {
    return text.empty() || text.back() == '\n' || text.back() == '\r';
}

// Drops the header and the key lines of the first section named `section`; comments, blank
// lines and lines without '=' stay where they are.
bool deleteSection(const char* fileName, std::string_view text, std::string_view section) {
    std::string out;
    out.reserve(text.size());
    bool inSection = false;
    bool found = false;
    std::size_t pos = 0;
    for (; pos < text.size();) {
        const LineSpan span = splitLine(text, pos);
        const ProfileLine parsed = parseLine(text.substr(pos, span.contentEnd - pos));
        bool drop = false;
        if (parsed.kind == LineKind::Section) {
            if (inSection) break;
            if (equalsIgnoreCase(parsed.name, section)) inSection = found = drop = true;
        } else if (inSection && parsed.kind == LineKind::Key) {
            drop = true;
        }
        if (!drop) out.append(text.substr(pos, span.next - pos));
        pos = span.next;
    }
    if (!found) return true;
    return replaceFile(fileName, {out, text.substr(pos)});
}

}  // namespace

bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                const char* fileName) {
    if (section == nullptr || fileName == nullptr || fileName[0] == '\0') return false;
    const std::string_view sectionName = trimSpaces(section);
    const std::string_view keyName = key != nullptr ? trimSpaces(key) : std::string_view();

    std::string content;
    switch (readWholeFile(fileName, content)) {
        case ReadResult::Failed:
            return false;
        case ReadResult::Missing:
            // Nothing to delete in a file that does not exist.
            if (key == nullptr || value == nullptr) return true;
            return replaceFile(fileName,
                               {"[", sectionName, "]", kLineEnd, keyName, "=", value, kLineEnd});
        case ReadResult::Ok:
            break;
    }
    const std::string_view text = content;

    // Deleting a section matches its name as given, blanks included, as listing its keys does.
    if (key == nullptr) return deleteSection(fileName, text, section);

    if (value == nullptr) {
        // Deleting a key matches the section and key names as given, blanks included.
        const SectionLayout exact = locate(text, section, key, true);
        if (exact.keyBegin == kNone) return true;
        return replaceFile(fileName, {text.substr(0, exact.keyBegin), text.substr(exact.keyNext)});
    }
    editProfileText(content, sectionName, keyName, value);
    return replaceFile(fileName, {content});
}

void editProfileText(std::string& text, std::string_view sectionName, std::string_view keyName,
                     std::string_view value) {
    const auto appendSection = [&] {
        const bool needsEnd = !endsWithLineEnd(text);
        text.reserve(text.size() + sectionName.size() + keyName.size() + value.size() + 8);
        if (needsEnd) text.append(kLineEnd);
        text.append("[").append(sectionName).append("]").append(kLineEnd);
        text.append(keyName).append("=").append(value).append(kLineEnd);
    };
    // A section met for the first time (each DATA section of a graph file, after megabytes of
    // tables) needs no line-by-line walk.
    const std::size_t header = findSectionHeader(text, sectionName);
    if (header == kNone) return appendSection();

    const SectionLayout layout = locate(text, sectionName, keyName, true, header);
    const auto line = [&](std::string_view name) {
        std::string l;
        l.reserve(name.size() + value.size() + 3);
        l.append(name).append("=").append(value).append(kLineEnd);
        return l;
    };
    if (layout.keyBegin != kNone) {
        // The line is rewritten with the file's spelling of the key and a CR LF.
        const std::string replacement = line(layout.keyName);
        text.replace(layout.keyBegin, layout.keyNext - layout.keyBegin, replacement);
        return;
    }
    if (layout.found) {
        // A new key goes right after the section's last key line, or after its header.
        const bool afterKey = layout.afterLastKey != kNone;
        const std::size_t at = afterKey ? layout.afterLastKey : layout.afterHeader;
        const bool precededByEnd = afterKey ? layout.lastKeyHasEnd : layout.headerHasEnd;
        text.insert(at, (precededByEnd ? "" : std::string(kLineEnd)) + line(keyName));
        return;
    }
    // A new section goes at the end of the file, with no blank line before it.
    appendSection();
}

bool writeProfileString(const std::string& section, const std::string& key,
                        const std::string& value, const std::string& fileName) {
    return WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(),
                                      fileName.c_str());
}

}  // namespace zt::profile
