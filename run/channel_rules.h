// Which channels are in use, how many, and whether each group was filled from its first
// channel upwards, computed from the channel settings alone: a channel is in use when it has
// a station (0 to 31) and a real item (neither the "None" item nor the 0 left by initialize).
#pragma once

#include <cstdint>

#include "config/settings_model.h"

namespace zt {

bool channelInUse(const ChannelSettings& channels, int channel);
// Number of channels in use, 0 to 8.
int16_t channelsInUse(const ChannelSettings& channels);
// Station of the lowest channel in use; 0 when none is.
int16_t lowestChannelStation(const ChannelSettings& channels);
// The channel number when a lower channel of its group (1 to 4, 5 to 8) is not in use, else 0.
int outOfOrderChannel(const ChannelSettings& channels, int channel);
// The first channel in use that is out of order, 0 when the order is kept.
int firstOutOfOrderChannel(const ChannelSettings& channels);

}  // namespace zt
