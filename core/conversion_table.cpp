#include "core/conversion_table.h"

namespace zt {

bool isTwoChannelItem(int32_t item) {
    return item == 222 || item == 224 || item == 226;
}

int32_t fullScaleCount(int32_t item, bool stationFlag, bool model901) {
    if (stationFlag) {
        switch (item) {
            case 201:
            case 229:
            case 230:
            case 231:
            case 232:
                return model901 ? 120 : 1;
            case 202:
            case 203:
            case 204:
            case 206:
            case 212:
            case 213:
            case 237:
            case 238:
                return 4096;
            case 207:
            case 208:
                return 7094;
            case 209:
            case 210:
                return 4095;
            case 233:
            case 234:
            case 245:
            case 246:
            case 247:
                return 32768;
            case 242:
                return 16384;
            default:
                return 1;
        }
    }
    switch (item) {
        case 202:
        case 203:
        case 204:
        case 206:
        case 207:
        case 208:
        case 209:
        case 210:
        case 211:
        case 212:
        case 213:
        case 235:
        case 236:
        case 237:
        case 238:
        case 240:
        case 241:
            return 4095;
        case 233:
        case 234:
        case 243:
        case 244:
        case 245:
        case 246:
        case 247:
            return 32767;
        case 242:
            return 16384;
        default:
            return 1;
    }
}

double decimalFactor(int16_t intDecPoint) {
    switch (intDecPoint) {
        case 1:
            return 0.1f;
        case 2:
            return 0.01f;
        case 3:
            return 0.001f;
        default:
            return 1.0f;
    }
}

ConversionTable buildConversionTable(const ChannelSettings& chSetting, const ChannelData& sampData,
                                     const PlotInputs& inputs) {
    ConversionTable table{};
    const bool model901 = inputs.modelText == "901";
    for (size_t c = 1; c <= static_cast<size_t>(kAnalogChannels); ++c) {
        Conversion& conv = table[c];
        if (!inputs.inUse[c]) continue;
        conv.format = inputs.signedItem[c] ? RawFormat::Signed16 : RawFormat::Raw;
        const int32_t item = chSetting[c].lngSamplingItem;
        const bool flag = inputs.directValue[c];
        const int32_t n = fullScaleCount(item, flag, model901);
        if (flag && isTwoChannelItem(item)) {
            conv.format = (c == 1 || c == 3) ? RawFormat::Raw32 : RawFormat::Raw;
        }
        const double base = sampData[c].sngBaseValue;
        if (n == 1) {
            conv.gain = 1.0;
        } else if (base != 0 && n == 120) {
            conv.gain = 120.0 / base;
        } else {
            conv.gain = base / n;
        }
        conv.decimalFactor = static_cast<float>(decimalFactor(sampData[c].intDecPoint));
    }
    return table;
}

}  // namespace zt
