// Compares the Windows program's answers with the native counterpart's, line by line, and
// reports per family how many cases agree, how many differ for a reason on the allow-list and
// how many differ unexplained, with the first unexplained differences of each family.
// Usage: compare_answers <windows-answers> <native-answers> <allow-list> [minimum-per-family]
// Exit status: 0 when every family has at least the minimum of cases and no unexplained
// difference, 1 otherwise, 2 on bad input.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Case {
    std::string family;
    std::string number;
    std::string tags;
    std::string question;
    std::string answer;
};

bool parseCase(const std::string& line, Case& c) {
    std::string* fields[] = {&c.family, &c.number, &c.tags, &c.question};
    std::size_t pos = 0;
    for (std::string* field : fields) {
        const std::size_t bar = line.find('|', pos);
        if (bar == std::string::npos) return false;
        *field = line.substr(pos, bar - pos);
        pos = bar + 1;
    }
    c.answer = line.substr(pos);
    return true;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> out;
    for (std::string w; in >> w;)
        out.push_back(w);
    return out;
}

bool hasTag(const Case& c, const std::string& tag) {
    std::istringstream in(c.tags);
    for (std::string t; std::getline(in, t, ',');)
        if (t == tag) return true;
    return false;
}

// The 16-hex-digit bit pattern that ends a number question, if any.
bool questionBits(const Case& c, uint64_t& bits) {
    const std::vector<std::string> w = words(c.question);
    if (w.empty() || w.back().size() != 16) return false;
    bits = std::strtoull(w.back().c_str(), nullptr, 16);
    return true;
}

