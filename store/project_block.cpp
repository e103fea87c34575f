#include "store/project_block.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

#include "platform/text/code_page.h"
#include "platform/text/rounding.h"

namespace zt {

namespace {

constexpr std::size_t kCommentBytes = 128;
// Largest element count accepted from an array header; anything larger is a damaged block.
constexpr int32_t kMaxArrayElements = 1 << 20;

struct FileCloser {
    void operator()(std::FILE* f) const {
        if (f != nullptr) std::fclose(f);
    }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// Sample records lie in memory exactly as the block stores them (24 bytes, little-endian,
// fields in order), so whole tables go to and from the file in one piece.
constexpr bool kRecordsAsStored =
    std::endian::native == std::endian::little && sizeof(SampleRecord) == kSampleRecordBytes &&
    offsetof(SampleRecord, intFaultData) == 4 && offsetof(SampleRecord, intDigitalData) == 6 &&
    offsetof(SampleRecord, lngAnalogData) == 8;

// Little-endian field writer: small fields are gathered in a buffer, arrays are written
// straight from memory after it.
class BlockWriter {
  public:
    explicit BlockWriter(std::FILE* file) : file_(file) {}
    bool ok() const { return ok_; }

    template <typename T>
    void put(T value) {
        uint8_t bytes[sizeof(T)];
        std::memcpy(bytes, &value, sizeof(T));
        if constexpr (std::endian::native == std::endian::big)
            std::reverse(bytes, bytes + sizeof(T));
        pending_.append(reinterpret_cast<const char*>(bytes), sizeof(T));
    }
    void raw(const std::string& bytes) { pending_ += bytes; }
    void arrayHeader(int32_t count) {
        put<int16_t>(1);
        put<int32_t>(count);
        put<int32_t>(0);
    }
    void doubles(const std::vector<double>& values) {
        if constexpr (std::endian::native == std::endian::little) {
            bulk(values.data(), values.size() * sizeof(double));
        } else {
            for (double v : values)
                put(v);
        }
    }
    void records(const std::vector<SampleRecord>& samples) {
        if constexpr (kRecordsAsStored) {
            bulk(samples.data(), samples.size() * kSampleRecordBytes);
        } else {
            const std::size_t at = pending_.size();
            pending_.resize(at + samples.size() * kSampleRecordBytes);
            auto* out = reinterpret_cast<uint8_t*>(pending_.data() + at);
            for (std::size_t i = 0; i < samples.size(); ++i)
                encode(samples[i], std::span<uint8_t, kSampleRecordBytes>(
                                       out + i * kSampleRecordBytes, kSampleRecordBytes));
        }
    }
    void flush() {
        write(pending_.data(), pending_.size());
        pending_.clear();
    }

  private:
    void bulk(const void* data, std::size_t n) {
        flush();
        write(data, n);
    }
    void write(const void* data, std::size_t n) {
        if (ok_ && n != 0 && std::fwrite(data, 1, n, file_) != n) ok_ = false;
    }
    std::FILE* file_;
    std::string pending_;
    bool ok_ = true;
};

class BlockReader {
  public:
    explicit BlockReader(std::FILE* file) : file_(file) {}
    bool ok() const { return ok_; }

