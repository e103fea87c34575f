#include "sim/drive_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "sim/sim_common.h"

namespace zt::sim {
namespace {

std::vector<int32_t> codes(const std::vector<ITEM_INFO>& items) {
    std::vector<int32_t> out;
    for (const auto& i : items)
        out.push_back(i.lngItemCode);
    return out;
}

bool contains(const std::vector<int32_t>& v, int32_t code) {
    return std::find(v.begin(), v.end(), code) != v.end();
}

// The lists a channel of each speed ends up with: monitor items by flag bit 0 from the
// monitor query, high-speed analog items by the model's mask from the high-speed query.
struct SpeedLists {
    std::vector<int32_t> monitor;
    std::vector<int32_t> highSpeed;
};

SpeedLists analogLists(SimCommon& common, const DriveModel& m) {
    SpeedLists lists;
    for (const auto& i : common.GetStationItems(m.modelCode, 0, kMonitorFilter)) {
        if ((i.lngFlags & 1) != 0) lists.monitor.push_back(i.lngItemCode);
    }
    const int32_t mask = common.GetHighSpeedMask(m.modelCode);
    for (const auto& i : common.GetStationItems(m.modelCode, 0, kHighSpeedFilter)) {
        if ((i.lngFlags & mask) != 0) lists.highSpeed.push_back(i.lngItemCode);
    }
    return lists;
}

TEST(DriveCatalogue, ItemsHaveKnownUnitsAndStarredNamesAreTheHighSpeedOnes) {
    for (const auto& d : analogItemDefs()) {
        const ITEM_INFO i = toItemInfo(d);
        EXPECT_TRUE(i.lngItemCode >= 201 && i.lngItemCode <= 247) << d.code;
        EXPECT_TRUE(unitText(i.lngUnitCode).has_value()) << d.code;
        EXPECT_EQ(d.name.starts_with("*"), (d.flags & kFlagHighSpeedList) != 0) << d.code;
    }
    for (const auto& d : onOffItemDefs())
        EXPECT_EQ(d.name.starts_with("*"), (d.flags & kFlagHighSpeed) != 0) << d.code;
    EXPECT_EQ(toItemInfo(*findAnalogItem(201)).intAttribute & kAttrSigned, kAttrSigned);
    EXPECT_EQ(toItemInfo(*findOnOffItem(36)).strInOutName, "*Fault");
}

TEST(DriveCatalogue, TwoChannelPositionItemsOnlyOnTheServoModel) {
    EXPECT_EQ(findAnalogItem(222)->name, "*Position Command [before the electronic gear]");
    for (const DriveModel& m : driveModels()) {
        const auto all = codes(modelItems(m, 0));
        for (const int32_t code : {222, 224, 226})
            EXPECT_EQ(contains(all, code), m.modelText == "901") << m.key << " " << code;
    }
}

TEST(DriveCatalogue, MonitorAndHighSpeedListsDifferByFlagsAndMask) {
    SimCommon common;
    const SpeedLists servo = analogLists(common, *findModelByKey("servo"));
    EXPECT_TRUE(contains(servo.highSpeed, 222));
    EXPECT_FALSE(contains(servo.monitor, 222));
    EXPECT_TRUE(contains(servo.monitor, 201));
    // The general model samples only its basic group at high speed.
    const SpeedLists general = analogLists(common, *findModelByKey("general"));
    EXPECT_EQ(general.highSpeed, (std::vector<int32_t>{201, 202, 203}));
    EXPECT_TRUE(contains(general.monitor, 212));
    // Without a high-speed mask nothing is offered for high-speed sampling.
    const SpeedLists compact = analogLists(common, *findModelByKey("compact"));
    EXPECT_TRUE(compact.highSpeed.empty());
    EXPECT_FALSE(compact.monitor.empty());
}

TEST(DriveCatalogue, OnOffHighSpeedItemsByFlagBitAndUnknownModelsHaveNone) {
    SimCommon common;
    std::vector<int32_t> high;
    for (const auto& i :
         common.GetStationItems(findModelByKey("general")->modelCode, 1, kHighSpeedFilter)) {
        if ((i.lngFlags & 2) != 0) high.push_back(i.lngItemCode);
    }
    EXPECT_EQ(high, (std::vector<int32_t>{1, 2, 33, 36}));
    EXPECT_TRUE(common.GetStationItems(0x12345678, 0, kMonitorFilter).empty());
    EXPECT_TRUE(common.GetStationItems(kStationNotPresent, 1, kHighSpeedFilter).empty());
    EXPECT_EQ(common.GetHighSpeedMask(kStationNotPresent), 0);
    EXPECT_EQ(common.GetModelSeries(0), "");
    EXPECT_EQ(common.GetModelSeries(findModelByKey("vector")->modelCode), "E");
}

}  // namespace
}  // namespace zt::sim
