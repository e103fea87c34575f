// Start refused by the checks: the message the user sees and no command to the host.
#include <gtest/gtest.h>

#include "run/graph_request.h"
#include "run/start_checks.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

class StartCheck : public ::testing::Test, public RunFixture {
  protected:
    void SetUp() override { setChannel(1, 1, 201); }
    std::vector<std::string> startAndReadBoxes() {
        control.surface().cmdStart.click();
        return boxTexts();
    }
};

TEST_F(StartCheck, TriggerPositionsOnTheTensFrom10To90Pass) {
    for (float p : {10.0f, 50.0f, 90.0f})
        EXPECT_TRUE(triggerPositionValid(p)) << p;
    for (float p : {5.0f, 95.0f, 15.0f, 45.5f, 0.0f})
        EXPECT_FALSE(triggerPositionValid(p)) << p;
}

TEST_F(StartCheck, InsideTriggerOnAnUnsetChannelIsRefused) {
    setting().intTriggerType = 1;
    setting().intTriggerTarget = 3;
    setting().intTriggerBoot = 0;
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"Selected CH is not set. Choose another inside trigger."}));
    EXPECT_TRUE(host.commands().empty());
    EXPECT_EQ(control.runState(), 1);
}

TEST_F(StartCheck, NegativeLevelNeedsASignedItem) {
    setChannel(1, 1, 202);  // output current: unsigned
    setting().intTriggerType = 1;
    setting().intTriggerTarget = 1;
    setting().intTriggerBoot = 0;
    setting().dblTriggerLevel = -5;
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"Trigger Level is out of setting range."}));
    lib.boxes().clear();
    setChannel(1, 1, 201);  // output frequency: signed
    setting().intTriggerType = 1;
    setting().intTriggerTarget = 1;
    setting().dblTriggerLevel = -5;
    EXPECT_TRUE(startAndReadBoxes().empty());
}

TEST_F(StartCheck, DigitalTriggerChannelPassesWhateverLevelAndPosition) {
    setChannel(5, 1, 1, 1);
    setting().intTriggerType = 1;
    setting().intTriggerTarget = 5;
    setting().intTriggerBoot = 0;
    setting().dblTriggerLevel = -1e12;
    setting().sngTriggerPosition = 45.5f;
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    EXPECT_TRUE(startAndReadBoxes().empty());
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77}));
}

TEST_F(StartCheck, FaultTriggerRefusesAbsentStationsAndFall) {
    setting().intTriggerType = 2;
    setting().intTriggerBoot = 0;
    setting().intTriggerTarget = 4;  // no drive on station 4
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"Selected station number is not connected. Choose another "
                                        "trigger station number"}));
    lib.boxes().clear();
    setting().intTriggerTarget = 1;
    setting().intTriggerBoot = 1;
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"\"Fall\" is unavailable for Trigger start."}));
}

TEST_F(StartCheck, WrongIntervalAndTimeAreBothReportedIntervalFirst) {
    setting().dblSamplingInterval = 50;  // one channel at 19200 baud: at least 100
    setting().dblSamplingTime = 100;
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"Sampling interval is out of setting range.",
                                        "Sampling time is out of setting range."}));
}

TEST_F(StartCheck, MonitorTimeLiesBetweenAHundredAndTenThousandIntervals) {
    INIFILE_ITEM ini;
    ini.lngData[9] = 1;  // the faster link: 50 ms per item
    control.SetIniFileItem(ini);
    control.run().hooks().samplingItemOffered = [](int, int16_t) { return true; };
    setting().dblSamplingInterval = 50;
    HostServices services(lib, Font{});
    for (double time : {4999.0, 5000.0, 500000.0, 500001.0}) {
        lib.boxes().clear();
        setting().dblSamplingTime = time;
        const bool ok = time >= 5000 && time <= 500000;
        EXPECT_EQ(checkSamplingSetting({control.state(), services, control.run().hooks()}), ok)
            << time;
    }
}

TEST_F(StartCheck, ItemNotOfferedForTheSpeedIsRefused) {
    control.run().hooks().samplingItemOffered = [](int ch, int16_t) { return ch != 1; };
    EXPECT_EQ(startAndReadBoxes(),
              (std::vector<std::string>{"Select a sampling item from Monitor sampling item."}));
}

TEST_F(StartCheck, ChannelsOutOfOrderAreRefusedOnce) {
    setChannel(3, 1, 203);
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    const auto boxes = startAndReadBoxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(boxes[0].starts_with("Make setting in ascending order from CH1"));
}

TEST_F(StartCheck, NoChannelSetDisablesStart) {
    control.state().chSetting[1].lngSamplingItem = kNoneItem;
    EXPECT_EQ(startAndReadBoxes(), (std::vector<std::string>{"All CH are not set."}));
    EXPECT_FALSE(control.surface().cmdStart.Enabled);
}

TEST(GraphRequestRecord, AnalogChannelsKeepTheirOwnElements) {
    SAMPSETTING s;
    ChannelSettings ch{};
    for (auto& c : ch)
        c.lngTargetNo = kNoStation;
    ch[2] = {2, 0, 202, 1, 0};
    ch[4] = {4, 0, 203, 2, 0};
    s.intTriggerType = 2;
    s.intTriggerTarget = 3;
    GRAPH_REQUEST r;
    r.lngReserved = {7, 8, 9, 10};
    const ChannelsSet set{false, false, true, false, true};
    buildGraphRequest(r, s, ch, set);
    EXPECT_EQ(r.intAnalogCount, 2);
    EXPECT_EQ(r.intAnalogItem, (std::array<int16_t, 4>{0, 202, 0, 203}));
    EXPECT_EQ(r.intAnalogTarget, (std::array<int16_t, 4>{0, 1, 0, 2}));
    EXPECT_EQ(r.intTriggerStation, 3);
    EXPECT_EQ(r.intTriggerMode, 2);
    EXPECT_EQ(r.lngReserved, (std::array<int32_t, 4>{0, 8, 0, 0}));
    s.intTriggerType = 1;
    buildGraphRequest(r, s, ch, set);
    EXPECT_EQ(r.intTriggerStation, 255);
    EXPECT_EQ(encode(r).size(), 100u);
}

TEST(GraphRequestRecord, BaseValuesAreConvertedByItemAndModel) {
    EXPECT_EQ(convertedBaseValue(209, 1234, 3, false, false), 1000);
    EXPECT_EQ(convertedBaseValue(209, 1234, 3, false, true), 1000);
    EXPECT_EQ(convertedBaseValue(202, 300, 2, false, false), 173);  // 300 / sqrt(3)
    EXPECT_EQ(convertedBaseValue(202, 300, 2, true, false), 100);   // 300 / 3
    EXPECT_EQ(convertedBaseValue(207, 200, 0, true, false), 141);   // 200 / sqrt(2)
    EXPECT_EQ(convertedBaseValue(207, 200, 0, false, false), 200);
    EXPECT_EQ(convertedBaseValue(202, 300, 2, true, true), 300);  // direct value
}

}  // namespace
}  // namespace zt::testing
