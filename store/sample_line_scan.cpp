#include "store/sample_line_scan.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zt {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// The eight bytes at `p` as one little-endian word with '0'..'9' turned into 0..9, and the
// marks (0xF0 bits) of the bytes that are no digit. A byte is no digit when its high nibble is
// set or adding 6 carries into it; a carry into later bytes only follows a byte already marked.
struct DigitWord {
    uint64_t values;
    uint64_t marks;
};
DigitWord digitWord(const char* p) {
    uint64_t chunk = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&chunk, p, 8);
    } else {
        for (int i = 0; i < 8; ++i)
            chunk |= uint64_t{static_cast<unsigned char>(p[i])} << (8 * i);
    }
    const uint64_t values = chunk ^ 0x3030303030303030u;
    return {values, (values | (values + 0x0606060606060606u)) & 0xF0F0F0F0F0F0F0F0u};
}

// The value of the first `run` (1 to 8) digits of a word: a few multiplies that pair up
// neighbouring digits, instead of one multiply per digit.
uint64_t valueOfDigits(uint64_t values, int run) {
    uint64_t d = values << (8 * (8 - run));  // leading zero digits fill the word
    d = (d * 10 + (d >> 8)) & 0x00FF00FF00FF00FFu;
    d = (d * 100 + (d >> 16)) & 0x0000FFFF0000FFFFu;
    return (d * 10000 + (d >> 32)) & 0xFFFFFFFFu;
}

// Reads the run of decimal digits at `p` (not past `end`) into `v`; returns the run's end.
// Eight characters are looked at in one go (they may lie past `end`, never past `limit`).
const char* readDigits(const char* p, const char* end, const char* limit, uint64_t& v) {
    v = 0;
    if (limit - p >= 8) {
        const DigitWord w = digitWord(p);
        const int run = static_cast<int>(
            std::min<std::ptrdiff_t>(w.marks == 0 ? 8 : std::countr_zero(w.marks) / 8, end - p));
        if (run > 0) {
            v = valueOfDigits(w.values, run);
            p += run;
        }
        if (run < 8) return p;
    }
    while (p != end && static_cast<unsigned char>(*p - '0') < 10) {
        v = v * 10 + static_cast<unsigned>(*p - '0');
        ++p;
    }
    return p;
}

// Stores a signed value of `count` digits in `target` when it has 1 to 18 digits and fits.
template <typename T>
bool storeDigits(bool negative, uint64_t v, std::size_t count, T& target) {
    if (count == 0 || count > 18) return false;
    const int64_t value = negative ? -static_cast<int64_t>(v) : static_cast<int64_t>(v);
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        return false;
    target = static_cast<T>(value);
    return true;
}

template <typename T>
const char* scanField(const char* p, const char* end, const char* limit, T& target) {
    while (p != end && isBlank(*p))
        ++p;
    if (p != end && *p == '"') return nullptr;  // quoted: the line needs splitting by quotes
    // The sign without a branch: random data has either sign half the time.
    const bool negative = p != end && *p == '-';
    p += static_cast<int>(p != end && (*p == '-' || *p == '+'));
    const char* const digits = p;
    uint64_t v = 0;
    p = readDigits(p, end, limit, v);
    const auto count = static_cast<std::size_t>(p - digits);
    while (p != end && isBlank(*p))
        ++p;
    if (p != end && *p != ',') {
        // Not a number: skip to the field's end.
        p = static_cast<const char*>(std::memchr(p, ',', static_cast<std::size_t>(end - p)));
        return p != nullptr ? p : end;
    }
    storeDigits(negative, v, count, target);
    return p;
}

// scanRecordLine field after field: each field's end, found digit by digit, is where the next
// one starts. Takes every line the rule allows, up to the end of the text.
const char* scanRecordLineByFields(const char* p, const char* limit, SampleRecord& r) {
    SampleRecord read;
    bool ok = true;
    const auto next = [&](auto& target, bool last) {
        if (!ok) return;
        const bool negative = p != limit && *p == '-';
        p += static_cast<int>(negative);
        const char* const digits = p;
        uint64_t v = 0;
        p = readDigits(p, limit, limit, v);
        ok = storeDigits(negative, v, static_cast<std::size_t>(p - digits), target);
        if (!ok) return;
        if (!last) {
            ok = p != limit && *p == ',';
            ++p;
            return;
        }
        if (p != limit && *p == '\r') ++p;
        if (p != limit) ok = *p++ == '\n';
    };
    next(read.lngDiffTime, false);
    next(read.intFaultData, false);
    next(read.intDigitalData, false);
    for (std::size_t i = 0; i < read.lngAnalogData.size(); ++i)
        next(read.lngAnalogData[i], i + 1 == read.lngAnalogData.size());
    if (!ok) return nullptr;
    r = read;
    return p;
}

#if defined(__SSE2__)

// A line is looked for in a window of 64 bytes; a field's word may read 8 bytes past it.
constexpr std::ptrdiff_t kReadAhead = 64 + 8;

