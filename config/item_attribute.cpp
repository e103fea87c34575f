#include "config/item_attribute.h"

#include <algorithm>
#include <array>

namespace zt {

namespace {

std::string flag(bool set) {
    return set ? "1" : "0";
}

// Value index (e0 to e10) of columns 5 to 7 and 11 to 18; -1 for the other columns.
int valueIndex(int16_t column) {
    static constexpr std::array<int, kAttrLastColumn + 1> kIndex{
        -1, -1, -1, -1, -1, 0, 1, 2, -1, -1, -1, 3, 6, 4, 5, 8, 7, 9, 10};
    return kIndex[static_cast<size_t>(column)];
}

}  // namespace

std::string itemAttribute(const ItemTables& tables, ChannelSettings& channels, ztCommon& common,
                          int32_t itemCode, int16_t column, int16_t channel,
                          const int16_t& selector, bool loading) {
    if (channel < 1 || channel > kChannelCount) return {};
    if (selector != 0 && selector != 1) return {};
    const std::vector<ITEM_INFO>& list = channelItemList(tables, channel, selector);
    const auto it = std::find_if(list.begin(), list.end(), [&](const ITEM_INFO& item) {
        return item.lngItemCode == itemCode;
    });
    if (it == list.end()) {
        if (!loading) channels[static_cast<size_t>(channel)].lngSamplingItem = kNoneItem;
        return {};
    }
    if (column < 0 || column > kAttrLastColumn) return {};
    const ITEM_INFO& item = *it;
    switch (column) {
        case kAttrName:
            return itemName(item, channel);
        case kAttrUnit:
            return common.GetUnitText(item.lngUnitCode);
        case kAttrFullScale:
            return std::to_string(item.lngFullScale);
        case kAttrSign:
            return flag((item.intAttribute & 1) != 0);
        case 4:
            return std::to_string(item.lngFlags);
        case 8:
            return std::to_string(item.intReserved);
        case 9:
            return flag((item.intAttribute & 2) != 0);
        case kAttrEffective:
            return flag((item.intAttribute & 4) != 0);
        default:
            break;
    }
    const int index = valueIndex(column);
    if (index < 0 || static_cast<size_t>(index) >= item.lngValue.size()) return {};
    return std::to_string(item.lngValue[static_cast<size_t>(index)]);
}

}  // namespace zt
