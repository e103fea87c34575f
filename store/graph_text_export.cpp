#include "store/graph_text_export.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>

#include "platform/profile/profile_document.h"
#include "platform/text/code_page.h"
#include "platform/text/number_text.h"

namespace zt {

namespace {

std::string twoDigits(int n) {
    std::string s = std::to_string(n);
    return s.size() < 2 ? "0" + s : s;
}

// Keyed writes of one section, with the failure rule: a failed write marks the result -1.
class SectionWriter {
  public:
    SectionWriter(const ProfileWriter& write, const HostLocale& locale, int32_t& result)
        : write_(write), locale_(locale), result_(result) {}

    void text(const std::string& section, const std::string& key, const std::string& value) {
        if (!write_ || !write_(section, key, value)) result_ = -1;
    }
    void integer(const std::string& section, const std::string& key, int64_t value) {
        text(section, key, text::integerText(value));
    }
    void single(const std::string& section, const std::string& key, float value) {
        text(section, key, text::singleToText(value, locale_));
    }
    void real(const std::string& section, const std::string& key, double value) {
        text(section, key, text::doubleToText(value, locale_));
    }

  private:
    const ProfileWriter& write_;
    const HostLocale& locale_;
    int32_t& result_;
};

struct FileCloser {
    void operator()(std::FILE* f) const {
        if (f != nullptr) std::fclose(f);
    }
};

// Appends bytes to the file; false when it could not be opened or written.
bool appendToFile(const std::string& fileName, std::string_view bytes) {
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(fileName.c_str(), "ab"));
    if (!file) return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const bool flushed = std::fflush(file.get()) == 0;
    return written && flushed && std::fclose(file.release()) == 0;
}

}  // namespace

std::string channelSectionName(int channel) {
    return "CHANNEL_" + twoDigits(channel);
}

std::string dataSectionName(int slot) {
    return "DATA_" + twoDigits(slot);
}

namespace {

constexpr std::array<char, 200> kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

// Decimal text of a value. The values of a graph are mostly below five digits and of every
// length; they are written without a branch on the length, which random data mispredicts.
// Writes up to eight characters, which the room of eleven per number allows.
char* putNumber(char* p, int32_t value) {
    *p = '-';
    p += value < 0 ? 1 : 0;
    const uint32_t u = value < 0 ? 0u - static_cast<uint32_t>(value) : static_cast<uint32_t>(value);
    if (u >= 100000 || std::endian::native != std::endian::little)
        return std::to_chars(p, p + 10, u).ptr;
    // The five digits with leading zeros in one little-endian word, the zeros shifted out.
    const uint32_t rest = u % 10000;
    uint16_t high = 0;
    uint16_t low = 0;
    std::memcpy(&high, &kDigitPairs[2 * (rest / 100)], 2);
    std::memcpy(&low, &kDigitPairs[2 * (rest % 100)], 2);
    const uint64_t word =
        static_cast<uint64_t>('0' + u / 10000) | uint64_t{high} << 8 | uint64_t{low} << 24;
    const int length = 1 + (u >= 10) + (u >= 100) + (u >= 1000) + (u >= 10000);
    const uint64_t shifted = word >> (8 * (5 - length));
    std::memcpy(p, &shifted, 8);
    return p + length;
}

}  // namespace

char* writeDataLines(char* p, const GRAPH_RESULT_INFO& graph) {
    const SampleRecord zero{};
    for (int i = 0; i < kDataLines; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const SampleRecord& r = index < graph.udtSample.size() ? graph.udtSample[index] : zero;
        p = putNumber(p, r.lngDiffTime);
        *p++ = ',';
        p = putNumber(p, r.intFaultData);
        *p++ = ',';
        p = putNumber(p, r.intDigitalData);
        for (int32_t value : r.lngAnalogData) {
            *p++ = ',';
            p = putNumber(p, value);
        }
        *p++ = '\r';
        *p++ = '\n';
    }
    return p;
}

int16_t writeGraphTextFile(const GraphState& state, const std::string& fileName, int32_t result,
                           const std::string& dataHeader, const HostLocale& locale,
                           const ProfileWriter& writeKey) {
    return writeGraphTextFile(
        state, result, dataHeader, locale, writeKey,
        [&fileName](std::string_view bytes) { return appendToFile(fileName, bytes); });
}

