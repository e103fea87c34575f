#include "core/sample_conversion.h"

#include <algorithm>
#include <cmath>

namespace zt {

namespace {

// One tenth of a millisecond is 1000 ten-thousandths.
constexpr int64_t kPerInterval = 1000;

// Converts record `i` (null past the end of a short graph), advancing `clock`.
void convertRecord(size_t i, const SampleRecord* rec, const ConversionTable& table,
                   const std::array<double*, 9>& value, double* time, int64_t& clock) {
    const bool fresh = i == 0 || (rec && rec->lngDiffTime > 0);
    if (i > 0 && fresh) clock += static_cast<int64_t>(rec->lngDiffTime) * kPerInterval;
    time[i] = timeFromTenThousandths(clock);
    if (!fresh) {
        for (size_t ch = 1; ch <= 8; ++ch)
            value[ch][i] = value[ch][i - 1];
        return;
    }
    const SampleRecord blank{};
    const SampleRecord& r = rec ? *rec : blank;
    for (size_t ch = 1; ch <= 4; ++ch)
        value[ch][i] = convertRaw(r.lngAnalogData[ch - 1], table[ch]);
    const auto word = static_cast<uint16_t>(r.intDigitalData);
    for (size_t k = 5; k <= 8; ++k)
        value[k][i] = static_cast<double>((word >> (k - 5)) & 1u);
}

std::array<double*, 9> sizedValueArrays(ChannelData& sampData) {
    std::array<double*, 9> value{};
    for (size_t ch = 1; ch <= 8; ++ch) {
        sampData[ch].sngSamplingData.resize(kGraphRecords);
        sampData[ch].sngSamplingTimeByInv.resize(kGraphRecords);
        value[ch] = sampData[ch].sngSamplingData.data();
    }
    return value;
}

}  // namespace

void convertSamples(std::span<const SampleRecord> records, const ConversionTable& table,
                    ChannelData& sampData) {
    const std::array<double*, 9> value = sizedValueArrays(sampData);
    double* time = sampData[1].sngSamplingTimeByInv.data();
    int64_t clock = 0;
    for (size_t i = 0; i < static_cast<size_t>(kGraphRecords); ++i)
        convertRecord(i, i < records.size() ? &records[i] : nullptr, table, value, time, clock);
    for (size_t ch = 2; ch <= 8; ++ch) {
        std::copy(sampData[1].sngSamplingTimeByInv.begin(), sampData[1].sngSamplingTimeByInv.end(),
                  sampData[ch].sngSamplingTimeByInv.begin());
    }
}

void convertSampleRange(std::span<const SampleRecord> records, int first, int last,
                        const ConversionTable& table, ChannelData& sampData) {
    const int end = std::min({last, kGraphRecords, static_cast<int>(records.size())});
    first = std::max(first, 0);
    if (first >= end) return;
    const std::array<double*, 9> value = sizedValueArrays(sampData);
    double* time = sampData[1].sngSamplingTimeByInv.data();
    // The clock of the record before: every time is a whole number of ten-thousandths.
    int64_t clock = first == 0 ? 0 : std::llround(time[first - 1] * 10000.0);
    for (int i = first; i < end; ++i) {
        const auto k = static_cast<size_t>(i);
        convertRecord(k, &records[k], table, value, time, clock);
        for (size_t ch = 2; ch <= 8; ++ch)
            sampData[ch].sngSamplingTimeByInv[k] = time[k];
    }
}

}  // namespace zt
