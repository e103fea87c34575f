#include "config/channel_rules.h"

namespace zt {

namespace {

bool selectionShown(const ui::SpreadSheet& sheet, int col, int row, const std::string& noneText) {
    return sheet.cellType(col, row) == ui::CellType::ComboBox &&
           sheet.selectedIndex(col, row) >= 0 && sheet.text(col, row) != noneText;
}

}  // namespace

bool channelIsSet(const ui::SpreadSheet& sprChannel, int channel, const std::string& noneText) {
    if (channel < 1 || channel > kChannelCount || sprChannel.MaxCols() < channel ||
        sprChannel.MaxRows() < kRowName) {
        return false;
    }
    return selectionShown(sprChannel, channel, kRowStation, noneText) &&
           selectionShown(sprChannel, channel, kRowName, noneText);
}

int16_t countChannels(const ui::SpreadSheet& sprChannel, const ChannelSettings& channels,
                      const std::string& noneText) {
    int16_t count = 0;
    for (int c = 1; c <= kChannelCount; ++c) {
        const CHSETTING& ch = channels[static_cast<size_t>(c)];
        if (channelIsSet(sprChannel, c, noneText) && ch.lngTargetNo != kNoStation &&
            ch.lngSamplingItem != kNoneItem) {
            ++count;
        }
    }
    return count;
}

int16_t lowestChannelStation(const ui::SpreadSheet& sprChannel, const ChannelSettings& channels,
                             const std::string& noneText) {
    for (int c = 1; c <= kChannelCount; ++c) {
        if (channelIsSet(sprChannel, c, noneText)) {
            return static_cast<int16_t>(channels[static_cast<size_t>(c)].lngTargetNo);
        }
    }
    return 0;
}

int channelOutOfOrder(const ui::SpreadSheet& sprChannel, int channel, const std::string& noneText) {
    if (channel < 1 || channel > kChannelCount) return 0;
    const int first = isAnalogChannel(channel) ? 1 : kAnalogChannels + 1;
    for (int lower = first; lower < channel; ++lower) {
        if (!channelIsSet(sprChannel, lower, noneText)) return channel;
    }
    return 0;
}

}  // namespace zt
