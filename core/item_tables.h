// The per-channel item lists: the items a channel can sample, sorted by group (analog or on/off)
// and speed (monitor or high-speed), built from the host's item record of the channel's station.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/settings_model.h"
#include "platform/host_records.h"
#include "platform/zt_common.h"

namespace zt {

// Filter masks of the station item query.
inline constexpr int32_t kMonitorItemFilter = 0x13FFF;
inline constexpr int32_t kHighSpeedItemFilter = 0x21FFF;
// Flags of the "None" entry in the analog and in the on/off lists.
inline constexpr int32_t kNoneAnalogFlags = static_cast<int32_t>(0xFFFFFF03);
inline constexpr int32_t kNoneInOutFlags = 3;
// Number of values at byte 28 of an item record.
inline constexpr int kItemValueCount = 11;

struct TABLE_ITEM {
    std::vector<ITEM_INFO> udtMoniItem_Moni;  // analog, monitor sampling
    std::vector<ITEM_INFO> udtMoniItem_High;  // analog, high-speed sampling
    std::vector<ITEM_INFO> udtInOut_Moni;     // on/off, monitor sampling
    std::vector<ITEM_INFO> udtInOut_High;     // on/off, high-speed sampling

    friend bool operator==(const TABLE_ITEM&, const TABLE_ITEM&) = default;
};

// Item lists indexed by channel number 1 to 8 (element 0 is unused).
using ItemTables = std::array<TABLE_ITEM, kChannelCount + 1>;

// The "None" entry of an analog (`analog` true) or on/off list, named `noneName`.
ITEM_INFO noneItem(bool analog, const std::string& noneName);

// The list a channel offers at a speed (0 monitor, 1 high speed); channels 1 to 4 take the
// analog lists, 5 to 8 the on/off lists. An empty list for a channel outside 1 to 8.
const std::vector<ITEM_INFO>& channelItemList(const ItemTables& tables, int channel, int16_t speed);
// The name an item shows in its channel's list: the analog name for channels 1 to 4, the
// on/off name otherwise.
const std::string& itemName(const ITEM_INFO& item, int channel);

// Rebuilds the lists of `channel` from the host's item record. The "None" items of `moniItem`
// are renamed `noneName` in place. The high-speed mask is asked of the common library for the
// channel's station when it lies in the station table; otherwise it is 0. A channel outside
// 1 to 8 changes nothing.
void setMonitorItem(ItemTables& tables, MONI_ITEM& moniItem, int32_t channel, int32_t station,
                    const StationTable& stations, ztCommon& common, const std::string& noneName);

// The item record of a station as the common library lists it for a speed; an empty record
// when the station is not usable (outside 0 to 31 or marked not present).
MONI_ITEM stationMonitorItem(int32_t station, int16_t speed, const StationTable& stations,
                             ztCommon& common);

}  // namespace zt
