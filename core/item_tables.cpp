#include "core/item_tables.h"

#include "core/setting_limits.h"

namespace zt {

namespace {

bool stationInTable(int32_t station) {
    return station >= 0 && station < kStationCount;
}

void finishList(std::vector<ITEM_INFO>& list, bool analog, const std::string& noneName) {
    if (list.empty()) list.push_back(noneItem(analog, noneName));
    list.shrink_to_fit();
}

}  // namespace

ITEM_INFO noneItem(bool analog, const std::string& noneName) {
    ITEM_INFO item;
    item.lngItemCode = kNoneItem;
    (analog ? item.strAnalogName : item.strInOutName) = noneName;
    item.lngFlags = analog ? kNoneAnalogFlags : kNoneInOutFlags;
    item.lngValue.assign(kItemValueCount, 1);
    return item;
}

const std::vector<ITEM_INFO>& channelItemList(const ItemTables& tables, int channel,
                                              int16_t speed) {
    static const std::vector<ITEM_INFO> none;
    if (channel < 1 || channel > kChannelCount) return none;
    const TABLE_ITEM& t = tables[static_cast<size_t>(channel)];
    const bool high = speed == kSpeedHighSpeed;
    if (isAnalogChannel(channel)) return high ? t.udtMoniItem_High : t.udtMoniItem_Moni;
    return high ? t.udtInOut_High : t.udtInOut_Moni;
}

const std::string& itemName(const ITEM_INFO& item, int channel) {
    return isAnalogChannel(channel) ? item.strAnalogName : item.strInOutName;
}

void setMonitorItem(ItemTables& tables, MONI_ITEM& moniItem, int32_t channel, int32_t station,
                    const StationTable& stations, ztCommon& common, const std::string& noneName) {
    if (channel < 1 || channel > kChannelCount) return;
    TABLE_ITEM& t = tables[static_cast<size_t>(channel)];
    t = TABLE_ITEM{};

    for (ITEM_INFO& item : moniItem.udtAnalog) {
        if (item.lngItemCode == kNoneItem) item.strAnalogName = noneName;
    }
    for (auto* list : {&moniItem.udtInput, &moniItem.udtOutput}) {
        for (ITEM_INFO& item : *list) {
            if (item.lngItemCode == kNoneItem) item.strInOutName = noneName;
        }
    }

    const int32_t mask =
        stationInTable(station)
            ? common.GetHighSpeedMask(stations[static_cast<size_t>(station)].lngModelCode)
            : 0;

    for (const ITEM_INFO& item : moniItem.udtAnalog) {
        if ((item.lngFlags & 1) != 0) t.udtMoniItem_Moni.push_back(item);
        if ((item.lngFlags & mask) != 0) t.udtMoniItem_High.push_back(item);
    }
    for (const auto* list : {&moniItem.udtInput, &moniItem.udtOutput}) {
        for (const ITEM_INFO& item : *list) {
            if ((item.lngFlags & 1) != 0) t.udtInOut_Moni.push_back(item);
            if ((item.lngFlags & 2) != 0) t.udtInOut_High.push_back(item);
        }
    }
    finishList(t.udtMoniItem_Moni, true, noneName);
    finishList(t.udtMoniItem_High, true, noneName);
    finishList(t.udtInOut_Moni, false, noneName);
    finishList(t.udtInOut_High, false, noneName);
}

MONI_ITEM stationMonitorItem(int32_t station, int16_t speed, const StationTable& stations,
                             ztCommon& common) {
    if (!stationInTable(station)) return {};
    const STATION_RECORD& record = stations[static_cast<size_t>(station)];
    if (!record.present()) return {};
    const int32_t filter = speed == kSpeedHighSpeed ? kHighSpeedItemFilter : kMonitorItemFilter;
    const std::vector<ITEM_INFO> analog = common.GetStationItems(record.lngModelCode, 0, filter);
    const std::vector<ITEM_INFO> inOut = common.GetStationItems(record.lngModelCode, 1, filter);
    return common.AssembleMonitorItem(analog, inOut, record.lngCapacity, record.lngRegion,
                                      record.lngSpModel);
}

}  // namespace zt