    template <typename T>
    T get() {
        uint8_t bytes[sizeof(T)]{};
        read(bytes, sizeof(T));
        if constexpr (std::endian::native == std::endian::big)
            std::reverse(bytes, bytes + sizeof(T));
        T value;
        std::memcpy(&value, bytes, sizeof(T));
        return value;
    }
    std::string text(std::size_t count) {
        std::string s(count, '\0');
        read(s.data(), count);
        return s;
    }
    // An array header followed by its elements of type T, converted to U. The array keeps
    // the component's fixed size: missing elements are zero, surplus ones are dropped.
    template <typename T, typename U>
    void array(std::vector<U>& out, std::size_t size) {
        const int16_t dims = get<int16_t>();
        const int32_t count = get<int32_t>();
        get<int32_t>();  // lower bound
        if (!ok_ || dims != 1 || count < 0 || count > kMaxArrayElements) {
            ok_ = false;
            return;
        }
        if constexpr (std::is_same_v<T, U> && std::endian::native == std::endian::little) {
            // Read straight into place; a longer array is read whole and cut.
            out.assign(std::max(size, static_cast<std::size_t>(count)), U{});
            read(out.data(), static_cast<std::size_t>(count) * sizeof(T));
            out.resize(size);
            return;
        }
        std::vector<T> values(static_cast<std::size_t>(count));
        read(values.data(), values.size() * sizeof(T));
        if constexpr (std::endian::native == std::endian::big) {
            for (T& v : values) {
                auto* b = reinterpret_cast<uint8_t*>(&v);
                std::reverse(b, b + sizeof(T));
            }
        }
        out.assign(size, U{});
        for (std::size_t i = 0; i < std::min(size, values.size()); ++i)
            out[i] = static_cast<U>(values[i]);
    }
    void samples(std::vector<SampleRecord>& out) {
        const int16_t dims = get<int16_t>();
        const int32_t count = get<int32_t>();
        get<int32_t>();
        if (!ok_ || dims != 1 || count < 0 || count > kMaxArrayElements) {
            ok_ = false;
            return;
        }
        const auto stored = static_cast<std::size_t>(count);
        const std::size_t kept = std::min<std::size_t>(kGraphRecords, stored);
        out.assign(kGraphRecords, SampleRecord{});
        if constexpr (kRecordsAsStored) {
            read(out.data(), kept * kSampleRecordBytes);
        } else {
            std::vector<uint8_t> bytes(kept * kSampleRecordBytes);
            read(bytes.data(), bytes.size());
            for (std::size_t i = 0; ok_ && i < kept; ++i)
                out[i] = decodeSampleRecord(std::span<const uint8_t, kSampleRecordBytes>(
                    bytes.data() + i * kSampleRecordBytes, kSampleRecordBytes));
        }
        // Records past the component's 10,000 are read and dropped.
        std::vector<uint8_t> surplus((stored - kept) * kSampleRecordBytes);
        read(surplus.data(), surplus.size());
        if (!ok_) out.assign(kGraphRecords, SampleRecord{});
    }

