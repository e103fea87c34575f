// Conversion of an analog channel's raw count into its engineering value, as the plot shows
// it: value = converted(raw) x gain x decimal factor.
#pragma once

#include <cstdint>

namespace zt {

struct AnalogConversion {
    int16_t format = 0;  // 0 raw count as is, 1 low 16 bits signed, 11 32-bit value as is
    double gain = 1.0;
    float decimalFactor = 1.0f;

    double value(int32_t raw) const {
        const double counts = format == 1 ? static_cast<double>(static_cast<int16_t>(raw & 0xFFFF))
                                          : static_cast<double>(raw);
        return counts * gain * static_cast<double>(decimalFactor);
    }
};

struct AnalogChannelFacts {
    int channel = 1;            // 1 to 4
    int32_t itemCode = 0;       // monitor item code
    bool inUse = false;         // the channel holds an item
    bool itemSigned = false;    // the item's values are signed
    bool directValue = false;   // the station's values are taken without conversion
    bool model901 = false;      // the common library's model text is "901"
    float baseValue = 0;        // SAMPDATA.sngBaseValue
    int16_t decimalPlaces = 0;  // SAMPDATA.intDecPoint
};

// Full-scale count of an item: which table applies depends on the direct-value flag.
int32_t fullScaleCount(int32_t itemCode, bool directValue, bool model901);

AnalogConversion analogConversion(const AnalogChannelFacts& facts);

}  // namespace zt