double doubleOfBits(uint64_t bits) {
    double d;
    static_assert(sizeof d == sizeof bits);
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

// The pattern of a format question: the text between the first two quotes.
std::string formatPattern(const Case& c) {
    const std::size_t a = c.question.find('\'');
    const std::size_t b = c.question.find('\'', a + 1);
    return a == std::string::npos || b == std::string::npos ? std::string()
                                                            : c.question.substr(a + 1, b - a - 1);
}

using Rule = std::function<bool(const Case& windows, const Case& native)>;

// The differences an allow-list entry can name. Each rule recognises one known difference as
// narrowly as the answers allow.
std::map<std::string, Rule> rules() {
    std::map<std::string, Rule> r;
    // Cases whose input holds the odd form named by the tag.
    for (const char* tag : {"quoted-default", "tab-name", "empty-header", "repeated-empty-name"}) {
        r[std::string("tag:") + tag] = [tag](const Case& w, const Case&) { return hasTag(w, tag); };
    }
    // A name list cut to the buffer: Windows ends it with two NULs, Wine with one.
    r["list-cut-single-nul"] = [](const Case& w, const Case& n) {
        const std::string wineEnd = "\\x00\\x01'";
        const std::string nativeEnd = "\\x00\\x00'";
        return w.answer.size() == n.answer.size() && w.answer.size() > wineEnd.size() &&
               w.answer.compare(w.answer.size() - wineEnd.size(), wineEnd.size(), wineEnd) == 0 &&
               n.answer.compare(n.answer.size() - nativeEnd.size(), nativeEnd.size(), nativeEnd) ==
                   0 &&
               w.answer.substr(0, w.answer.size() - 5) == n.answer.substr(0, n.answer.size() - 5);
    };
    // After a write, the same value, the same sections and the same key names in another
    // order.
    r["key-order"] = [](const Case& w, const Case& n) {
        auto parts = [](const std::string& answer) {
            std::vector<std::string> p;
            std::size_t pos = 0;
            while ((pos = answer.find('\'', pos)) != std::string::npos) {
                const std::size_t end = answer.find('\'', pos + 1);
                if (end == std::string::npos) break;
                p.push_back(answer.substr(pos + 1, end - pos - 1));
                pos = end + 1;
            }
            return p;
        };
        auto names = [](const std::string& list) {
            std::multiset<std::string> set;
            std::size_t pos = 0;
            while (pos < list.size()) {
                std::size_t end = list.find("\\x00", pos);
                if (end == std::string::npos) end = list.size();
                set.insert(list.substr(pos, end - pos));
                pos = end + 4;
            }
            return set;
        };
        const std::vector<std::string> a = parts(w.answer), b = parts(n.answer);
        return a.size() == 3 && b.size() == 3 && a[0] == b[0] && a[2] == b[2] && a[1] != b[1] &&
               names(a[1]) == names(b[1]) && w.answer.substr(0, 5) == n.answer.substr(0, 5);
    };
    // NaN and infinities.
    r["non-finite"] = [](const Case& w, const Case&) {
        uint64_t bits = 0;
        return questionBits(w, bits) && ((bits >> 52) & 0x7FF) == 0x7FF;
    };
    // The exponent form under a comma-decimal locale: Wine keeps the point.
    r["exponent-point"] = [](const Case& w, const Case& n) {
        if (w.question.rfind("de ", 0) != 0 || w.answer.find('E') == std::string::npos)
            return false;
        std::string t = w.answer;
        for (char& ch : t)
            if (ch == '.') ch = ',';
        return t == n.answer;
    };
    // Text to double: the same integers, the double off by at most two units in the last place.
    r["last-bits"] = [](const Case& w, const Case& n) {
        const std::vector<std::string> a = words(w.answer), b = words(n.answer);
        if (a.size() != 6 || b.size() != 6 || a[1].size() != 16 || b[1].size() != 16) return false;
        if (a[3] != b[3] || a[5] != b[5]) return false;
        const int64_t x = static_cast<int64_t>(std::strtoull(a[1].c_str(), nullptr, 16));
        const int64_t y = static_cast<int64_t>(std::strtoull(b[1].c_str(), nullptr, 16));
        return x - y <= 2 && y - x <= 2;
    };
    // Texts with more than 19 digits in a row: Wine drops the digits it cannot hold.
    r["long-digit-run"] = [](const Case& w, const Case&) {
        int run = 0;
        for (char ch : w.question) {
            run = (ch >= '0' && ch <= '9') ? run + 1 : 0;
            if (run > 19) return true;
        }
        return false;
    };
    // Text of a magnitude below one half to an integer: Wine gives 1 or -1 instead of 0 (the
    // double may differ in its last bits as well).
    r["small-text-to-one"] = [](const Case& w, const Case& n) {
        const std::vector<std::string> a = words(w.answer), b = words(n.answer);
        if (a.size() != 6 || b.size() != 6 || a[1].size() != 16 || b[1].size() != 16) return false;
        const int64_t x = static_cast<int64_t>(std::strtoull(a[1].c_str(), nullptr, 16));
        const int64_t y = static_cast<int64_t>(std::strtoull(b[1].c_str(), nullptr, 16));
        if (x - y > 2 || y - x > 2) return false;
        const double v = doubleOfBits(static_cast<uint64_t>(x));
        return v > -0.5 && v < 0.5 && b[3] == "0" && b[5] == "0" && (a[3] == "1" || a[3] == "-1") &&
               a[3] == a[5];
    };
    // "-0": Wine keeps the sign of the zero, the project reads plain 0.
    r["negative-zero"] = [](const Case& w, const Case& n) {
        return w.answer == "r8 8000000000000000 i2 0 i4 0" &&
               n.answer == "r8 0000000000000000 i2 0 i4 0";
    };
    // Hexadecimal and octal texts ("&H", "&O"): Wine ignores a sign next to them, reads up to
    // four hex digits unsigned for doubles and 32-bit integers, and refuses a currency symbol
    // or exponent sign around them.
    r["hex-octal-text"] = [](const Case& w, const Case&) {
        for (std::size_t i = 0; i + 1 < w.question.size(); ++i) {
            const char c = static_cast<char>(w.question[i + 1] | 0x20);
            if (w.question[i] == '&' && (c == 'h' || c == 'o')) return true;
        }
        return false;
    };
    // Texts the numeric test refuses and Wine's parser takes (or takes and then finds too
    // large): group separators after the decimal separator or at the end ("0.5,", ".1,52"),
    // several signs ("-+9", "1000++", "(9-"), an exponent before the digits ("e1,5" is 50),
    // line ends inside the number ("1\r\n,").
    r["wine-takes-malformed"] = [](const Case& w, const Case& n) {
        return n.answer == "r8 mismatch i2 mismatch i4 mismatch" &&
               w.answer != "r8 mismatch i2 mismatch i4 mismatch";
    };
    // A currency symbol together with an exponent ("$1e2"): the numeric test takes it, Wine
    // refuses it.
    r["currency-with-exponent"] = [](const Case& w, const Case& n) {
        const std::string& q = w.question;
        const bool currency =
            q.find('$') != std::string::npos || q.find("\\xE2\\x82\\xAC") != std::string::npos;
        const bool exponent = q.find_first_of("eE", 3) != std::string::npos;
        return currency && exponent && w.answer == "r8 mismatch i2 mismatch i4 mismatch" &&
               n.answer != w.answer;
    };
    // A pattern without decimal places and a value of magnitude 0.5 to 1: Wine does not round
    // it up to 1.
    r["below-one-not-rounded"] = [](const Case& w, const Case& n) {
        uint64_t bits = 0;
        if (!questionBits(w, bits) || formatPattern(w).find('.') != std::string::npos) return false;
        const double v = doubleOfBits(bits);
        const double m = v < 0 ? -v : v;
        return m >= 0.5 && m < 1 && !w.answer.empty() && w.answer.back() == '0' &&
               n.answer == w.answer.substr(0, w.answer.size() - 1) + "1";
    };
    // A pattern with no integer placeholder (".#") and a value of one or more: Wine drops the
    // integer digits.
    r["point-pattern-integer-digits"] = [](const Case& w, const Case& n) {
        uint64_t bits = 0;
        if (!questionBits(w, bits) || formatPattern(w).rfind(".", 0) != 0) return false;
        const double v = doubleOfBits(bits);
        const bool wineDigitsFirst =
            w.answer.find_first_of("0123456789") < w.answer.find_first_of(".,");
        return (v >= 0.95 || v <= -0.95) && !wineDigitsFirst && n.answer != w.answer;
    };
    // Values so small that their number text has the exponent form: Wine's formatter shows
    // zeros for the "#" places.
    r["tiny-value-zeros"] = [](const Case& w, const Case&) {
        uint64_t bits = 0;
        if (!questionBits(w, bits)) return false;
        const double v = doubleOfBits(bits);
        return v != 0 && v > -1e-5 && v < 1e-5;
    };
    // A comma-decimal locale and a value whose number text has the exponent form (doubles
    // from 1E+15 or below 1E-04, singles from 1E+07): Wine formats the text "2.075012E+08"
    // and reads it back in the locale, where "." groups thousands, so 2.075012E+08 shows as
    // 207501200000000.
    r["comma-locale-exponent-value"] = [](const Case& w, const Case&) {
        uint64_t bits = 0;
        if (w.question.rfind("de ", 0) != 0 || !questionBits(w, bits)) return false;
        const double v = doubleOfBits(bits);
        const double m = v < 0 ? -v : v;
        const bool single = w.question.find(" R4 ") != std::string::npos;
        return m != 0 && (m < 1e-4 || m >= (single ? 1e7 : 1e15));
    };
    return r;
}

struct FamilyCount {
    uint64_t cases = 0;
    uint64_t agree = 0;
    std::map<std::string, uint64_t> allowed;
    uint64_t unexplained = 0;
    std::vector<std::pair<Case, Case>> firstUnexplained;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "usage: compare_answers <windows-answers> <native-answers> <allow-list> "
                     "[minimum-per-family]\n";
        return 2;
    }
    const uint64_t minimum = argc > 4 ? std::strtoull(argv[4], nullptr, 10) : 0;
    std::ifstream windowsFile(argv[1], std::ios::binary);
    std::ifstream nativeFile(argv[2], std::ios::binary);
    std::ifstream allowFile(argv[3]);
    if (!windowsFile || !nativeFile || !allowFile) {
        std::cerr << "compare_answers: cannot open the inputs\n";
        return 2;
    }

    // Allow-list lines: "<family> <rule>", with the reason and evidence in the comment lines
    // above each entry.
    const std::map<std::string, Rule> known = rules();
    std::map<std::string, std::vector<std::string>> allowed;
    std::size_t entries = 0;
    for (std::string line; std::getline(allowFile, line);) {
        const std::vector<std::string> w = words(line);
        if (w.empty() || w[0][0] == '#') continue;
        if (w.size() != 2 || known.count(w[1]) == 0) {
            std::cerr << "compare_answers: bad allow-list entry: " << line << "\n";
            return 2;
        }
        allowed[w[0]].push_back(w[1]);
        ++entries;
    }

    std::map<std::string, FamilyCount> families;
    std::string wl, nl;
    uint64_t lineNumber = 0;
    bool bad = false;
    for (;;) {
        const bool gotW = static_cast<bool>(std::getline(windowsFile, wl));
        const bool gotN = static_cast<bool>(std::getline(nativeFile, nl));
        if (!gotW && !gotN) break;
        ++lineNumber;
        Case w, n;
        if (gotW != gotN || !parseCase(wl, w) || !parseCase(nl, n) || w.family != n.family ||
            w.number != n.number || w.question != n.question) {
            std::cerr << "compare_answers: the two programs asked different questions at line "
                      << lineNumber << "\n  windows: " << wl << "\n  native:  " << nl << "\n";
            bad = true;
            break;
        }
        FamilyCount& f = families[w.family];
        ++f.cases;
        if (w.answer == n.answer) {
            ++f.agree;
            continue;
        }
        bool explained = false;
        for (const std::string& rule : allowed[w.family]) {
            if (known.at(rule)(w, n)) {
                ++f.allowed[rule];
                explained = true;
                break;
            }
        }
        if (explained) continue;
        ++f.unexplained;
        if (f.firstUnexplained.size() < 8) f.firstUnexplained.emplace_back(w, n);
    }

    std::printf("%-14s %8s %8s %8s %11s\n", "family", "cases", "agree", "allowed", "unexplained");
    for (const auto& [name, f] : families) {
        uint64_t allowedCount = 0;
        for (const auto& [rule, count] : f.allowed)
            allowedCount += count;
        std::printf("%-14s %8llu %8llu %8llu %11llu\n", name.c_str(),
                    static_cast<unsigned long long>(f.cases),
                    static_cast<unsigned long long>(f.agree),
                    static_cast<unsigned long long>(allowedCount),
                    static_cast<unsigned long long>(f.unexplained));
        for (const auto& [rule, count] : f.allowed)
            std::printf("    allowed %-28s %llu\n", rule.c_str(),
                        static_cast<unsigned long long>(count));
        if (f.cases < minimum) {
            std::printf("    too few cases: %llu, at least %llu wanted\n",
                        static_cast<unsigned long long>(f.cases),
                        static_cast<unsigned long long>(minimum));
            bad = true;
        }
        for (const auto& [w, n] : f.firstUnexplained) {
            std::printf("    #%s %s\n      windows: %s\n      native:  %s\n", w.number.c_str(),
                        w.question.c_str(), w.answer.c_str(), n.answer.c_str());
        }
        if (f.unexplained > 0) bad = true;
    }
    std::printf("allow-list entries: %zu\n", entries);
    if (families.empty()) {
        std::printf("no answers\n");
        bad = true;
    }
    return bad ? 1 : 0;
}