int16_t exportGraphTextFile(const GraphState& state, const std::string& fileName, int32_t result,
                            const std::string& dataHeader, const HostLocale& locale, int codePage) {
    profile::ProfileDocument file(fileName);
    const auto slots = static_cast<std::size_t>(kHistorySlots - 1);
    file.reserve(slots * (dataHeader.size() + 2 + kDataLinesMax) + 8192);
    const int16_t written = writeGraphTextFile(
        state, result, dataHeader, locale,
        [&](const std::string& section, const std::string& key, const std::string& value) {
            return file.write(text::toAnsi(section, codePage), text::toAnsi(key, codePage),
                              text::toAnsi(value, codePage));
        },
        [&](std::string_view bytes) { return file.append(bytes); });
    // What was written stays, also after a failure, as with writes made one by one.
    const bool saved = file.save();
    return saved ? written : int16_t{-1};
}

int16_t writeGraphTextFile(const GraphState& state, int32_t result, const std::string& dataHeader,
                           const HostLocale& locale, const ProfileWriter& writeKey,
                           const FileAppender& append) {
    SectionWriter w(writeKey, locale, result);
    const SAMPSETTING& s = state.sampSetting;
    const GRAPHINFO& g = state.graphInfo;
    const CURSORSTATE& c = g.udtCursorState;
    const HISTORYSTATE& h = g.udtHistoryState;

    const std::string common = "COMMON";
    w.integer(common, "SamplingSpeed", s.intSamplingSpeed);
    w.integer(common, "SamplingMode", s.intSamplingMode);
    w.real(common, "SamplingInterval", s.dblSamplingInterval);
    w.real(common, "SamplingMask", s.dblMask);
    w.real(common, "SamplingTime", s.dblSamplingTime);
    w.integer(common, "TriggerType", s.intTriggerType);
    w.integer(common, "TriggerBoot", s.intTriggerBoot);
    w.real(common, "TriggerLevel", s.dblTriggerLevel);
    w.single(common, "TriggerPosition", s.sngTriggerPosition);
    w.integer(common, "TriggerTarget", s.intTriggerTarget);
    w.integer(common, "TriggerPoint", s.lngTriggerPoint);
    w.integer(common, "CursorState", c.intCursorState);
    w.single(common, "HorzCursorApos", c.sngHorzCursorApos);
    w.single(common, "HorzCursorBpos", c.sngHorzCursorBpos);
    w.single(common, "VertCursorApos", c.sngVertCursorApos);
    w.single(common, "VertCursorBpos", c.sngVertCursorBpos);
    w.integer(common, "ChNumber", g.intChNumber);
    w.single(common, "HorzScale", g.udtHorzScale.sngHorzScale);
    w.integer(common, "HScrollPos", g.udtHorzScale.lngHScrollPos);
    w.integer(common, "CurrentGraph", h.lngCurrentGraph);
    w.integer(common, "GraphTotal", h.lngGraphTotal);
    w.integer(common, "OverWriteState", h.lngOverWriteState);

    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const auto i = static_cast<std::size_t>(ch);
        const std::string section = channelSectionName(ch);
        const CHSETTING& cs = state.chSetting[i];
        const SAMPDATA& d = state.sampData[i];
        w.integer(section, "TargetNo", cs.lngTargetNo);
        w.integer(section, "SamplingItem", cs.lngSamplingItem);
        w.integer(section, "GraphColor", cs.lngGraphColor);
        w.integer(section, "AD", cs.intAD);
        w.single(section, "Unit", d.sngUnit);
        w.single(section, "Base", d.sngBaseValue);
        w.real(section, "VertScale", g.udtVertScale[i].dblVertScale);
        w.integer(section, "ZeroPos", g.udtVertScale[i].intZeroPos);
        w.integer(section, "DecPoint", d.intDecPoint);
    }

    const int slots = std::clamp<int>(state.version.lngHistoryMax, 1, kHistorySlots - 1);
    // One buffer for every table: its header line, then the data lines.
    const std::size_t headerSize = dataHeader.size() + 2;
    std::unique_ptr<char[]> table(new char[headerSize + kDataLinesMax]);
    std::memcpy(table.get(), dataHeader.data(), dataHeader.size());
    std::memcpy(table.get() + dataHeader.size(), "\r\n", 2);
    for (int slot = 1; slot <= slots; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        // The Comment write creates the section at the end of the file; its table follows.
        w.text(dataSectionName(slot), "Comment", state.history.strComments[i] + " ");
        const char* end =
            writeDataLines(table.get() + headerSize, state.history.udtGraphResultInfo[i]);
        if (!append || !append({table.get(), static_cast<std::size_t>(end - table.get())}))
            return -1;
    }
    return static_cast<int16_t>(result);
}

}  // namespace zt
