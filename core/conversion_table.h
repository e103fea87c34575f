// Per-draw conversion of analog raw counts to engineering values.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/plot_inputs.h"
#include "core/samp_data.h"
#include "core/settings_model.h"

namespace zt {

enum class RawFormat : int16_t {
    Raw = 0,       // the raw count as it is
    Signed16 = 1,  // its low 16 bits as a signed 16-bit number
    Raw32 = 11,    // a 32-bit value as it is (the two-channel position items)
};

struct Conversion {
    RawFormat format = RawFormat::Raw;
    double gain = 1.0;           // engineering units per count
    float decimalFactor = 1.0f;  // 0.1, 0.01, 0.001 or 1
};

// Index = analog channel 1 to 4 (element 0 unused).
using ConversionTable = std::array<Conversion, kAnalogChannels + 1>;

// True for the items whose value spans two channels (32 bits on channels 1 and 3).
bool isTwoChannelItem(int32_t item);

// Count that corresponds to the item's base value; `stationFlag` selects the table, `model901`
// the 120-count scale of the speed items.
int32_t fullScaleCount(int32_t item, bool stationFlag, bool model901);

double decimalFactor(int16_t intDecPoint);

ConversionTable buildConversionTable(const ChannelSettings& chSetting, const ChannelData& sampData,
                                     const PlotInputs& inputs);

// The engineering value of a raw count.
inline double convertRaw(int32_t raw, const Conversion& c) {
    const double count = c.format == RawFormat::Signed16
                             ? static_cast<double>(static_cast<int16_t>(raw & 0xFFFF))
                             : static_cast<double>(raw);
    return count * c.gain * static_cast<double>(c.decimalFactor);
}

}  // namespace zt
