// The sample loop of a draw: rebuilds every sample's time from the records' intervals and
// turns raw counts and the digital word into each channel's values.
#pragma once

#include <cstdint>
#include <span>

#include "core/conversion_table.h"
#include "core/samp_data.h"
#include "platform/host_records.h"

namespace zt {

// Time in ms of `tenThousandths` ten-thousandths of a millisecond.
inline double timeFromTenThousandths(int64_t tenThousandths) {
    return static_cast<double>(tenThousandths) / 10000.0;
}

// Fills the value and time arrays of channels 1 to 8 (kGraphRecords each) from `records`.
// Record 0 is at time 0 whatever its interval; a record with interval 0 (or less) repeats the
// previous values at the previous time; records missing from a short graph count as interval
// 0. Times are kept as whole ten-thousandths of a millisecond, so long runs do not drift.
void convertSamples(std::span<const SampleRecord> records, const ConversionTable& table,
                    ChannelData& sampData);

// Converts only records `first` … `last` - 1 into the same arrays, continuing the time of
// record `first` - 1 that an earlier call left there: a graph that grows while it is sampled
// costs only its new records. The range is limited to the records and the arrays.
void convertSampleRange(std::span<const SampleRecord> records, int first, int last,
                        const ConversionTable& table, ChannelData& sampData);

}  // namespace zt
