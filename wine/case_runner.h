// The differential suite's driver, shared by the Windows program and its native counterpart:
// it draws the cases, asks the backend (Windows functions or the project's platform layer) and
// prints one answer line per case:
//     family|number|tags|question|answer
// Everything before the answer comes from the shared generator, so the comparer can check
// that both programs asked the same questions.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "wine/case_generator.h"

namespace ztdiff {

// Cases per locale (or per code page) for each family; two of each give at least 12,000.
inline constexpr uint32_t kProfileFiles = 500;
inline constexpr uint32_t kQueriesPerFile = 24;
inline constexpr uint32_t kWriteFiles = 1000;
inline constexpr uint32_t kWritesPerFile = 12;
inline constexpr uint32_t kPerLocale = 6000;

// Tags name the odd inputs a case holds; the allow-list explains a difference by a tag.
inline std::string readTags(const ReadQuery& q) {
    std::string tags;
    auto quoted = [](const std::string& s) {
        std::size_t b = 0, e = s.size();
        while (b < e && s[b] == ' ')
            ++b;
        while (e > b && s[e - 1] == ' ')
            --e;
        return e - b >= 2 && (s[b] == '"' || s[b] == '\'') && s[e - 1] == s[b];
    };
    auto tabbed = [](const std::string& s) {
        std::size_t b = 0, e = s.size();
        while (b < e && s[b] == ' ')
            ++b;
        while (e > b && s[e - 1] == ' ')
            --e;
        return e > b && (s[b] == '\t' || s[e - 1] == '\t');
    };
    if (!q.defaultNull && quoted(q.defaultValue)) tags += "quoted-default,";
    if ((!q.sectionNull && tabbed(q.section)) || (!q.keyNull && tabbed(q.key))) tags += "tab-name,";
    if (!tags.empty()) tags.pop_back();
    return tags;
}

// True when a settings file holds an empty section header ("[]", "[ ]"). Wine writes the file
// back from its parsed form without such headers, so their keys join the section above.
inline bool hasEmptyHeader(const std::string& text) {
    std::size_t pos = 0;
    while (pos < text.size()) {
        std::size_t end = text.find_first_of("\r\n", pos);
        if (end == std::string::npos) end = text.size();
        std::size_t b = pos;
        while (b < end && (text[b] == ' ' || text[b] == '\t'))
            ++b;
        if (b < end && text[b] == '[') {
            std::size_t c = b + 1;
            while (c < end && (text[c] == ' ' || text[c] == '\t'))
                ++c;
            if (c < end && text[c] == ']') return true;
        }
        pos = end + 1;
    }
    return false;
}

// True when one section of a settings file holds two key lines with an empty name ("=a",
// " = b"). Wine keeps only one of them when it writes the file back from its parsed form.
inline bool hasRepeatedEmptyName(const std::string& text) {
    int emptyNames = 0;
    std::size_t pos = 0;
    while (pos < text.size()) {
        std::size_t end = text.find_first_of("\r\n", pos);
        if (end == std::string::npos) end = text.size();
        std::size_t b = pos;
        while (b < end && (text[b] == ' ' || text[b] == '\t'))
            ++b;
        if (b < end && text[b] == '[' && text.find(']', b) < end) emptyNames = 0;
        if (b < end && text[b] == '=' && ++emptyNames == 2) return true;
        pos = end + 1;
    }
    return false;
}

class Output {
  public:
    explicit Output(std::FILE* out) : out_(out) {}
    void line(const char* family, uint32_t number, const std::string& tags,
              const std::string& question, const std::string& answer) {
        std::string text = std::string(family) + "|" + std::to_string(number) + "|" + tags + "|" +
                           question + "|" + answer + "\n";
        std::fwrite(text.data(), 1, text.size(), out_);
    }

  private:
    std::FILE* out_;
};

template <class Backend>
void runProfileRead(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x5245414400000000ull);
    uint32_t number = 0;
    for (uint32_t f = 0; f < kProfileFiles; ++f) {
        const std::string content = randomProfileFile(r);
        const std::string path = b.path("r" + std::to_string(f) + ".ini");
        b.writeFile(path, content);
        for (uint32_t i = 0; i < kQueriesPerFile; ++i) {
            const ReadQuery q = randomReadQuery(r);
            std::string buffer(q.size + 8, '\x01');
            const uint32_t n = b.getProfile(q, buffer, path);
            const bool list = q.sectionNull || q.keyNull;
            std::size_t shown = std::size_t{n} + (list ? 2 : 1);
            if (shown > q.size) shown = q.size;
            out.line("profile-read", number++, readTags(q),
                     "file " + std::to_string(f) + " " + describe(q),
                     std::to_string(n) + " '" + escape(buffer.substr(0, shown)) + "'");
        }
    }
}

