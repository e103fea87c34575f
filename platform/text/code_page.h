// Conversion between the component's UTF-8 text and the system's ANSI code page, with the
// character and byte counts that the ANSI side needs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <iconv.h>

namespace zt::text {

// Owns one iconv conversion descriptor.
class IconvDescriptor {
  public:
    IconvDescriptor(const char* toCode, const char* fromCode);
    ~IconvDescriptor();
    IconvDescriptor(const IconvDescriptor&) = delete;
    IconvDescriptor& operator=(const IconvDescriptor&) = delete;
    IconvDescriptor(IconvDescriptor&& other) noexcept;
    IconvDescriptor& operator=(IconvDescriptor&& other) noexcept;

    bool valid() const { return handle_ != kInvalid; }
    iconv_t get() const { return handle_; }

  private:
    static inline const iconv_t kInvalid = reinterpret_cast<iconv_t>(-1);
    iconv_t handle_ = kInvalid;
};

// The iconv name of a Windows code page: "CP<n>" (65001 is "UTF-8").
std::string codePageName(int codePage);

// Converter for one ANSI code page. A code page iconv does not know falls back to 1252.
// Characters the code page cannot hold get the platform's best fit in 1252 and 932 ("\u0100"
// is "A") or else "?" (one per UTF-16 unit); invalid UTF-8 bytes become "?". In 932 a lead
// byte without a valid second byte makes the pair one U+30FB, and the four single bytes
// without a character (0xA0, 0xFD-0xFF) map to U+F8F0-U+F8F3; other invalid bytes become "?". In
// code page 1252 the five bytes without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the
// control characters of the same number and back, so that any byte survives a round trip.
class AnsiCodec {
  public:
    explicit AnsiCodec(int codePage);

    // The code page actually used (after a fallback).
    int codePage() const { return codePage_; }

    std::string toAnsi(std::string_view utf8);
    std::string fromAnsi(std::string_view bytes);

  private:
    int codePage_;
    IconvDescriptor toAnsi_;
    IconvDescriptor fromAnsi_;
};

// One-off conversions through a converter the thread keeps for the code page.
std::string toAnsi(std::string_view utf8, int codePage);
std::string fromAnsi(std::string_view bytes, int codePage);
std::size_t ansiByteCount(std::string_view utf8, int codePage);

// Replaces every byte that is not part of a well-formed UTF-8 sequence by "?".
std::string sanitizeUtf8(std::string_view text);

// Length in characters as the host platform counts them (UTF-16 code units: a character
// beyond U+FFFF counts 2). An invalid byte counts as one character.
std::size_t characterCount(std::string_view utf8);

// The first `count` characters (counted as characterCount does). A character beyond U+FFFF
// that would straddle the limit is left out, since half of it cannot be kept.
std::string leftCharacters(std::string_view utf8, std::size_t count);

// The rule for fixed-size ANSI comment slots: when the ANSI form is at most `bytes` long,
// blanks are added until it is exactly `bytes`; otherwise the first `bytes` characters are
// kept. With multi-byte characters the kept text can still be longer than `bytes` in ANSI; use
// cutAnsi when the slot must never overflow.
std::string fitAnsi(std::string_view utf8, std::size_t bytes, int codePage);

// The longest run of whole leading characters whose ANSI form is at most `bytes` long.
std::string cutAnsi(std::string_view utf8, std::size_t bytes, int codePage);

// The text after a round trip through its ANSI form cut to at most `bytes` bytes. A
// double-byte character split by the cut becomes U+30FB.
std::string keepAnsiBytes(std::string_view utf8, std::size_t bytes, int codePage);

}  // namespace zt::text
