#include "store/graph_text_export.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <memory>

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

void appendNumber(std::string& out, int64_t value) {
    char buffer[24];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    out.append(buffer, end);
}

struct FileCloser {
    void operator()(std::FILE* f) const {
        if (f != nullptr) std::fclose(f);
    }
};

// Appends the header line and the data lines of one slot; false when the file could not be
// opened or written.
bool appendDataTable(const std::string& fileName, const std::string& header,
                     const GRAPH_RESULT_INFO& graph) {
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(fileName.c_str(), "ab"));
    if (!file) return false;
    std::string block = header;
    block += "\r\n";
    block += dataLines(graph);
    const bool written = std::fwrite(block.data(), 1, block.size(), file.get()) == block.size();
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

std::string dataLines(const GRAPH_RESULT_INFO& graph) {
    std::string out;
    out.reserve(static_cast<std::size_t>(kDataLines) * 32);
    const SampleRecord zero{};
    for (int i = 0; i < kDataLines; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const SampleRecord& r = index < graph.udtSample.size() ? graph.udtSample[index] : zero;
        appendNumber(out, r.lngDiffTime);
        out += ',';
        appendNumber(out, r.intFaultData);
        out += ',';
        appendNumber(out, r.intDigitalData);
        for (int32_t value : r.lngAnalogData) {
            out += ',';
            appendNumber(out, value);
        }
        out += "\r\n";
    }
    return out;
}

int16_t writeGraphTextFile(const GraphState& state, const std::string& fileName, int32_t result,
                           const std::string& dataHeader, const HostLocale& locale,
                           const ProfileWriter& writeKey) {
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
    for (int slot = 1; slot <= slots; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        // The Comment write creates the section at the end of the file; its table follows.
        w.text(dataSectionName(slot), "Comment", state.history.strComments[i] + " ");
        if (!appendDataTable(fileName, dataHeader, state.history.udtGraphResultInfo[i])) return -1;
    }
    return static_cast<int16_t>(result);
}

}  // namespace zt
