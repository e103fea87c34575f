#include "platform/ui/edit_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace zt::ui {
namespace {

bool isContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

// Byte offset of character `chars` (clamped to the end).
size_t byteOffset(const std::string& s, int chars) {
    size_t i = 0;
    for (int n = 0; n < chars && i < s.size(); ++n) {
        ++i;
        while (i < s.size() && isContinuation(static_cast<unsigned char>(s[i])))
            ++i;
    }
    return i;
}

int charCount(const std::string& s) {
    int n = 0;
    for (char c : s) {
        if (!isContinuation(static_cast<unsigned char>(c))) ++n;
    }
    // A text starting with continuation bytes still has them as one character.
    if (!s.empty() && isContinuation(static_cast<unsigned char>(s[0]))) ++n;
    return n;
}

// UTF-8 form of a key code; empty for codes that are no character.
std::string encode(int key) {
    std::string out;
    auto cp = static_cast<uint32_t>(key);
    if (key < 0 || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return out;
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
    return out;
}

}  // namespace

std::vector<std::string> splitCharacters(const std::string& text) {
    std::vector<std::string> out;
    size_t from = 0;
    while (from < text.size()) {
        size_t to = from + 1;
        while (to < text.size() && isContinuation(static_cast<unsigned char>(text[to])))
            ++to;
        out.push_back(text.substr(from, to - from));
        from = to;
    }
    return out;
}

int keyCodeOf(const std::string& ch) {
    if (ch.empty()) return 0;
    auto b0 = static_cast<unsigned char>(ch[0]);
    size_t need = b0 < 0x80             ? 1
                  : (b0 & 0xE0) == 0xC0 ? 2
                  : (b0 & 0xF0) == 0xE0 ? 3
                  : (b0 & 0xF8) == 0xF0 ? 4
                                        : 0;
    if (need != ch.size()) return b0;
    if (need == 1) return b0;
    uint32_t cp = b0 & (0x7F >> need);
    for (size_t i = 1; i < need; ++i) {
        auto b = static_cast<unsigned char>(ch[i]);
        if (!isContinuation(b)) return b0;
        cp = (cp << 6) | (b & 0x3F);
    }
    return static_cast<int>(cp);
}

void EditText::assign(std::string text) {
    text_ = std::move(text);
    selStart_ = 0;
    selLength_ = 0;
}

int EditText::length() const {
    return charCount(text_);
}

std::string EditText::selText() const {
    size_t from = byteOffset(text_, selStart_);
    size_t to = byteOffset(text_, selStart_ + selLength_);
    return text_.substr(from, to - from);
}

void EditText::setSelStart(int start) {
    selStart_ = std::clamp(start, 0, length());
    selLength_ = 0;
}

void EditText::setSelLength(int len) {
    selLength_ = std::clamp(len, 0, length() - selStart_);
}

void EditText::selectAll() {
    selStart_ = 0;
    selLength_ = length();
}

void EditText::replaceSelection(const std::string& text) {
    size_t from = byteOffset(text_, selStart_);
    size_t to = byteOffset(text_, selStart_ + selLength_);
    text_.replace(from, to - from, text);
    selStart_ = std::min(selStart_ + charCount(text), length());
    selLength_ = 0;
}

bool EditText::applyKey(int key, int maxLength) {
    if (key == kKeyBack) {
        if (selLength_ == 0) {
            if (selStart_ == 0) return false;
            --selStart_;
            selLength_ = 1;
        }
        replaceSelection({});
        return true;
    }
    if (key < 32 || key == 127) return false;
    std::string ch = encode(key);
    if (ch.empty()) return false;
    if (maxLength > 0 && length() - selLength_ + 1 > maxLength) return false;
    replaceSelection(ch);
    return true;
}

}  // namespace zt::ui
