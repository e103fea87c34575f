#include "store/graph_text_import.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>

#include "core/channel_colors.h"
#include "platform/profile/profile_file_io.h"
#include "platform/text/code_page.h"
#include "platform/text/numeric.h"
#include "platform/text/rounding.h"
#include "store/graph_text_export.h"
#include "store/sample_line_scan.h"

namespace zt {

namespace {

constexpr int32_t kNoneItemCode = 32768;
constexpr double kMaxVertScale = 99999999.9;
constexpr int kCommentBytes = 128;

std::string trimBlanks(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && blank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && blank(s.back()))
        s.remove_suffix(1);
    return std::string(s);
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view trimView(std::string_view s) {
    while (!s.empty() && isBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

// The keyed reads of one import with the checks of each kind of value.
class KeyReader {
  public:
    KeyReader(const ProfileReader& read, const HostLocale& locale, std::string decimal)
        : read_(read), locale_(locale), decimal_(std::move(decimal)) {}

    // The trimmed value, or nullopt when the key is missing.
    std::optional<std::string> raw(const std::string& section, const std::string& key) const {
        std::string value;
        if (!read_ || !read_(section, key, value)) return std::nullopt;
        return trimBlanks(value);
    }

    // Numeric by the locale-aware test and within [low, high].
    std::optional<double> number(const std::string& section, const std::string& key, double low,
                                 double high) const {
        const auto value = raw(section, key);
        if (!value) return std::nullopt;
        const auto n = text::parseNumber(*value, locale_);
        if (!n || !(*n >= low && *n <= high)) return std::nullopt;
        return n;
    }

    // The file's decimal separator replaced by "." and the leading number taken.
    std::optional<double> mapped(const std::string& section, const std::string& key,
                                 std::size_t maxChars = std::string::npos) const {
        auto value = raw(section, key);
        if (!value) return std::nullopt;
        std::string text = *value;
        if (decimal_ != ".") {
            std::string out;
            for (std::size_t i = 0; i < text.size();) {
                if (text.compare(i, decimal_.size(), decimal_) == 0) {
                    out += '.';
                    i += decimal_.size();
                } else {
                    out += text[i++];
                }
            }
            text = std::move(out);
        }
        if (maxChars != std::string::npos) text = text::leftCharacters(text, maxChars);
        return text::val(text);
    }

    // The first nine characters as a 32-bit integer, when they form a number.
    std::optional<int32_t> leading9(const std::string& section, const std::string& key) const {
        const auto value = raw(section, key);
        if (!value) return std::nullopt;
        return text::toInt32(text::leftCharacters(*value, 9), locale_);
    }

  private:
    const ProfileReader& read_;
    const HostLocale& locale_;
    std::string decimal_;
};

template <typename T>
T asInt(double v) {
    if constexpr (sizeof(T) == 2)
        return text::toInt16Saturated(v);
    else
        return text::toInt32Saturated(v);
}

bool hasExponentLetter(const std::string& s) {
    return std::any_of(s.begin(), s.end(),
                       [](char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; });
}

}  // namespace

GraphTextKeys readGraphTextKeys(GraphState& state, const HostLocale& locale, int codePage,
                                const ProfileReader& readKey, const GraphTextReadHooks& hooks) {
    GraphTextKeys found;
    std::string decimal = ".";
    {
        const KeyReader header(readKey, locale, ".");
        if (const auto dp = header.raw("COMMON_HEADER", "DecPoint"))
            decimal = dp->empty() ? "." : text::leftCharacters(*dp, 1);
    }
    state.version = GRAPH_VERSION_INFO{"1.00", 5};
    const KeyReader k(readKey, locale, decimal);
    const std::string common = "COMMON";

    SAMPSETTING& s = state.sampSetting;
    s.intSamplingSpeed = asInt<int16_t>(k.number(common, "SamplingSpeed", 0, 1).value_or(0));
    s.intSamplingMode = asInt<int16_t>(k.number(common, "SamplingMode", 0, 1).value_or(0));
    s.dblSamplingInterval = k.number(common, "SamplingInterval", 1, 540000).value_or(100);
    s.dblMask = k.number(common, "SamplingMask", 1, 40).value_or(1);
    double lower = s.dblSamplingInterval;
    double upper = s.dblSamplingInterval;
    if (s.intSamplingSpeed == 1) {
        lower = (1 + s.dblMask) * 0.5;
        upper = (1 + s.dblMask) * 0.4;
    }
    if (k.raw(common, "SamplingTime"))
        s.dblSamplingTime =
            k.number(common, "SamplingTime", lower * 100, upper * 10000).value_or(upper * 10000);
    else
        s.dblSamplingTime = lower * 10000;
    s.intTriggerType = asInt<int16_t>(k.number(common, "TriggerType", 0, 2).value_or(0));
    s.intTriggerBoot = asInt<int16_t>(k.number(common, "TriggerBoot", 0, 1).value_or(0));
    if (s.intTriggerType == 2) s.intTriggerBoot = 0;
    {
        const double level = k.mapped(common, "TriggerLevel", 9).value_or(0);
        s.dblTriggerLevel = std::isfinite(level) ? text::roundHalfEven(level * 100) / 100 : 0;
    }
    s.sngTriggerPosition = static_cast<float>(
        asInt<int16_t>(k.number(common, "TriggerPosition", 10, 90).value_or(10)));
    if (k.raw(common, "TriggerPoint")) {
        s.lngTriggerPoint = asInt<int32_t>(k.number(common, "TriggerPoint", -1, 10000).value_or(0));
    } else if (lower > 0) {
        s.lngTriggerPoint = asInt<int32_t>(static_cast<double>(s.sngTriggerPosition) / 100 *
                                           s.dblSamplingTime / lower);
    } else {
        s.lngTriggerPoint = 1000;
    }

    GRAPHINFO& g = state.graphInfo;
    CURSORSTATE& c = g.udtCursorState;
    c.intCursorState = asInt<int16_t>(k.number(common, "CursorState", 0, 2).value_or(0));
    const auto position = [&](const char* key, bool isB, float a) {
        const auto v = k.mapped(common, key);
        if (!v) return isB ? 1.0f : 0.0f;
        const auto f = static_cast<float>(*v);
        if (!isB) return (f >= 0 && f < 1) ? f : 0.0f;
        return (f > 0 && f <= 1 && f > a) ? f : 1.0f;
    };
    c.sngHorzCursorApos = position("HorzCursorApos", false, 0);
    c.sngHorzCursorBpos = position("HorzCursorBpos", true, c.sngHorzCursorApos);
    c.sngVertCursorApos = position("VertCursorApos", false, 0);
    c.sngVertCursorBpos = position("VertCursorBpos", true, c.sngVertCursorApos);

    const double fullSpan = s.dblSamplingTime / 10;
    if (const auto scale = k.number(common, "HorzScale", lower * 10, fullSpan))
        g.udtHorzScale.sngHorzScale = static_cast<float>(asInt<int32_t>(*scale));
    else
        g.udtHorzScale.sngHorzScale = static_cast<float>(fullSpan);
    found.scrollMax =
        g.udtHorzScale.sngHorzScale > 0
            ? text::toInt32Saturated(s.dblSamplingTime / g.udtHorzScale.sngHorzScale - 10)
            : 0;
    {
        const auto pos = k.leading9(common, "HscrollPos");
        g.udtHorzScale.lngHScrollPos =
            (pos && *pos >= 0 && *pos <= found.scrollMax) ? *pos : found.scrollMax;
    }
    g.intChNumber = asInt<int16_t>(k.number(common, "ChNumber", 0, 8).value_or(0));
    HISTORYSTATE& h = g.udtHistoryState;
    h.lngGraphTotal =
        asInt<int32_t>(k.number(common, "GraphTotal", 0, state.version.lngHistoryMax).value_or(0));
    h.lngCurrentGraph =
        asInt<int32_t>(k.number(common, "CurrentGraph", 0, h.lngGraphTotal).value_or(0));
    h.lngOverWriteState = asInt<int32_t>(k.number(common, "OverWriteState", 0, 31).value_or(0));

    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const auto i = static_cast<std::size_t>(ch);
        const std::string section = channelSectionName(ch);
        CHSETTING& cs = state.chSetting[i];
        SAMPDATA& d = state.sampData[i];
        cs.intChNo = static_cast<int16_t>(ch);
        cs.lngTargetNo = asInt<int32_t>(k.number(section, "TargetNo", 0, 32).value_or(32));
        cs.lngSamplingItem = k.leading9(section, "SamplingItem").value_or(kNoneItemCode);
        const int32_t color = k.leading9(section, "GraphColor").value_or(0);
        cs.lngGraphColor = color != 0 ? color : kDefaultChannelColor[i];
        cs.intAD = asInt<int16_t>(k.number(section, "AD", 0, 1).value_or(0));
        d.sngUnit = static_cast<float>(k.leading9(section, "Unit").value_or(0));
        d.sngBaseValue = static_cast<float>(k.leading9(section, "Base").value_or(1));
        VERTSCALE& v = g.udtVertScale[i];
        if (ch <= 4) {
            const auto scale = k.mapped(section, "VertScale");
            v.dblVertScale =
                (scale && *scale >= 0.1 && *scale <= kMaxVertScale) ? *scale : kMaxVertScale;
        } else {
            v.dblVertScale = 0;
        }
        int32_t zero = 0;
        if (const auto text = k.raw(section, "ZeroPos"); text && !hasExponentLetter(*text))
            zero = k.leading9(section, "ZeroPos").value_or(0);
        v.intZeroPos = static_cast<int16_t>(std::clamp<int32_t>(zero, -32700, 32700));
        d.intDecPoint = asInt<int16_t>(k.number(section, "DecPoint", 0, 3).value_or(0));
    }

    if (hooks.channelsRead) hooks.channelsRead();
    s.intTriggerTarget = asInt<int16_t>(k.number(common, "TriggerTarget", 0, 255).value_or(255));

    for (int slot = 1; slot < kHistorySlots; ++slot) {
        std::string& comment = state.history.strComments[static_cast<std::size_t>(slot)];
        std::string value;
        if (readKey && readKey(dataSectionName(slot), "Comment", value)) {
            comment = text::keepAnsiBytes(value, kCommentBytes, codePage);
            while (!comment.empty() && comment.back() == ' ')
                comment.pop_back();
        } else {
            comment.clear();
        }
    }
    return found;
}

namespace {

// One line of the file split into comma-separated fields; a field that starts with a double
// quote runs to the closing quote.
void splitFields(std::string_view line, std::vector<std::string_view>& fields) {
    fields.clear();
    std::size_t i = 0;
    while (true) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t'))
            ++i;
        std::size_t start = i;
        std::size_t end;
        if (i < line.size() && line[i] == '"') {
            start = ++i;
            while (i < line.size() && line[i] != '"')
                ++i;
            end = i;
            while (i < line.size() && line[i] != ',')
                ++i;
        } else {
            while (i < line.size() && line[i] != ',')
                ++i;
            end = i;
            while (end > start && isBlank(line[end - 1]))
                --end;
        }
        fields.push_back(line.substr(start, end - start));
        if (i >= line.size()) break;
        ++i;  // the comma
    }
}

template <typename T>
void readField(std::string_view field, T& target) {
    // A plain signed decimal integer that fits the field; anything else is skipped.
    std::size_t i = 0;
    const bool negative = !field.empty() && field[0] == '-';
    if (negative || (!field.empty() && field[0] == '+')) i = 1;
    if (i >= field.size() || field.size() - i > 18) return;
    int64_t v = 0;
    for (; i < field.size(); ++i) {
        const char c = field[i];
        if (c < '0' || c > '9') return;
        v = v * 10 + (c - '0');
    }
    if (negative) v = -v;
    if (v < std::numeric_limits<T>::min() || v > std::numeric_limits<T>::max()) return;
    target = static_cast<T>(v);
}

// Field `field` (0 to 6) of a sample record.
void storeField(SampleRecord& r, int field, std::string_view v) {
    switch (field) {
        case 0:
            readField(v, r.lngDiffTime);
            break;
        case 1:
            readField(v, r.intFaultData);
            break;
        case 2:
            readField(v, r.intDigitalData);
            break;
        default:
            readField(v, r.lngAnalogData[static_cast<std::size_t>(field - 3)]);
    }
}

// Sequential reader over the file's lines.
class LineCursor {
  public:
    explicit LineCursor(std::string_view text) : text_(text) {}
    bool atEnd() const { return pos_ >= text_.size(); }
    std::string_view peek() {
        if (end_ == kUnknown) {
            const std::size_t end = text_.find('\n', pos_);
            end_ = end == std::string_view::npos ? text_.size() : end;
        }
        std::string_view line = text_.substr(pos_, end_ - pos_);
        while (!line.empty() && (line.back() == '\r'))
            line.remove_suffix(1);
        return line;
    }
    void next() {
        peek();
        pos_ = end_;
        if (pos_ < text_.size()) ++pos_;
        end_ = kUnknown;
    }
    // Where the current line starts; a line start to go on from.
    std::size_t position() const { return pos_; }
    void seek(std::size_t pos) {
        pos_ = pos;
        end_ = kUnknown;
    }