  private:
    void read(void* to, std::size_t n) {
        if (!ok_) return;
        if (n != 0 && std::fread(to, 1, n, file_) != n) ok_ = false;
    }
    std::FILE* file_;
    bool ok_ = true;
};

void putSampSetting(BlockWriter& w, const SAMPSETTING& s) {
    w.put(s.dblSamplingInterval);
    w.put(s.dblSamplingTime);
    w.put(s.dblMask);
    w.put(s.intTriggerType);
    w.put(s.intTriggerBoot);
    w.put(s.dblTriggerLevel);
    w.put(s.sngTriggerPosition);
    w.put(s.lngTriggerPoint);
    w.put(s.intSamplingMode);
    w.put(s.intSamplingSpeed);
    w.put(s.intTriggerTarget);
}

void getSampSetting(BlockReader& r, SAMPSETTING& s, bool withTriggerPoint) {
    s.dblSamplingInterval = r.get<double>();
    s.dblSamplingTime = r.get<double>();
    s.dblMask = r.get<double>();
    s.intTriggerType = r.get<int16_t>();
    s.intTriggerBoot = r.get<int16_t>();
    s.dblTriggerLevel = r.get<double>();
    s.sngTriggerPosition = r.get<float>();
    if (withTriggerPoint) s.lngTriggerPoint = r.get<int32_t>();
    s.intSamplingMode = r.get<int16_t>();
    s.intSamplingSpeed = r.get<int16_t>();
    s.intTriggerTarget = r.get<int16_t>();
}

// The trigger point of blocks that did not store it, from the position, time and step.
int32_t triggerPointOf(const SAMPSETTING& s) {
    const double step = s.intSamplingSpeed == 1 ? (1 + s.dblMask) * 0.5 : s.dblSamplingInterval;
    if (!(step > 0)) return 1000;
    const double position = text::roundHalfEven(static_cast<double>(s.sngTriggerPosition));
    return text::toInt32Saturated(position / 100 * s.dblSamplingTime / step);
}

void putGraphInfo(BlockWriter& w, const GRAPHINFO& g) {
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        w.put(g.udtVertScale[static_cast<std::size_t>(ch)].dblVertScale);
        w.put(g.udtVertScale[static_cast<std::size_t>(ch)].intZeroPos);
    }
    w.put(g.udtHorzScale.sngHorzScale);
    w.put(g.udtHorzScale.lngHScrollPos);
    const CURSORSTATE& c = g.udtCursorState;
    w.put(c.sngHorzCursorApos);
    w.put(c.sngHorzCursorBpos);
    w.put(c.sngVertCursorApos);
    w.put(c.sngVertCursorBpos);
    w.put(c.intCursorState);
    w.put(c.sngHorzDiffPosAB);
    w.put(c.sngVertDiffPosAB);
    w.put(g.intChNumber);
    w.put(g.udtHistoryState.lngCurrentGraph);
    w.put(g.udtHistoryState.lngGraphTotal);
    w.put(g.udtHistoryState.lngOverWriteState);
}

void getGraphInfo(BlockReader& r, GRAPHINFO& g, bool withOverWrite) {
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        g.udtVertScale[static_cast<std::size_t>(ch)].dblVertScale = r.get<double>();
        g.udtVertScale[static_cast<std::size_t>(ch)].intZeroPos = r.get<int16_t>();
    }
    g.udtHorzScale.sngHorzScale = r.get<float>();
    g.udtHorzScale.lngHScrollPos = r.get<int32_t>();
    CURSORSTATE& c = g.udtCursorState;
    c.sngHorzCursorApos = r.get<float>();
    c.sngHorzCursorBpos = r.get<float>();
    c.sngVertCursorApos = r.get<float>();
    c.sngVertCursorBpos = r.get<float>();
    c.intCursorState = r.get<int16_t>();
    c.sngHorzDiffPosAB = r.get<float>();
    c.sngVertDiffPosAB = r.get<float>();
    g.intChNumber = r.get<int16_t>();
    g.udtHistoryState.lngCurrentGraph = r.get<int32_t>();
    g.udtHistoryState.lngGraphTotal = r.get<int32_t>();
    g.udtHistoryState.lngOverWriteState = withOverWrite ? r.get<int32_t>() : 0;
}

// A comment as exactly 128 bytes of ANSI text, padded with blanks.
std::string commentBytes(const std::string& comment, int codePage) {
    std::string ansi = text::toAnsi(text::cutAnsi(comment, kCommentBytes, codePage), codePage);
    if (ansi.size() > kCommentBytes) ansi.resize(kCommentBytes);
    ansi.append(kCommentBytes - ansi.size(), ' ');
    return ansi;
}

}  // namespace

