// The item attribute lookup: one property of a channel's item, found in the channel's item
// lists and returned as text. Asking for an item the channel no longer offers resets the
// channel's item to "None", except while a graph file is being loaded.
#pragma once

#include <cstdint>
#include <string>

#include "core/item_tables.h"
#include "core/settings_model.h"
#include "platform/zt_common.h"

namespace zt {

// Attribute columns the component reads.
inline constexpr int16_t kAttrName = 0;
inline constexpr int16_t kAttrUnit = 1;
inline constexpr int16_t kAttrFullScale = 2;
inline constexpr int16_t kAttrSign = 3;
inline constexpr int16_t kAttrEffective = 10;
inline constexpr int16_t kAttrLastColumn = 18;

// Column `column` (0 to 18) of item `itemCode` in channel `channel`'s list for `selector`
// (0 monitor, 1 high speed). Empty text when the selector, channel, item or column is not
// known; an unknown item sets the channel's item to "None" unless `loading`.
std::string itemAttribute(const ItemTables& tables, ChannelSettings& channels, ztCommon& common,
                          int32_t itemCode, int16_t column, int16_t channel,
                          const int16_t& selector, bool loading);

}  // namespace zt
