#include "run/graph_request.h"

#include <cmath>

#include "platform/text/rounding.h"

namespace zt {

void buildGraphRequest(GRAPH_REQUEST& r, const SAMPSETTING& setting,
                       const ChannelSettings& channels, const ChannelsSet& set) {
    const int32_t reserved88 = r.lngReserved[1];
    r = GRAPH_REQUEST{};
    r.lngReserved[1] = reserved88;

    for (int ch = 1; ch <= kChannelCount; ++ch) {
        if (!set[static_cast<std::size_t>(ch)]) continue;
        const CHSETTING& c = channels[static_cast<std::size_t>(ch)];
        const auto item = static_cast<int16_t>(c.lngSamplingItem);
        const auto target = static_cast<int16_t>(c.lngTargetNo);
        if (isAnalogChannel(ch)) {
            const auto k = static_cast<std::size_t>(ch - 1);
            ++r.intAnalogCount;
            r.intAnalogItem[k] = item;
            r.intAnalogTarget[k] = target;
        } else {
            const auto k = static_cast<std::size_t>(ch - 5);
            ++r.intDigitalCount;
            r.intDigitalItem[k] = item;
            r.intDigitalTarget[k] = target;
        }
    }

    r.intTriggerStation = setting.intTriggerType == 2 ? setting.intTriggerTarget : 255;
    r.intTriggerMode =
        setting.intTriggerType == 0 ? setting.intSamplingMode : setting.intTriggerType;
    r.intSamplingSpeed = setting.intSamplingSpeed;
    if (setting.intSamplingSpeed == 1) {
        r.intMaskHalf = text::toInt16Saturated((setting.dblMask + 1) * 0.5);
        r.lngMask = text::toInt32Saturated(setting.dblMask);
    } else if (setting.intSamplingSpeed == 0) {
        r.lngInterval = text::toInt32Saturated(setting.dblSamplingInterval);
    }
}

int32_t convertedBaseValue(int32_t itemCode, int32_t value, int16_t unit, bool model057,
                           bool directValue) {
    const bool fixedThousand = itemCode == 209 || itemCode == 210 || itemCode == 211;
    if (fixedThousand) return unit == 3 ? 1000 : value;
    if (directValue) return value;
    const double v = value;
    double b = v;
    switch (itemCode) {
        case 202:
        case 203:
        case 204:
        case 206:
            b = model057 ? v / std::sqrt(3.0) / std::sqrt(3.0) : v / std::sqrt(3.0);
            break;
        case 207:
        case 208:
            b = model057 ? v / std::sqrt(2.0) : v;
            break;
        default:
            break;
    }
    return text::toInt32Saturated(b);
}

void takeGraphRequest(GraphState& state, ztCommon& common, const GRAPH_REQUEST& completed) {
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const int32_t target = state.chSetting[static_cast<std::size_t>(ch)].lngTargetNo;
        bool direct = false;
        if (target != kNoStation) {
            STATION_RECORD record;
            int32_t errorCode = -1;
            common.LookupStation(target, record, errorCode);
            direct = errorCode == 0 && (record.lngAttribute & 0x100) != 0;
        }
        state.directValue[static_cast<std::size_t>(ch)] = direct;
    }

    GRAPH_REQUEST& own = state.request;
    for (std::size_t k = 0; k < 4; ++k) {
        const int ch = static_cast<int>(k) + 1;
        SAMPDATA& data = state.sampData[static_cast<std::size_t>(ch)];
        own.intUnit[k] = completed.intUnit[k];
        data.sngUnit = completed.intUnit[k];
        own.intDecPoint[k] = completed.intDecPoint[k];
        data.intDecPoint = completed.intDecPoint[k];

        const int32_t item = completed.intAnalogItem[k];
        const int32_t target = state.chSetting[static_cast<std::size_t>(ch)].lngTargetNo;
        bool model057 = false;
        if (target >= 0 && target < kStationCount) {
            const auto code = static_cast<uint32_t>(
                state.stations[static_cast<std::size_t>(target)].lngModelCode);
            model057 = (code & 0xFFF00000u) == 0x05700000u;
        }
        const int32_t base =
            convertedBaseValue(item, completed.lngBaseValue[k], completed.intUnit[k], model057,
                               state.directValue[static_cast<std::size_t>(ch)]);
        own.lngBaseValue[k] = base;
        data.sngBaseValue = static_cast<float>(base);
    }
    own.intMaskHalf = completed.intMaskHalf;
}

}  // namespace zt
