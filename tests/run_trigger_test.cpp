// Triggered runs: the control finds the trigger as a false-to-true edge in the incoming
// records, keeps the pre-trigger window before it, and only then plots and completes.
#include <gtest/gtest.h>

#include "run/run_states.h"
#include "run/sweep_capture.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

constexpr int32_t kStep = 1000;  // 100 ms per record

class TriggeredRun : public ::testing::Test, public RunFixture {
  protected:
    // Pre-trigger time 10% of 10,000 ms: the ninth record is the last of the pre-trigger
    // phase, the tenth begins the waiting phase.
    void setUpInside(int16_t boot, double level) {
        setChannel(1, 1, 201);  // decimal places 2: raw 7000 is 70.00
        setting().dblSamplingInterval = 100;
        setting().dblSamplingTime = 10000;
        setting().intTriggerType = 1;
        setting().intTriggerTarget = 1;
        setting().intTriggerBoot = boot;
        setting().dblTriggerLevel = level;
        setting().sngTriggerPosition = 10;
    }
    void startWith(std::vector<SampleRecord> records, int perBlock) {
        host.script(std::move(records));
        host.recordsPerBlock = perBlock;
        control.surface().cmdStart.click();
        ASSERT_EQ(control.runState(), Sampling);
    }
    static std::vector<SampleRecord> analogRun(std::vector<int32_t> values) {
        std::vector<SampleRecord> out;
        for (int32_t v : values)
            out.push_back(record(kStep, v));
        return out;
    }
};

TEST_F(TriggeredRun, InsideRisingTriggersOnlyAfterTheConditionWasFalse) {
    setUpInside(0, 50);
    std::vector<int32_t> values(9, 7000);  // pre-trigger: 70
    for (int32_t v : {6000, 4000, 5500})   // 60 follows a true condition, 40 is false, 55 fires
        values.push_back(v);
    startWith(analogRun(values), 1);
    host.run(11);
    EXPECT_EQ(control.state().triggerPhase, kWaitingForTrigger);
    EXPECT_TRUE(drawn.empty());
    host.run(1);
    EXPECT_EQ(control.state().triggerPhase, kTriggered);
    const int32_t point = control.state().sampSetting.lngTriggerPoint;
    EXPECT_EQ(point, 8);  // the window spans just under 1,000 ms
    EXPECT_EQ(graph()[static_cast<std::size_t>(point)].lngAnalogData[0], 5500);
    EXPECT_EQ(graph()[static_cast<std::size_t>(point - 1)].lngAnalogData[0], 4000);
    EXPECT_EQ(drawn.front(), std::make_pair(0, 9));
    EXPECT_EQ(statusTexts,
              (std::vector<std::string>{"Sampling Pre-trigger Data", "Waiting for Trigger", ""}));
    host.run();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphLength(), 102);
}

TEST_F(TriggeredRun, LevelEqualToTheValueCountsForRiseAndFall) {
    for (int16_t boot : {int16_t{0}, int16_t{1}}) {
        SweepSetup setup;
        setup.triggerType = 1;
        setup.triggerBoot = boot;
        setup.triggerChannel = 1;
        setup.triggerLevel = 50;
        EXPECT_TRUE(triggerCondition(setup, record(1, 50)));
    }
}

TEST_F(TriggeredRun, DigitalFallingTriggerFiresWhenTheBitDrops) {
    setChannel(5, 1, 1, 1);
    setChannel(6, 1, 2, 1);
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    setting().intTriggerType = 1;
    setting().intTriggerTarget = 6;
    setting().intTriggerBoot = 1;
    std::vector<SampleRecord> records;
    for (int i = 0; i < 12; ++i)
        records.push_back(record(2000, 0, static_cast<int16_t>(0x8002)));  // bit 1 set
    records.push_back(record(2000, 0, static_cast<int16_t>(0x8001)));      // bit 1 drops
    startWith(records, 4);
    host.run(4);
    EXPECT_EQ(control.state().triggerPhase, kTriggered);
    const auto point = static_cast<std::size_t>(control.state().sampSetting.lngTriggerPoint);
    EXPECT_EQ(graph()[point].intDigitalData, static_cast<int16_t>(0x8001));
    EXPECT_EQ(graph()[point - 1].intDigitalData, static_cast<int16_t>(0x8002));
}

TEST_F(TriggeredRun, FaultTriggerFiresOnTheFirstNonZeroFaultWordAndZeroesMarkedChannels) {
    setChannel(1, 1, 201);
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    setting().intTriggerType = 2;
    setting().intTriggerTarget = 1;
    setting().intTriggerBoot = 0;
    control.run().hooks().itemZeroedOnFault = [](int ch) { return ch == 1; };
    std::vector<SampleRecord> records;
    for (int i = 0; i < 11; ++i)
        records.push_back(record(2000, 4321));
    records.push_back(record(2000, 4321, 0, 3));
    startWith(records, 12);
    host.run(1);
    EXPECT_EQ(control.state().triggerPhase, kTriggered);
    const auto point = static_cast<std::size_t>(control.state().sampSetting.lngTriggerPoint);
    EXPECT_EQ(graph()[point].intFaultData, 3);
    EXPECT_EQ(graph()[point].lngAnalogData[0], 0);     // marked channel zeroed
    EXPECT_EQ(graph()[point].lngAnalogData[1], 1234);  // other channel kept
    EXPECT_EQ(graph()[point - 1].lngAnalogData[0], 4321);
    EXPECT_EQ(host.request().intTriggerStation, 1);
}

TEST_F(TriggeredRun, AnyNonZeroFaultWordCountsAsAFault) {
    SweepSetup setup;
    setup.triggerType = 2;
    EXPECT_TRUE(triggerCondition(setup, record(1, 0, 0, static_cast<int16_t>(0xFFFF))));
    EXPECT_FALSE(triggerCondition(setup, record(1, 0, 0, 0)));
}

TEST_F(TriggeredRun, TriggerThatNeverOccursKeepsWaitingUntilStopped) {
    setUpInside(0, 1000);
    host.recordsPerBlock = 10;
    control.surface().cmdStart.click();
    host.run(300);  // far longer than the sampling time
    EXPECT_EQ(control.runState(), Sampling);
    EXPECT_EQ(control.state().triggerPhase, kWaitingForTrigger);
    EXPECT_TRUE(drawn.empty());
    EXPECT_EQ(statusTexts.back(), "Waiting for Trigger");
    control.surface().cmdStop.click();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphLength(), 0);
}

}  // namespace
}  // namespace zt::testing