bool writeProjectBlock(GraphState& state, const std::string& fileName, int64_t position,
                       int codePage) {
    if (position < 1) return false;
    File file(std::fopen(fileName.c_str(), "r+b"));
    if (!file) file.reset(std::fopen(fileName.c_str(), "w+b"));
    if (!file) return false;
    if (std::fseek(file.get(), static_cast<long>(position - 1), SEEK_SET) != 0) return false;

    state.version = GRAPH_VERSION_INFO{"4.00", 5};
    BlockWriter w(file.get());
    const std::string version = text::toAnsi(state.version.strMainVersion, codePage);
    w.put(static_cast<int16_t>(version.size()));
    w.raw(version);
    w.put(state.version.lngHistoryMax);
    putSampSetting(w, state.sampSetting);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const CHSETTING& c = state.chSetting[static_cast<std::size_t>(ch)];
        w.put(c.intChNo);
        w.put(c.intAD);
        w.put(c.lngSamplingItem);
        w.put(c.lngTargetNo);
        w.put(c.lngGraphColor);
    }
    putGraphInfo(w, state.graphInfo);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const SAMPDATA& d = state.sampData[static_cast<std::size_t>(ch)];
        for (const auto* values : {&d.sngSamplingData, &d.sngSamplingTimeByInv}) {
            w.arrayHeader(static_cast<int32_t>(values->size()));
            w.doubles(*values);
        }
        w.put(d.sngUnit);
        w.put(d.sngBaseValue);
        w.put(d.intDecPoint);
    }
    for (int slot = 1; slot <= state.version.lngHistoryMax; ++slot) {
        const auto& samples =
            state.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample;
        w.arrayHeader(static_cast<int32_t>(samples.size()));
        w.records(samples);
    }
    for (int slot = 1; slot <= state.version.lngHistoryMax; ++slot)
        w.raw(commentBytes(state.history.strComments[static_cast<std::size_t>(slot)], codePage));

    w.flush();
    if (!w.ok() || std::fflush(file.get()) != 0) return false;
    return std::fclose(file.release()) == 0;
}

bool readProjectBlock(GraphState& state, const std::string& fileName, int64_t position,
                      bool wideSamples3, int codePage) {
    if (position < 1) return false;
    File file(std::fopen(fileName.c_str(), "rb"));
    if (!file) return false;
    if (std::fseek(file.get(), static_cast<long>(position - 1), SEEK_SET) != 0) return false;
    BlockReader r(file.get());

    const int16_t length = r.get<int16_t>();
    if (!r.ok() || length < 0 || length > 64) return false;
    state.version.strMainVersion =
        text::fromAnsi(r.text(static_cast<std::size_t>(length)), codePage);
    state.version.lngHistoryMax = r.get<int32_t>();
    if (state.version.lngHistoryMax < 1 || state.version.lngHistoryMax > 5)
        state.version.lngHistoryMax = 5;
    if (!r.ok()) return false;

    const std::string& v = state.version.strMainVersion;
    const bool v1 = v == "1.00", v2 = v == "2.00", v3 = v == "3.00", v4 = v == "4.00";
    if (!(v1 || v2 || v3 || v4)) return false;

    getSampSetting(r, state.sampSetting, v3 || v4);
    if (v1 || v2) state.sampSetting.lngTriggerPoint = triggerPointOf(state.sampSetting);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        CHSETTING& c = state.chSetting[static_cast<std::size_t>(ch)];
        c.intChNo = r.get<int16_t>();
        c.intAD = r.get<int16_t>();
        c.lngSamplingItem = r.get<int32_t>();
        c.lngTargetNo = r.get<int32_t>();
        c.lngGraphColor = r.get<int32_t>();
    }
    getGraphInfo(r, state.graphInfo, !v1);
    const bool wide = v4 || (v3 && wideSamples3);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        SAMPDATA& d = state.sampData[static_cast<std::size_t>(ch)];
        if (wide) {
            r.array<double>(d.sngSamplingData, kGraphRecords);
            r.array<double>(d.sngSamplingTimeByInv, kGraphRecords);
        } else {
            r.array<float>(d.sngSamplingData, kGraphRecords);
            r.array<float>(d.sngSamplingTimeByInv, kGraphRecords);
        }
        d.sngUnit = r.get<float>();
        d.sngBaseValue = r.get<float>();
        d.intDecPoint = r.get<int16_t>();
    }
    const int slots = state.version.lngHistoryMax;
    for (int slot = 1; slot <= slots; ++slot)
        r.samples(state.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample);
    for (int slot = 1; slot <= slots; ++slot)
        state.history.strComments[static_cast<std::size_t>(slot)] =
            text::fromAnsi(r.text(kCommentBytes), codePage);
    return r.ok();
}

}  // namespace zt
