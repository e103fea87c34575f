#include "run/analog_conversion.h"

#include <algorithm>
#include <initializer_list>

namespace zt {

namespace {

bool among(int32_t code, std::initializer_list<int32_t> codes) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

bool isTwoChannelPositionItem(int32_t code) {
    return code == 222 || code == 224 || code == 226;
}

}  // namespace

int32_t fullScaleCount(int32_t itemCode, bool directValue, bool model901) {
    if (directValue) {
        if (among(itemCode, {201, 229, 230, 231, 232})) return model901 ? 120 : 1;
        if (among(itemCode, {202, 203, 204, 206, 212, 213, 237, 238})) return 4096;
        if (among(itemCode, {207, 208})) return 7094;
        if (among(itemCode, {209, 210})) return 4095;
        if (among(itemCode, {233, 234, 245, 246, 247})) return 32768;
        if (itemCode == 242) return 16384;
        return 1;
    }
    if (among(itemCode, {202, 203, 204, 206, 207, 208, 209, 210, 211, 212, 213, 235, 236, 237, 238,
                         240, 241}))
        return 4095;
    if (among(itemCode, {233, 234, 243, 244, 245, 246, 247})) return 32767;
    if (itemCode == 242) return 16384;
    return 1;
}

AnalogConversion analogConversion(const AnalogChannelFacts& facts) {
    AnalogConversion c;
    if (!facts.inUse) return c;
    c.format = facts.itemSigned ? 1 : 0;
    const int32_t n = fullScaleCount(facts.itemCode, facts.directValue, facts.model901);
    if (facts.directValue && isTwoChannelPositionItem(facts.itemCode))
        c.format = (facts.channel == 1 || facts.channel == 3) ? 11 : 0;
    const double base = static_cast<double>(facts.baseValue);
    if (n == 1) {
        c.gain = 1.0;
    } else if (base != 0 && n == 120) {
        c.gain = 120.0 / base;
    } else {
        c.gain = base / n;
    }
    switch (facts.decimalPlaces) {
        case 1:
            c.decimalFactor = 0.1f;
            break;
        case 2:
            c.decimalFactor = 0.01f;
            break;
        case 3:
            c.decimalFactor = 0.001f;
            break;
        default:
            c.decimalFactor = 1.0f;
            break;
    }
    return c;
}

}  // namespace zt
