#include "graph/sample_conversion.h"

#include <algorithm>

namespace zt {

void convertSamples(std::span<const SampleRecord> records, const ConversionTable& table,
                    ChannelData& sampData) {
    for (size_t ch = 1; ch <= 8; ++ch) {
        sampData[ch].sngSamplingData.resize(kGraphRecords);
        sampData[ch].sngSamplingTimeByInv.resize(kGraphRecords);
    }
    std::array<double*, 9> value{};
    for (size_t ch = 1; ch <= 8; ++ch)
        value[ch] = sampData[ch].sngSamplingData.data();
    double* time = sampData[1].sngSamplingTimeByInv.data();

    // One tenth of a millisecond is 1000 ten-thousandths.
    constexpr int64_t kPerInterval = 1000;
    int64_t clock = 0;
    for (size_t i = 0; i < static_cast<size_t>(kGraphRecords); ++i) {
        const SampleRecord* rec = i < records.size() ? &records[i] : nullptr;
        const bool fresh = i == 0 || (rec && rec->lngDiffTime > 0);
        if (i > 0 && fresh) clock += static_cast<int64_t>(rec->lngDiffTime) * kPerInterval;
        time[i] = timeFromTenThousandths(clock);
        if (!fresh) {
            for (size_t ch = 1; ch <= 8; ++ch)
                value[ch][i] = value[ch][i - 1];
            continue;
        }
        const SampleRecord blank{};
        const SampleRecord& r = rec ? *rec : blank;
        for (size_t ch = 1; ch <= 4; ++ch)
            value[ch][i] = convertRaw(r.lngAnalogData[ch - 1], table[ch]);
        const auto word = static_cast<uint16_t>(r.intDigitalData);
        for (size_t k = 5; k <= 8; ++k)
            value[k][i] = static_cast<double>((word >> (k - 5)) & 1u);
    }
    for (size_t ch = 2; ch <= 8; ++ch) {
        std::copy(sampData[1].sngSamplingTimeByInv.begin(), sampData[1].sngSamplingTimeByInv.end(),
                  sampData[ch].sngSamplingTimeByInv.begin());
    }
}

}  // namespace zt