struct Window {
    explicit Window(const char* p)
        : a(load(p)), b(load(p + 16)), c(load(p + 32)), d(load(p + 48)) {}
    static __m128i load(const char* p) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    }
    // One bit for each byte that equals `c`.
    uint64_t bytesEqual(char wanted) const {
        const __m128i w = _mm_set1_epi8(wanted);
        const auto bits = [&](__m128i v) {
            return static_cast<uint64_t>(
                static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(v, w))));
        };
        return bits(a) | bits(b) << 16 | bits(c) << 32 | bits(d) << 48;
    }
    __m128i a, b, c, d;
};

// Values the field p[start, end): an optional '-' and 1 to 8 digits; false for anything else.
// The fields of one line do not wait for each other, and no branch depends on their digits.
[[gnu::always_inline]] inline bool fieldValue(const char* p, unsigned start, unsigned end,
                                              int64_t& value) {
    const auto negative = static_cast<uint64_t>(p[start] == '-');
    const unsigned first = start + static_cast<unsigned>(negative);
    const unsigned count = end - first;  // wraps around for an empty field after '-'
    if (count - 1 >= 8) return false;
    const DigitWord w = digitWord(p + first);
    const uint64_t inField = count == 8 ? ~uint64_t{0} : (uint64_t{1} << (8 * count)) - 1;
    const uint64_t v = valueOfDigits(w.values, static_cast<int>(count));
    value = static_cast<int64_t>((v ^ (0 - negative)) + negative);  // -v when negative
    return (w.marks & inField) == 0;
}

bool fitsInt16(int64_t v) {
    return v >= std::numeric_limits<int16_t>::min() && v <= std::numeric_limits<int16_t>::max();
}

// The usual line found at once: its commas and its end from one look at 64 bytes, then the
// seven fields valued each on its own. Lines it does not take (longer, fields of more than
// eight digits, anything unusual, the last lines of the text) go field after field.
const char* scanRecordLineAtOnce(const char* p, const char* limit, SampleRecord& r) {
    if (limit - p < kReadAhead) return scanRecordLineByFields(p, limit, r);
    const Window window(p);
    const uint64_t lineEnds = window.bytesEqual('\n');
    if (lineEnds == 0) return scanRecordLineByFields(p, limit, r);
    const auto lineEnd = static_cast<unsigned>(std::countr_zero(lineEnds));
    uint64_t commas = window.bytesEqual(',') & ((uint64_t{1} << lineEnd) - 1);
    const auto nextComma = [&commas] {
        const auto at = static_cast<unsigned>(std::countr_zero(commas));  // 64 when none is left
        commas &= commas - 1;
        return at;
    };
    const unsigned c0 = nextComma(), c1 = nextComma(), c2 = nextComma();
    const unsigned c3 = nextComma(), c4 = nextComma(), c5 = nextComma();
    if (c5 == 64 || commas != 0) return nullptr;  // not seven fields: no record line
    const unsigned last = lineEnd - static_cast<unsigned>(p[lineEnd - 1] == '\r');
    // Eight digits always fit 32 bits; the two 16-bit fields are checked.
    int64_t v0 = 0, v1 = 0, v2 = 0, v3 = 0, v4 = 0, v5 = 0, v6 = 0;
    bool ok = fieldValue(p, 0, c0, v0);
    ok &= fieldValue(p, c0 + 1, c1, v1);
    ok &= fitsInt16(v1);
    ok &= fieldValue(p, c1 + 1, c2, v2);
    ok &= fitsInt16(v2);
    ok &= fieldValue(p, c2 + 1, c3, v3);
    ok &= fieldValue(p, c3 + 1, c4, v4);
    ok &= fieldValue(p, c4 + 1, c5, v5);
    ok &= fieldValue(p, c5 + 1, last, v6);
    if (!ok) return scanRecordLineByFields(p, limit, r);
    r.lngDiffTime = static_cast<int32_t>(v0);
    r.intFaultData = static_cast<int16_t>(v1);
    r.intDigitalData = static_cast<int16_t>(v2);
    r.lngAnalogData = {static_cast<int32_t>(v3), static_cast<int32_t>(v4), static_cast<int32_t>(v5),
                       static_cast<int32_t>(v6)};
    return p + lineEnd + 1;
}

#endif

}  // namespace

const char* scanRecordLine(const char* p, const char* limit, SampleRecord& r) {
#if defined(__SSE2__)
    return scanRecordLineAtOnce(p, limit, r);
#else
    return scanRecordLineByFields(p, limit, r);
#endif
}

const char* scanRecordField(const char* p, const char* end, const char* limit, SampleRecord& r,
                            int field) {
    switch (field) {
        case 0:
            return scanField(p, end, limit, r.lngDiffTime);
        case 1:
            return scanField(p, end, limit, r.intFaultData);
        case 2:
            return scanField(p, end, limit, r.intDigitalData);
        default:
            return scanField(p, end, limit, r.lngAnalogData[static_cast<std::size_t>(field - 3)]);
    }
}

}  // namespace zt
