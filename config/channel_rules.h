// Which channels are in use, how many, and whether each group was filled from its first
// channel upwards. The tests read the channel sheet, so they follow what the user sees.
#pragma once

#include <cstdint>
#include <string>

#include "config/sheet_rows.h"
#include "core/settings_model.h"
#include "platform/ui/spread_sheet.h"

namespace zt {

// The channel's St.No. and Name cells both have a selection other than "None" (`noneText`).
bool channelIsSet(const ui::SpreadSheet& sprChannel, int channel, const std::string& noneText);

// Set channels whose station is not 32 and item not "None".
int16_t countChannels(const ui::SpreadSheet& sprChannel, const ChannelSettings& channels,
                      const std::string& noneText);

// Station of the lowest set channel; 0 when no channel is set.
int16_t lowestChannelStation(const ui::SpreadSheet& sprChannel, const ChannelSettings& channels,
                             const std::string& noneText);

// `channel` when a lower channel of its group (1-4 or 5-8) is not set, else 0.
int channelOutOfOrder(const ui::SpreadSheet& sprChannel, int channel, const std::string& noneText);

}  // namespace zt
