// Reading side of the private-profile functions: lookups in the file's bytes, read once for a
// run of lookups in the same file.
#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/profile/private_profile.h"
#include "platform/profile/profile_file_io.h"
#include "platform/profile/profile_line.h"

namespace zt::profile {

namespace {

// Windows keeps value lengths in 16 bits: a longer value comes back cut to its length modulo
// 65536.
constexpr std::size_t kValueLengthWrap = 65536;

enum class Lookup { Found, NotFound, NoFile };

// The file's bytes, shared with the cache of the file read last; null when there is no file
// that can be read.
std::shared_ptr<const std::string> fileText(const char* fileName) {
    std::shared_ptr<const std::string> text;
    readSharedFile(fileName, text);
    return text;
}

// Calls `visit(line)` for each line from `pos` on until it returns false.
template <typename Visit>
void forEachLine(std::string_view text, std::size_t pos, Visit visit) {
    while (pos < text.size()) {
        const LineSpan span = splitLine(text, pos);
        if (!visit(text.substr(pos, span.contentEnd - pos))) return;
        pos = span.next;
    }
}

// Where the lines of the first section named `section` begin: the start of the file for "",
// whose lines come before the first header (so a "[]" header is never searched), else the
// line after the first header naming it; npos when there is none.
std::size_t sectionBody(std::string_view text, std::string_view section) {
    if (section.empty()) return 0;
    const std::size_t header = findSectionHeader(text, section);
    return header == std::string_view::npos ? header : splitLine(text, header).next;
}

// Finds the first `key` in the first section named `section`; later sections of the same
// name are never searched.
Lookup lookupValue(std::string_view section, std::string_view key, const char* fileName,
                   std::string& value) {
    const auto file = fileText(fileName);
    if (!file) return Lookup::NoFile;
    const std::string_view text = *file;
    const std::size_t body = sectionBody(text, section);
    if (body == std::string_view::npos) return Lookup::NotFound;
    Lookup result = Lookup::NotFound;
    forEachLine(text, body, [&](std::string_view line) {
        const ProfileLine parsed = parseLine(line);
        if (parsed.kind == LineKind::Section) return false;  // the section has ended
        if (parsed.kind == LineKind::Key && equalsIgnoreCase(parsed.name, key)) {
            const std::string_view v =
                parsed.value.substr(0, parsed.value.size() % kValueLengthWrap);
            value.assign(v.data(), v.size());
            result = Lookup::Found;
            return false;
        }
        return true;
    });
    return result;
}

// Appends every section name, each followed by a NUL. Sections named "" are left out: their
// empty name would end the list early.
bool listSections(const char* fileName, std::string& list) {
    const auto file = fileText(fileName);
    if (!file) return false;
    forEachLine(*file, 0, [&](std::string_view line) {
        if (!isSectionLine(line)) return true;
        const ProfileLine parsed = parseLine(line);
        if (!parsed.name.empty()) {
            list.append(parsed.name);
            list.push_back('\0');
        }
        return true;
    });
    return true;
}

// Appends the key names of the first section named `section` (the lines before the first
// header for ""), duplicates included, each followed by a NUL; a key line with an empty name
// gives an empty entry. Lines without '=' and comments are not keys and are left out.
void listKeys(std::string_view section, const char* fileName, std::string& list) {
    const auto file = fileText(fileName);
    if (!file) return;
    const std::string_view text = *file;
    const std::size_t body = sectionBody(text, section);
    if (body == std::string_view::npos) return;
    // Consecutive key lines with an empty name (blank lines between them do not count) give
    // one empty entry.
    bool afterEmptyName = false;
    forEachLine(text, body, [&](std::string_view line) {
        const ProfileLine parsed = parseLine(line);
        if (parsed.kind == LineKind::Section) return false;
        if (parsed.kind == LineKind::Blank) return true;
        const bool emptyName = parsed.kind == LineKind::Key && parsed.name.empty();
        if (parsed.kind == LineKind::Key && !(emptyName && afterEmptyName)) {
            list.append(parsed.name);
            list.push_back('\0');
        }
        afterEmptyName = emptyName;
        return true;
    });
}

uint32_t copyText(std::string_view text, char* buffer, uint32_t size) {
    if (size == 0) return 0;
    const std::size_t n = std::min<std::size_t>(text.size(), size - 1);
    if (n > 0) std::memcpy(buffer, text.data(), n);
    buffer[n] = '\0';
    return static_cast<uint32_t>(n);
}

// `list` holds names each ended by a NUL; the final NUL is added here. The list fits only when
// two bytes are left after it; otherwise it is cut to size-2 bytes followed by two NULs.
uint32_t copyList(std::string_view list, char* buffer, uint32_t size) {
    if (size == 0) return 0;
    if (list.empty() || size == 1) {
        buffer[0] = '\0';
        return 0;
    }
    if (list.size() + 2 <= size) {
        std::memcpy(buffer, list.data(), list.size());
        buffer[list.size()] = '\0';
        return static_cast<uint32_t>(list.size());
    }
    std::memcpy(buffer, list.data(), size - 2);
    buffer[size - 2] = '\0';
    buffer[size - 1] = '\0';
    return size - 2;
}

// The default without its trailing spaces (only 0x20; tabs and line ends stay). No quote
// removal: Windows copies the default as given.
uint32_t copyDefault(const char* defaultValue, char* buffer, uint32_t size) {
    std::string_view text = defaultValue != nullptr ? defaultValue : "";
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return copyText(text, buffer, size);
}

}  // namespace

uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                  char* buffer, uint32_t size, const char* fileName) {
    if (buffer == nullptr) size = 0;
    const bool haveFile = fileName != nullptr && fileName[0] != '\0';
    if (section == nullptr) {
        std::string list;
        if (haveFile) listSections(fileName, list);
        return copyList(list, buffer, size);
    }
    const std::string_view sectionName = trimSpaces(section);
    if (key == nullptr) {
        // The key list matches the section name as given, blanks included. A list that is
        // empty, starts with an empty name or does not fit even one byte gives the default as
        // it stands, trailing blanks included.
        std::string list;
        if (haveFile) listKeys(section, fileName, list);
        if (list.empty() || list.front() == '\0' || size <= 2)
            return copyText(defaultValue != nullptr ? defaultValue : "", buffer, size);
        return copyList(list, buffer, size);
    }
    std::string value;
    if (haveFile && lookupValue(sectionName, trimSpaces(key), fileName, value) == Lookup::Found) {
        return copyText(value, buffer, size);
    }
    return copyDefault(defaultValue, buffer, size);
}

std::optional<std::string> findProfileString(const std::string& section, const std::string& key,
                                             const std::string& fileName) {
    if (fileName.empty()) return std::nullopt;
    std::string value;
    if (lookupValue(trimSpaces(section), trimSpaces(key), fileName.c_str(), value) !=
        Lookup::Found) {
        return std::nullopt;
    }
    return value;
}

std::string getProfileString(const std::string& section, const std::string& key,
                             const std::string& defaultValue, const std::string& fileName,
                             uint32_t size) {
    std::vector<char> buffer(size);
    const uint32_t n = GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(),
                                                buffer.data(), size, fileName.c_str());
    return n == 0 ? std::string() : std::string(buffer.data(), n);
}

}  // namespace zt::profile
