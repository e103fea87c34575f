#include <gtest/gtest.h>

#include "config/item_attribute.h"
#include "core/item_tables.h"
#include "sim/drive_catalogue.h"
#include "sim/sim_common.h"

namespace zt {
namespace {

ITEM_INFO analog(int32_t code, int32_t flags, std::string name = "item") {
    ITEM_INFO i;
    i.lngItemCode = code;
    i.strAnalogName = std::move(name);
    i.lngFlags = flags;
    i.intAttribute = 1;
    i.lngValue = {2, 0, 120};
    return i;
}

class ItemTablesTest : public ::testing::Test {
  protected:
    ItemTablesTest() {
        int32_t value = 0;
        int32_t count = 0;
        common.FillStationTable(stations, common.link().sysInfo(), value, count);
    }
    sim::SimCommon common;
    StationTable stations{};
    ItemTables tables{};
    ChannelSettings channels{};
};

TEST_F(ItemTablesTest, AnalogItemsSortByMonitorFlagAndStationMask) {
    const int32_t mask = sim::kGroupBasic;  // the general drive on station 1
    MONI_ITEM moni;
    moni.udtAnalog = {analog(1, 1), analog(2, 1 | mask), analog(3, mask)};
    setMonitorItem(tables, moni, 1, 1, stations, common, "None");
    std::vector<int32_t> moniCodes, highCodes;
    for (const auto& i : tables[1].udtMoniItem_Moni)
        moniCodes.push_back(i.lngItemCode);
    for (const auto& i : tables[1].udtMoniItem_High)
        highCodes.push_back(i.lngItemCode);
    EXPECT_EQ(moniCodes, (std::vector<int32_t>{1, 2}));
    EXPECT_EQ(highCodes, (std::vector<int32_t>{2, 3}));
}

TEST_F(ItemTablesTest, NoStationAndEmptyListsGiveOneNoneEntry) {
    MONI_ITEM moni;
    moni.udtAnalog = {analog(1, -1)};
    setMonitorItem(tables, moni, 5, kNoStation, stations, common, "None");
    ASSERT_EQ(tables[5].udtMoniItem_High.size(), 1u);
    EXPECT_EQ(tables[5].udtMoniItem_High[0].lngItemCode, kNoneItem);
    EXPECT_EQ(tables[5].udtMoniItem_High[0].lngFlags, kNoneAnalogFlags);
    ASSERT_EQ(tables[5].udtInOut_Moni.size(), 1u);
    EXPECT_EQ(tables[5].udtInOut_Moni[0].strInOutName, "None");
    EXPECT_EQ(tables[5].udtInOut_High[0].lngFlags, 3);
    EXPECT_EQ(tables[5].udtInOut_High[0].lngValue, std::vector<int32_t>(11, 1));
}

TEST_F(ItemTablesTest, NoneCodedInputIsRenamedInTheCallersRecord) {
    MONI_ITEM moni;
    moni.udtAnalog = {analog(kNoneItem, 1, "whatever")};
    setMonitorItem(tables, moni, 2, 1, stations, common, "Nichts");
    EXPECT_EQ(moni.udtAnalog[0].strAnalogName, "Nichts");
    EXPECT_EQ(tables[2].udtMoniItem_Moni[0].strAnalogName, "Nichts");
}

TEST_F(ItemTablesTest, ChannelOutsideOneToEightChangesNothing) {
    MONI_ITEM moni;
    moni.udtAnalog = {analog(1, 1)};
    for (int32_t ch : {0, 9, -1}) {
        setMonitorItem(tables, moni, ch, 1, stations, common, "None");
        EXPECT_EQ(tables, ItemTables{});
    }
}

TEST_F(ItemTablesTest, AttributeLookupAnswersByColumnAndRepairsUnknownItems) {
    MONI_ITEM moni = stationMonitorItem(1, 0, stations, common);
    setMonitorItem(tables, moni, 1, 1, stations, common, "None");
    setMonitorItem(tables, moni, 5, 1, stations, common, "None");
    const int16_t monitor = 0;
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, 0, 1, monitor, false),
              "*Output frequency");
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, 1, 1, monitor, false), "Hz");
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, 3, 1, monitor, false), "1");
    EXPECT_EQ(itemAttribute(tables, channels, common, 202, 3, 1, monitor, false), "0");
    EXPECT_EQ(itemAttribute(tables, channels, common, 202, 10, 1, monitor, false), "1");
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, 19, 1, monitor, false), "");
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, -1, 1, monitor, false), "");
    EXPECT_EQ(itemAttribute(tables, channels, common, 33, 0, 5, monitor, false), "*RUN");
    const int16_t other = 2;
    EXPECT_EQ(itemAttribute(tables, channels, common, 201, 0, 1, other, false), "");

    channels[1].lngSamplingItem = 999;
    EXPECT_EQ(itemAttribute(tables, channels, common, 999, 0, 1, monitor, true), "");
    EXPECT_EQ(channels[1].lngSamplingItem, 999);
    EXPECT_EQ(itemAttribute(tables, channels, common, 999, 0, 1, monitor, false), "");
    EXPECT_EQ(channels[1].lngSamplingItem, kNoneItem);
}

}  // namespace
}  // namespace zt
