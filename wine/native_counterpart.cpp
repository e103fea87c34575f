// The native side of the differential suite: answers the shared cases with the project's own
// platform functions, for comparison with the Windows program's answers.
// Usage: native_counterpart <work-folder> <seed> [family]
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/host_locale.h"
#include "platform/profile/private_profile.h"
#include "platform/text/code_page.h"
#include "platform/text/format_pattern.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"
#include "wine/case_runner.h"

namespace {

// The regional settings the two test locales have on Windows.
zt::HostLocale localeOf(uint32_t lcid) {
    zt::HostLocale locale;
    if (lcid == 0x0407) {
        locale.decimalSeparator = ",";
        locale.thousandsSeparator = ".";
        locale.currencySymbol = "\xE2\x82\xAC";
    }
    return locale;
}

template <class T>
std::string integerAnswer(const char* name, const std::optional<T>& value) {
    return std::string(name) + (value ? " " + std::to_string(*value) : " overflow");
}

struct NativeBackend {
    std::string folder;

    std::string path(const std::string& name) const { return folder + "/" + name; }

    void writeFile(const std::string& file, const std::string& bytes) const {
        std::FILE* f = std::fopen(file.c_str(), "wb");
        if (f == nullptr) return;
        std::fwrite(bytes.data(), 1, bytes.size(), f);
        std::fclose(f);
    }

    uint32_t getProfile(const ztdiff::ReadQuery& q, std::string& buffer,
                        const std::string& file) const {
        return zt::profile::GetPrivateProfileStringA(
            q.sectionNull ? nullptr : q.section.c_str(), q.keyNull ? nullptr : q.key.c_str(),
            q.defaultNull ? nullptr : q.defaultValue.c_str(), buffer.data(), q.size, file.c_str());
    }

    bool writeProfile(const ztdiff::WriteCall& w, const std::string& file) const {
        return zt::profile::WritePrivateProfileStringA(
            w.section.c_str(), w.keyNull ? nullptr : w.key.c_str(),
            w.valueNull ? nullptr : w.value.c_str(), file.c_str());
    }

    std::string r8Text(double value, uint32_t lcid) const {
        return zt::text::doubleToText(value, localeOf(lcid));
    }

    std::string r4Text(float value, uint32_t lcid) const {
        return zt::text::singleToText(value, localeOf(lcid));
    }

    std::string numeric(const std::string& text, uint32_t lcid) const {
        const zt::HostLocale locale = localeOf(lcid);
        const std::optional<zt::text::DecimalNumber> number = zt::text::parseDecimal(text, locale);
        if (!number) return "r8 mismatch i2 mismatch i4 mismatch";
        // Numeric text beyond the double range fails the numeric test as an overflow.
        const std::optional<double> d = zt::text::toDouble(*number);
        if (!d) return "r8 overflow i2 overflow i4 overflow";
        std::string answer = "r8 " + ztdiff::hex64(ztdiff::bitsOf(*d));
        answer += " " + integerAnswer("i2", zt::text::toInt16(text, locale));
        answer += " " + integerAnswer("i4", zt::text::toInt32(text, locale));
        return answer;
    }

    std::string integers(double value) const {
        return integerAnswer("i2", zt::text::toInt16(value)) + " " +
               integerAnswer("i4", zt::text::toInt32(value));
    }

    std::string format(double value, bool single, const std::string& pattern, uint32_t lcid) const {
        if (single) {
            return zt::text::formatNumber(static_cast<double>(static_cast<float>(value)), pattern,
                                          localeOf(lcid), zt::text::NumberKind::Single);
        }
        return zt::text::formatNumber(value, pattern, localeOf(lcid));
    }

    std::string fromAnsi(const std::string& bytes, int codePage) const {
        return zt::text::fromAnsi(bytes, codePage);
    }

    std::string toAnsi(const std::string& utf8, int codePage) const {
        return zt::text::toAnsi(utf8, codePage);
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: native_counterpart <work-folder> <seed> [family]\n");
        return 2;
    }
    NativeBackend backend{argv[1]};
    std::FILE* out = stdout;
    std::setvbuf(out, nullptr, _IOFBF, 1 << 16);
    ztdiff::runAll(backend, out, std::strtoull(argv[2], nullptr, 10), argc > 3 ? argv[3] : "");
    std::fflush(out);
    return 0;
}