  private:
    static constexpr std::size_t kUnknown = std::string_view::npos;
    std::string_view text_;
    std::size_t pos_ = 0;
    std::size_t end_ = kUnknown;
};

}  // namespace

void readSampleTablesFromText(GraphState& state, std::string_view text) {
    for (int slot = 1; slot < kHistorySlots; ++slot) {
        auto& samples = state.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample;
        samples.assign(kGraphRecords, SampleRecord{});
    }
    LineCursor lines(text);
    std::vector<std::string_view> fields;
    // Fields are read eight bytes at a time, also across their line's end within the text.
    const char* const limit = text.data() + text.size();
    for (int slot = 1; slot < kHistorySlots; ++slot) {
        const std::string wanted = "[" + dataSectionName(slot) + "]";
        // Look for the slot's section from where the previous slot stopped.
        int skip = -1;
        while (!lines.atEnd() && skip < 0) {
            splitFields(lines.peek(), fields);
            for (std::string_view f : fields) {
                const std::string field = trimBlanks(f);
                if (field.rfind("[DATA", 0) != 0) continue;
                if (field == wanted)
                    skip = 2;  // the Comment line and the header line
                else if (slot == 1 && field == "[DATA]")
                    skip = 1;  // the header line
                if (skip >= 0) break;
            }
            lines.next();
        }
        if (skip < 0) break;  // not found: this and later slots keep their zeros
        for (; skip > 0 && !lines.atEnd(); --skip)
            lines.next();

        auto& samples = state.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample;
        int field = 0;
        std::size_t index = 0;
        while (!lines.atEnd() && index < samples.size()) {
            if (field == 0) {
                const char* after =
                    scanRecordLine(text.data() + lines.position(), limit, samples[index]);
                if (after != nullptr) {
                    lines.seek(static_cast<std::size_t>(after - text.data()));
                    ++index;
                    continue;
                }
            }
            const std::string_view line = trimView(lines.peek());
            // A table ends early at the next section.
            if (!line.empty() && line.front() == '[') break;
            lines.next();
            if (line.empty()) continue;
            // Plain line: each field read in one pass, straight into the record. A quoted field
            // sends the line, from its first field again, through splitFields.
            const int lineField = field;
            const std::size_t lineIndex = index;
            const char* p = line.data();
            const char* const end = p + line.size();
            while (index < samples.size()) {
                p = scanRecordField(p, end, limit, samples[index], field);
                if (p == nullptr) break;
                if (++field == 7) {
                    field = 0;
                    ++index;
                }
                if (p == end) break;
                ++p;
            }
            if (p != nullptr) continue;
            field = lineField;
            index = lineIndex;
            splitFields(line, fields);
            for (std::string_view v : fields) {
                if (index >= samples.size()) break;
                storeField(samples[index], field, v);
                if (++field == 7) {
                    field = 0;
                    ++index;
                }
            }
        }
    }
}

void readSampleTables(GraphState& state, const std::string& fileName) {
    // The bytes the keyed reads just read, unless the file has changed or gone since.
    std::shared_ptr<const std::string> text;
    profile::readSharedFile(fileName.c_str(), text);
    readSampleTablesFromText(state, text ? std::string_view(*text) : std::string_view());
}

}  // namespace zt