// A written file is compared by what reading gives back: the value of the written key, the
// keys of its section and the list of sections.
template <class Backend>
void runProfileWrite(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x5752495400000000ull);
    uint32_t number = 0;
    for (uint32_t f = 0; f < kWriteFiles; ++f) {
        const std::string path = b.path("w" + std::to_string(f) + ".ini");
        std::string tags;
        if (r.chance(90)) {
            const std::string content = randomProfileFile(r);
            b.writeFile(path, content);
            if (hasEmptyHeader(content))
                tags = "empty-header";
            else if (hasRepeatedEmptyName(content))
                tags = "repeated-empty-name";
        }
        for (uint32_t i = 0; i < kWritesPerFile; ++i) {
            const WriteCall w = randomWrite(r);
            const bool ok = b.writeProfile(w, path);
            ReadQuery value{false, w.section, false, w.key, false, "<none>", 4096};
            ReadQuery keys{false, w.section, true, "", false, "<none>", 4096};
            ReadQuery sections{true, "", true, "", false, "<none>", 4096};
            std::string answer = ok ? "TRUE" : "FALSE";
            for (const ReadQuery* q : {&value, &keys, &sections}) {
                std::string buffer(q->size + 8, '\x01');
                const uint32_t n = b.getProfile(*q, buffer, path);
                answer += " '" + escape(buffer.substr(0, n)) + "'";
            }
            out.line("profile-write", number++, tags,
                     "file " + std::to_string(f) + " " + describe(w), answer);
        }
    }
}

template <class Backend>
void runNumberText(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x4E554D5400000000ull);
    uint32_t n8 = 0;
    uint32_t n4 = 0;
    for (const LocaleCase& loc : locales()) {
        for (uint32_t i = 0; i < kPerLocale; ++i) {
            const double d = randomDouble(r);
            out.line("r8-text", n8++, "", std::string(loc.name) + " " + hex64(bitsOf(d)),
                     escape(b.r8Text(d, loc.lcid)));
            const float s = randomSingle(r);
            out.line("r4-text", n4++, "",
                     std::string(loc.name) + " " + hex64(bitsOf(static_cast<double>(s))),
                     escape(b.r4Text(s, loc.lcid)));
        }
    }
}

template <class Backend>
void runNumeric(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x49534E5500000000ull);
    uint32_t number = 0;
    for (const LocaleCase& loc : locales()) {
        for (uint32_t i = 0; i < kPerLocale; ++i) {
            const std::string text = randomNumericText(r, loc.lcid == 0x0407);
            out.line("numeric", number++, "", std::string(loc.name) + " '" + escape(text) + "'",
                     b.numeric(text, loc.lcid));
        }
    }
}

template <class Backend>
void runIntegers(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x494E545300000000ull);
    for (uint32_t i = 0; i < 2 * kPerLocale; ++i) {
        const double d = randomIntegerInput(r);
        out.line("integer", i, "", hex64(bitsOf(d)), b.integers(d));
    }
}

template <class Backend>
void runFormat(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x464D545300000000ull);
    uint32_t number = 0;
    for (const LocaleCase& loc : locales()) {
        for (uint32_t i = 0; i < kPerLocale; ++i) {
            const std::string& pattern = r.pick(formatPatterns());
            const bool single = r.chance(25);
            const double d = randomFormatValue(r);
            const std::string question = std::string(loc.name) + " '" + pattern + "' " +
                                         (single ? "R4 " : "R8 ") + hex64(bitsOf(d));
            out.line("format", number++, "", question,
                     escape(b.format(d, single, pattern, loc.lcid)));
        }
    }
}

template <class Backend>
void runCodePages(Backend& b, Output& out, uint64_t seed) {
    Random r(seed ^ 0x434F444500000000ull);
    uint32_t number = 0;
    for (int codePage : {1252, 932}) {
        for (uint32_t i = 0; i < kPerLocale / 2; ++i) {
            const std::string bytes = randomAnsiBytes(r, codePage);
            out.line("code-page", number++, "",
                     std::to_string(codePage) + " to-unicode '" + escape(bytes) + "'",
                     escape(b.fromAnsi(bytes, codePage)));
            const std::string text = randomUnicodeText(r);
            out.line("code-page", number++, "",
                     std::to_string(codePage) + " to-ansi '" + escape(text) + "'",
                     escape(b.toAnsi(text, codePage)));
        }
    }
}

// Runs every family, or the one named by `only`.
template <class Backend>
void runAll(Backend& b, std::FILE* file, uint64_t seed, const std::string& only) {
    Output out(file);
    if (only.empty() || only == "profile-read") runProfileRead(b, out, seed);
    if (only.empty() || only == "profile-write") runProfileWrite(b, out, seed);
    if (only.empty() || only == "number-text") runNumberText(b, out, seed);
    if (only.empty() || only == "numeric") runNumeric(b, out, seed);
    if (only.empty() || only == "integer") runIntegers(b, out, seed);
    if (only.empty() || only == "format") runFormat(b, out, seed);
    if (only.empty() || only == "code-page") runCodePages(b, out, seed);
}

}  // namespace ztdiff
