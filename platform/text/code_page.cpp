#include "platform/text/code_page.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "platform/text/best_fit.h"

namespace zt::text {

IconvDescriptor::IconvDescriptor(const char* toCode, const char* fromCode)
    : handle_(iconv_open(toCode, fromCode)) {}

IconvDescriptor::~IconvDescriptor() {
    if (valid()) iconv_close(handle_);
}

IconvDescriptor::IconvDescriptor(IconvDescriptor&& other) noexcept
    : handle_(std::exchange(other.handle_, kInvalid)) {}

IconvDescriptor& IconvDescriptor::operator=(IconvDescriptor&& other) noexcept {
    if (this != &other) {
        if (valid()) iconv_close(handle_);
        handle_ = std::exchange(other.handle_, kInvalid);
    }
    return *this;
}

std::string codePageName(int codePage) {
    if (codePage == 65001) return "UTF-8";
    return "CP" + std::to_string(codePage);
}

namespace {

constexpr int kFallbackCodePage = 1252;

// Length of the well-formed UTF-8 sequence at the start of `text`, 0 when there is none.
std::size_t utf8SequenceLength(std::string_view text) {
    if (text.empty()) return 0;
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    auto continuation = [&](std::size_t i, unsigned char low, unsigned char high) {
        return i < text.size() && byte(i) >= low && byte(i) <= high;
    };
    unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return continuation(1, 0x80, 0xBF) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        unsigned char low = lead == 0xE0 ? 0xA0 : 0x80;
        unsigned char high = lead == 0xED ? 0x9F : 0xBF;
        return continuation(1, low, high) && continuation(2, 0x80, 0xBF) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        unsigned char low = lead == 0xF0 ? 0x90 : 0x80;
        unsigned char high = lead == 0xF4 ? 0x8F : 0xBF;
        return continuation(1, low, high) && continuation(2, 0x80, 0xBF) &&
                       continuation(3, 0x80, 0xBF)
                   ? 4
                   : 0;
    }
    return 0;
}

// Walks text character by character: `visit(character, units)` gets each well-formed
// sequence, or "?" for an invalid byte, with its count of UTF-16 units; it returns false to
// stop.
template <typename Visit>
void forEachCharacter(std::string_view text, Visit visit) {
    std::size_t pos = 0;
    while (pos < text.size()) {
        std::size_t length = utf8SequenceLength(text.substr(pos));
        bool go = length == 0 ? visit(std::string_view("?"), std::size_t{1})
                              : visit(text.substr(pos, length), std::size_t{length == 4 ? 2u : 1u});
        if (!go) return;
        pos += length == 0 ? 1 : length;
    }
}

// The code point of the well-formed sequence of `length` bytes at the start of `text`.
uint32_t codePointOf(std::string_view text, std::size_t length) {
    auto byte = [&](std::size_t i) {
        return static_cast<uint32_t>(static_cast<unsigned char>(text[i]));
    };
    switch (length) {
        case 1:
            return byte(0);
        case 2:
            return ((byte(0) & 0x1F) << 6) | (byte(1) & 0x3F);
        case 3:
            return ((byte(0) & 0x0F) << 12) | ((byte(1) & 0x3F) << 6) | (byte(2) & 0x3F);
        default:
            return ((byte(0) & 0x07) << 18) | ((byte(1) & 0x3F) << 12) | ((byte(2) & 0x3F) << 6) |
                   (byte(3) & 0x3F);
    }
}

bool isLead932(unsigned char byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool isUnassigned1252(unsigned char byte) {
    return byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

// Runs iconv over `input`; whenever it stops at input it cannot take, `onStop(rest, out)`
// appends a replacement and returns how many bytes to skip.
template <typename OnStop>
std::string convert(iconv_t cd, std::string_view input, OnStop onStop) {
    std::string out;
    out.reserve(input.size() + 8);
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(input.data());
    std::size_t inLeft = input.size();
    char buffer[512];
    while (inLeft > 0) {
        char* outPtr = buffer;
        std::size_t outLeft = sizeof buffer;
        std::size_t result = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
        out.append(buffer, static_cast<std::size_t>(outPtr - buffer));
        if (result == static_cast<std::size_t>(-1) && errno != E2BIG && inLeft > 0) {
            std::size_t skip = onStop(std::string_view(in, inLeft), out);
            if (skip == 0) skip = 1;
            if (skip > inLeft) skip = inLeft;
            in += skip;
            inLeft -= skip;
        }
    }
    char* outPtr = buffer;
    std::size_t outLeft = sizeof buffer;
    iconv(cd, nullptr, nullptr, &outPtr, &outLeft);
    out.append(buffer, static_cast<std::size_t>(outPtr - buffer));
    return out;
}

// The Windows ANSI code pages (and UTF-8): each keeps the bytes 0x00-0x7F as ASCII.
bool keepsAscii(int codePage) {
    switch (codePage) {
        case 874:
        case 932:
        case 936:
        case 949:
        case 950:
        case 65001:
            return true;
        default:
            return codePage >= 1250 && codePage <= 1258;
    }
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

AnsiCodec::AnsiCodec(int codePage)
    : codePage_(codePage),
      toAnsi_(codePageName(codePage).c_str(), "UTF-8"),
      fromAnsi_("UTF-8", codePageName(codePage).c_str()) {
    if (!toAnsi_.valid() || !fromAnsi_.valid()) {
        codePage_ = kFallbackCodePage;
        toAnsi_ = IconvDescriptor(codePageName(codePage_).c_str(), "UTF-8");
        fromAnsi_ = IconvDescriptor("UTF-8", codePageName(codePage_).c_str());
    }
}

std::string AnsiCodec::toAnsi(std::string_view utf8) {
    if (keepsAscii(codePage_) && isAscii(utf8)) return std::string(utf8);
    std::string clean = sanitizeUtf8(utf8);
    if (!toAnsi_.valid()) return clean;
    const bool is1252 = codePage_ == 1252;
    // The input is well formed, so iconv stops only at a character the code page lacks. Such
    // a character gets its best fit, or one "?" per UTF-16 unit.
    const int codePage = codePage_;
    auto unmapped = [is1252, codePage](std::string_view rest, std::string& out) {
        std::size_t length = utf8SequenceLength(rest);
        if (is1252 && length == 2 && static_cast<unsigned char>(rest[0]) == 0xC2 &&
            isUnassigned1252(static_cast<unsigned char>(rest[1]))) {
            out += rest[1];
        } else if (const BestFit* fit =
                       length == 2 || length == 3
                           ? bestFit(codePage, static_cast<char16_t>(codePointOf(rest, length)))
                           : nullptr) {
            out += static_cast<char>(fit->first);
            if (fit->second != 0) out += static_cast<char>(fit->second);
        } else {
            out += length == 4 ? "??" : "?";
        }
        return length;
    };
    // Characters whose best fit overrides what iconv would write go through `unmapped`
    // directly; runs of the others go through iconv.
    std::string out;
    std::size_t runStart = 0;
    std::size_t pos = 0;
    while (pos < clean.size()) {
        const std::size_t length = utf8SequenceLength(std::string_view(clean).substr(pos));
        const bool overridden =
            (length == 2 || length == 3) &&
            bestFit(codePage, static_cast<char16_t>(codePointOf(std::string_view(clean).substr(pos),
                                                                length))) != nullptr;
        if (overridden) {
            out += convert(toAnsi_.get(), std::string_view(clean).substr(runStart, pos - runStart),
                           unmapped);
            unmapped(std::string_view(clean).substr(pos), out);
            runStart = pos + length;
        }
        pos += length;
    }
    out += convert(toAnsi_.get(), std::string_view(clean).substr(runStart), unmapped);
    return out;
}

std::string AnsiCodec::fromAnsi(std::string_view bytes) {
    if (keepsAscii(codePage_) && isAscii(bytes)) return std::string(bytes);
    if (!fromAnsi_.valid()) return sanitizeUtf8(bytes);
    const bool is1252 = codePage_ == 1252;
    const bool is932 = codePage_ == 932;
    return convert(
        fromAnsi_.get(), bytes, [is1252, is932](std::string_view rest, std::string& out) {
            unsigned char byte = static_cast<unsigned char>(rest[0]);
            if (is1252 && isUnassigned1252(byte)) {
                out += '\xC2';
                out += static_cast<char>(byte);
            } else if (is932 && isLead932(byte)) {
                // A lead byte without a valid second byte: the pair (or the lone
                // lead byte before a NUL or the end) is one unknown character, U+30FB.
                out += "\xE3\x83\xBB";
                return rest.size() >= 2 && rest[1] != '\0' ? std::size_t{2} : std::size_t{1};
            } else if (is932 && byte == 0x80) {
                out += "\xC2\x80";
            } else if (is932 && (byte == 0xA0 || byte >= 0xFD)) {
                // The four single bytes without a character map to private-use
                // U+F8F0..U+F8F3.
                out += "\xEF\xA3";
                out += static_cast<char>(byte == 0xA0 ? 0xB0 : 0xB1 + (byte - 0xFD));
            } else {
                out += '?';
            }
            return std::size_t{1};
        });
}

namespace {

// Opening a converter costs more than most conversions (section and key names, numbers), so
// each thread keeps the few it used; a converter starts every conversion from its initial state.
AnsiCodec& cachedCodec(int codePage) {
    thread_local std::map<int, std::unique_ptr<AnsiCodec>> codecs;
    if (codecs.size() > 8 && codecs.find(codePage) == codecs.end()) codecs.clear();
    std::unique_ptr<AnsiCodec>& codec = codecs[codePage];
    if (!codec) codec = std::make_unique<AnsiCodec>(codePage);
    return *codec;
}

}  // namespace

std::string toAnsi(std::string_view utf8, int codePage) {
    return cachedCodec(codePage).toAnsi(utf8);
}

std::string fromAnsi(std::string_view bytes, int codePage) {
    return cachedCodec(codePage).fromAnsi(bytes);
}

std::size_t ansiByteCount(std::string_view utf8, int codePage) {
    return toAnsi(utf8, codePage).size();
}

std::string sanitizeUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    forEachCharacter(text, [&](std::string_view character, std::size_t) {
        out += character;
        return true;
    });
    return out;
}

std::size_t characterCount(std::string_view utf8) {
    std::size_t count = 0;
    forEachCharacter(utf8, [&](std::string_view, std::size_t units) {
        count += units;
        return true;
    });
    return count;
}

std::string leftCharacters(std::string_view utf8, std::size_t count) {
    std::string out;
    std::size_t used = 0;
    forEachCharacter(utf8, [&](std::string_view character, std::size_t units) {
        if (used + units > count) return false;
        used += units;
        out += character;
        return true;
    });
    return out;
}

std::string fitAnsi(std::string_view utf8, std::size_t bytes, int codePage) {
    std::size_t size = ansiByteCount(utf8, codePage);
    if (size <= bytes) return sanitizeUtf8(utf8) + std::string(bytes - size, ' ');
    return leftCharacters(utf8, bytes);
}

std::string cutAnsi(std::string_view utf8, std::size_t bytes, int codePage) {
    AnsiCodec& codec = cachedCodec(codePage);
    std::string out;
    std::size_t used = 0;
    forEachCharacter(utf8, [&](std::string_view character, std::size_t) {
        std::size_t size = codec.toAnsi(character).size();
        if (used + size > bytes) return false;
        used += size;
        out += character;
        return true;
    });
    return out;
}

std::string keepAnsiBytes(std::string_view utf8, std::size_t bytes, int codePage) {
    AnsiCodec& codec = cachedCodec(codePage);
    std::string ansi = codec.toAnsi(utf8);
    if (ansi.size() > bytes) ansi.resize(bytes);
    return codec.fromAnsi(ansi);
}

}  // namespace zt::text
