// The differential suite's inputs. The Windows program and its native counterpart both include
// this header and draw every input from the same seeded generator, so that line N of both
// outputs answers the same question. Only integer arithmetic, plain IEEE operations and bit
// copies are used, and every draw is a statement of its own (the order in which the operands
// of one expression are evaluated is unspecified): the inputs are identical whichever
// compiler, options and C library build them.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace ztdiff {

// splitmix64: small, fast and fully specified.
class Random {
  public:
    explicit Random(uint64_t seed) : state_(seed) {}

    uint64_t next() {
        uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    // 0 <= result < n (n > 0).
    uint32_t below(uint32_t n) { return static_cast<uint32_t>(next() % n); }
    // True with probability percent/100.
    bool chance(uint32_t percent) { return below(100) < percent; }
    template <class T>
    const T& pick(const std::vector<T>& items) {
        return items[below(static_cast<uint32_t>(items.size()))];
    }

  private:
    uint64_t state_;
};

// Printable form of a byte string for the answer lines: bytes outside 0x20..0x7E and the
// characters \, | and ' are written as \xHH.
inline std::string escape(const std::string& bytes) {
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    for (unsigned char c : bytes) {
        if (c < 0x20 || c > 0x7E || c == '\\' || c == '|' || c == '\'') {
            out += "\\x";
            out.push_back(digits[c >> 4]);
            out.push_back(digits[c & 15]);
        } else {
            out.push_back(static_cast<char>(c));
        }
    }
    return out;
}

inline std::string hex64(uint64_t bits) {
    static const char digits[] = "0123456789ABCDEF";
    std::string text(16, '0');
    for (int i = 15; i >= 0; --i, bits >>= 4)
        text[static_cast<std::size_t>(i)] = digits[bits & 15];
    return text;
}

inline uint64_t bitsOf(double value) {
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

inline double doubleOf(uint64_t bits) {
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

inline float floatOf(uint32_t bits) {
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// The two locales every locale-dependent family runs under.
struct LocaleCase {
    const char* name;
    uint32_t lcid;
};
inline const std::vector<LocaleCase>& locales() {
    static const std::vector<LocaleCase> list = {{"en", 0x0409}, {"de", 0x0407}};
    return list;
}

// ---------------------------------------------------------------------------------------------
// Settings files

// Names the files use, with letter-case and blank variants made at query time.
inline const std::vector<std::string>& nameStock() {
    static const std::vector<std::string> stock = {
        "Main", "COMMON",   "Channel_01", "DATA_01",  "a",  "A b", "x]", "key",   "Speed", "k",
        "Dup",  "\xC4rger", "\xE4rger",   "\x82\xA0", "#k", "x=y", "''", "\"q\"", "",      "Long"};
    return stock;
}

inline std::string randomName(Random& r) {
    if (r.chance(80)) return r.pick(nameStock());
    std::string s;
    const uint32_t n = 1 + r.below(6);
    for (uint32_t i = 0; i < n; ++i)
        s.push_back(static_cast<char>('a' + r.below(4)));
    return s;
}

// Flips the case of ASCII letters at random.
inline std::string caseVariant(Random& r, std::string s) {
    for (char& c : s) {
        if (r.chance(30)) {
            if (c >= 'a' && c <= 'z')
                c = static_cast<char>(c - 'a' + 'A');
            else if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return s;
}

inline std::string blanks(Random& r) {
    static const std::vector<std::string> forms = {"", "", "", " ", "  ", "\t", " \t "};
    return r.pick(forms);
}

inline std::string randomValue(Random& r) {
    static const std::vector<std::string> stock = {
        "1",        "",      "12.5",      "v ;x",
        "\"  a \"", "'b'",   "\"a'",      "b=c",
        "\"\"",     "'",     "  x  ",     "value with blanks",
        "-312",     "1E-05", "\xE9t\xE9", "\x82\xA0\x82\xA2",
        "Sam"};
    if (r.chance(85)) return r.pick(stock);
    if (r.chance(50)) {
        const uint32_t length = 40 + r.below(300);
        return std::string(length, static_cast<char>('a' + r.below(26)));
    }
    std::string s;
    const uint32_t n = r.below(12);
    for (uint32_t i = 0; i < n; ++i) {
        // Printable bytes and high-bit bytes, no line ends.
        const uint32_t c = r.chance(85) ? 0x20 + r.below(0x5F) : 0xA0 + r.below(0x60);
        s.push_back(static_cast<char>(c));
    }
    return s;
}

inline std::string lineEnd(Random& r, uint32_t style) {
    // style 0: CR LF everywhere, 1: LF only, 2: CR only, 3: mixed.
    switch (style) {
        case 0:
            return "\r\n";
        case 1:
            return "\n";
        case 2:
            return "\r";
        default:
            break;
    }
    static const std::vector<std::string> ends = {"\r\n", "\n", "\r"};
    return r.pick(ends);
}

// One settings file full of odd forms: blanks around names and '=', quotes, duplicates, lines
// without '=', comments, empty and malformed headers, keys before any header, long lines and
// high-bit bytes, with CR LF, LF-only, CR-only or mixed line ends.
inline std::string randomProfileFile(Random& r) {
    const uint32_t style = r.below(4);
    std::string text;
    const uint32_t lines = r.below(30);
    for (uint32_t i = 0; i < lines; ++i) {
        const uint32_t kind = r.below(100);
        std::string line;
        if (kind < 20) {
            line = blanks(r) + "[";
            line += blanks(r);
            line += caseVariant(r, randomName(r));
            line += blanks(r);
            line += "]";
            if (r.chance(10)) line += r.chance(50) ? "]" : " tail";
        } else if (kind < 25) {
            static const std::vector<std::string> odd = {"[]",    "[ ]",  "[T",          "[x]]",
                                                         "[a]b]", "[[y]", " [Main] x=1", "]k=1"};
            line = r.pick(odd);
        } else if (kind < 75) {
            line = blanks(r);
            line += caseVariant(r, randomName(r));
            line += blanks(r);
            line += "=";
            line += blanks(r);
            line += randomValue(r);
            line += blanks(r);
        } else if (kind < 82) {
            line = blanks(r) + ";";
            line += randomName(r);
            line += "=";
            line += randomValue(r);
        } else if (kind < 88) {
            static const std::vector<std::string> bare = {
                "Key", "120,0,5,-312,4000,0,0", "=novalue", "=", " = x", "#c", "x y"};
            line = r.pick(bare);
        } else if (kind < 94) {
            line = blanks(r);
        } else {
            const uint32_t nameLength = 200 + r.below(800);
            line = std::string(nameLength, static_cast<char>('A' + r.below(26))) + "=";
            line += std::string(r.below(900), 'v');
        }
        text += line;
        if (i + 1 < lines || r.chance(80)) text += lineEnd(r, style);
    }
    return text;
}

// One GetPrivateProfileStringA question.
struct ReadQuery {
    bool sectionNull = false;
    std::string section;
    bool keyNull = false;
    std::string key;
    bool defaultNull = false;
    std::string defaultValue;
    uint32_t size = 0;
};

inline std::string queryName(Random& r) {
    std::string name = caseVariant(r, randomName(r));
    if (r.chance(20)) {
        const uint32_t before = r.below(3);
        name = std::string(before, ' ') + name + std::string(r.below(3), ' ');
    }
    if (r.chance(3)) name = "\t" + name;
    return name;
}

inline ReadQuery randomReadQuery(Random& r) {
    ReadQuery q;
    q.sectionNull = r.chance(8);
    q.section = queryName(r);
    q.keyNull = r.chance(15);
    q.key = queryName(r);
    q.defaultNull = r.chance(10);
    static const std::vector<std::string> defaults = {
        "dflt", "", "def  ", "  d  ", "'q'", "\"dq\"", "d\t", "GetPrivateProfileReadError"};
    q.defaultValue = r.pick(defaults);
    const uint32_t sizeKind = r.below(10);
    q.size = sizeKind < 3 ? 1 + r.below(8) : (sizeKind < 5 ? 1 + r.below(64) : 4096);
    return q;
}

inline std::string describe(const ReadQuery& q) {
    return (q.sectionNull ? std::string("NULL") : "'" + escape(q.section) + "'") + "," +
           (q.keyNull ? std::string("NULL") : "'" + escape(q.key) + "'") + "," +
           (q.defaultNull ? std::string("NULL") : "'" + escape(q.defaultValue) + "'") + "," +
           std::to_string(q.size);
}

// One WritePrivateProfileStringA call.
struct WriteCall {
    std::string section;
    bool keyNull = false;
    std::string key;
    bool valueNull = false;
    std::string value;
};

inline WriteCall randomWrite(Random& r) {
    WriteCall w;
    // No tabs around the names here: the two sides differ on them (see the read family), and
    // a written file that differs would make every later answer for it differ too.
    auto noTabs = [](std::string s) {
        std::string out;
        for (char c : s)
            if (c != '\t') out.push_back(c);
        return out;
    };
    w.section = noTabs(queryName(r));
    if (w.section.find_first_not_of(' ') == std::string::npos) w.section = "S";
    w.keyNull = r.chance(4);
    w.key = noTabs(queryName(r));
    if (w.key.find_first_not_of(' ') == std::string::npos) w.key = "k";
    w.valueNull = r.chance(10);
    w.value = randomValue(r);
    // Leading and trailing blanks of a value do not survive reading back; values that start
    // and end with the same quote lose them. Both sides write the same value, so these remain
    // comparable through what reading gives.
    return w;
}

inline std::string describe(const WriteCall& w) {
    return "'" + escape(w.section) + "'," +
           (w.keyNull ? std::string("NULL") : "'" + escape(w.key) + "'") + "," +
           (w.valueNull ? std::string("NULL") : "'" + escape(w.value) + "'");
}

// ---------------------------------------------------------------------------------------------
// Numbers

// A double from a random bit pattern, or a short decimal number (few digits, any exponent),
// where the plain and exponent forms and the rounding ties lie.
inline double randomDouble(Random& r) {
    if (r.chance(45)) return doubleOf(r.next());
    static const uint64_t powers[] = {
        1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000, 10000000000ull};
    const uint64_t digits = r.next();
    const double mantissa = static_cast<double>(digits % powers[1 + r.below(8)]);
    int exponent = static_cast<int>(r.below(60)) - 35;
    const bool negative = r.chance(30);
    // Plain IEEE operations only (no library parsing), so both sides get the same bits.
    double value = mantissa;
    for (; exponent > 0; exponent -= 10)
        value *= exponent >= 10 ? 1e10 : static_cast<double>(powers[exponent]);
    for (; exponent < 0; exponent += 10)
        value /= exponent <= -10 ? 1e10 : static_cast<double>(powers[-exponent]);
    return negative ? -value : value;
}

inline float randomSingle(Random& r) {
    if (r.chance(45)) return floatOf(static_cast<uint32_t>(r.next()));
    return static_cast<float>(randomDouble(r));
}

// Around the integer conversions' ties and limits.
inline double randomIntegerInput(Random& r) {
    switch (r.below(6)) {
        case 0:
            return doubleOf(r.next());
        case 1: {
            static const double limits[] = {-32768.5,      -32768.49999999,
                                            32767.5,       32767.49999999,
                                            -2147483648.5, -2147483648.4999,
                                            2147483647.5,  2147483647.4999,
                                            32768.0,       -32769.0,
                                            2147483648.0,  -2147483649.0,
                                            0.5,           -0.5,
                                            1.5,           -1.5};
            return limits[r.below(16)];
        }
        case 2:
            return (static_cast<double>(r.below(200000)) - 100000.0) + 0.5;
        case 3:
            return (static_cast<double>(r.next() % 8000000000ull) - 4000000000.0) / 2.0;
        case 4:
            return (static_cast<double>(r.below(2000000)) - 1000000.0) / 1000.0;
        default:
            return randomDouble(r);
    }
}

// Texts for the numeric test: number-like fragments glued at random.
inline std::string randomNumericText(Random& r, bool german) {
    static const std::vector<std::string> parts = {"0",
                                                   "1",
                                                   "2",
                                                   "5",
                                                   "9",
                                                   "12",
                                                   "345",
                                                   "1000",
                                                   ".",
                                                   ",",
                                                   "+",
                                                   "-",
                                                   "(",
                                                   ")",
                                                   "e",
                                                   "E",
                                                   "e+",
                                                   "e-",
                                                   "d",
                                                   " ",
                                                   "\t",
                                                   "$",
                                                   "\xE2\x82\xAC",
                                                   "&H",
                                                   "&h",
                                                   "&O",
                                                   "FF",
                                                   "a",
                                                   "x",
                                                   "%",
                                                   "1.5",
                                                   "1,5",
                                                   "2.50",
                                                   "0.5",
                                                   "1e2",
                                                   "12345678901234567890",
                                                   "\r\n"};
    std::string s;
    if (r.chance(30)) {
        // Plausible numbers in the locale's own shape.
        const char* point = german ? "," : ".";
        const char* group = german ? "." : ",";
        if (r.chance(20)) s += r.chance(50) ? "-" : " ";
        s += std::to_string(r.below(100000));
        if (r.chance(20)) s += std::string(group) + "000";
        if (r.chance(60)) s += std::string(point) + std::to_string(r.below(1000));
        if (r.chance(10)) s += "E" + std::to_string(static_cast<int>(r.below(40)) - 20);
        if (r.chance(10)) s += " ";
        return s;
    }
    const uint32_t n = 1 + r.below(5);
    for (uint32_t i = 0; i < n; ++i)
        s += r.pick(parts);
    return s;
}

inline const std::vector<std::string>& formatPatterns() {
    static const std::vector<std::string> patterns = {
        "00",          "######0",  "######0.0",  "######0.00",  "######0.000",
        "######0;---", "#####0.0", "#######0.0", "########0.0", "#0",
        "#.##",        ".#",       "0.00",       "#0.000000",   "0.0000000000"};
    return patterns;
}

// Values for the patterns: short decimals with ties at the patterns' last places.
inline double randomFormatValue(Random& r) {
    switch (r.below(4)) {
        case 0: {
            const int64_t n = static_cast<int64_t>(r.below(2000001)) - 1000000;
            static const double scales[] = {1, 10, 100, 1000, 10000, 100000};
            return static_cast<double>(n) / scales[r.below(6)];
        }
        case 1:
            return (static_cast<double>(r.below(20001)) - 10000.0) / 20.0 + 0.05;
        case 2:
            return 0.0;
        default: {
            // Magnitudes a graph shows; Wine's formatter cannot take numbers of 1E+16 and up.
            const double d = randomDouble(r);
            return (d < 1e12 && d > -1e12) ? d : 0.5;
        }
    }
}

// ---------------------------------------------------------------------------------------------
// Code pages

inline std::string randomAnsiBytes(Random& r, int codePage) {
    std::string s;
    const uint32_t n = 1 + r.below(12);
    for (uint32_t i = 0; i < n; ++i) {
        uint32_t c;
        if (r.chance(40))
            c = 0x20 + r.below(0x5F);
        else if (codePage == 932 && r.chance(60)) {
            // Lead byte and a trail byte, valid or not.
            static const uint32_t leads[] = {0x81, 0x82, 0x83, 0x88, 0x93, 0x9F, 0xE0, 0xEA,
                                             0xEB, 0xED, 0xEE, 0xF0, 0xFA, 0xFC, 0xA0, 0xFD};
            s.push_back(static_cast<char>(leads[r.below(16)]));
            c = r.chance(85) ? 0x40 + r.below(0xBD) : r.below(256);
        } else
            c = 1 + r.below(255);
        s.push_back(static_cast<char>(c));
    }
    return s;
}

inline void appendUtf8(std::string& out, uint32_t cp) {
    if (cp < 0x80)
        out.push_back(static_cast<char>(cp));
    else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

// UTF-8 text of characters the code pages hold, and some they do not.
inline std::string randomUnicodeText(Random& r) {
    static const uint32_t ranges[][2] = {
        {0x20, 0x7E},     {0xA0, 0xFF},     {0x152, 0x153},   {0x160, 0x161},     {0x20AC, 0x20AC},
        {0x2018, 0x2026}, {0x3000, 0x30FF}, {0x4E00, 0x9FA0}, {0xFF01, 0xFF9F},   {0x100, 0x17F},
        {0x391, 0x3C9},   {0x410, 0x44F},   {0x2460, 0x2473}, {0x1F600, 0x1F64F}, {0x1, 0x1F}};
    std::string s;
    const uint32_t n = 1 + r.below(10);
    for (uint32_t i = 0; i < n; ++i) {
        const auto& range = ranges[r.below(15)];
        appendUtf8(s, range[0] + r.below(range[1] - range[0] + 1));
    }
    return s;
}

}  // namespace ztdiff
