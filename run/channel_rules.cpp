#include "run/channel_rules.h"

namespace zt {

bool channelInUse(const ChannelSettings& channels, int channel) {
    if (channel < 1 || channel > kChannelCount) return false;
    const CHSETTING& ch = channels[static_cast<std::size_t>(channel)];
    return ch.lngTargetNo >= 0 && ch.lngTargetNo < kNoStation && ch.lngSamplingItem != kNoneItem &&
           ch.lngSamplingItem != 0;
}

int16_t channelsInUse(const ChannelSettings& channels) {
    int16_t count = 0;
    for (int ch = 1; ch <= kChannelCount; ++ch)
        if (channelInUse(channels, ch)) ++count;
    return count;
}

int16_t lowestChannelStation(const ChannelSettings& channels) {
    for (int ch = 1; ch <= kChannelCount; ++ch)
        if (channelInUse(channels, ch))
            return static_cast<int16_t>(channels[static_cast<std::size_t>(ch)].lngTargetNo);
    return 0;
}

int outOfOrderChannel(const ChannelSettings& channels, int channel) {
    if (channel < 1 || channel > kChannelCount) return 0;
    const int first = isAnalogChannel(channel) ? 1 : kAnalogChannels + 1;
    for (int lower = first; lower < channel; ++lower)
        if (!channelInUse(channels, lower)) return channel;
    return 0;
}

int firstOutOfOrderChannel(const ChannelSettings& channels) {
    for (int ch = 1; ch <= kChannelCount; ++ch)
        if (channelInUse(channels, ch) && outOfOrderChannel(channels, ch) != 0) return ch;
    return 0;
}

}  // namespace zt
