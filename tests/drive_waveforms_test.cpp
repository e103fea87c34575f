// Simulated drive runs as the records a host would deliver.
#include <gtest/gtest.h>

#include "sim/drive_waveforms.h"

namespace zt::sim {
namespace {

WaveformRequest runRequest(DriveScenario scenario) {
    WaveformRequest r;
    r.scenario = scenario;
    r.channel[1] = {201, 1, 100};  // frequency in hundredths of Hz
    r.channel[5].item = 33;        // RUN
    r.channel[6].item = 35;        // up to frequency
    r.channel[8].item = 36;        // fault
    return r;
}

TEST(DriveWaveforms, TypicalRunRampsToSpeedAndStops) {
    const auto records = driveWaveforms(runRequest(DriveScenario::Typical));
    ASSERT_EQ(records.size(), static_cast<size_t>(kGraphRecords));
    EXPECT_EQ(records[0].lngDiffTime, 0);
    EXPECT_EQ(records[1].lngDiffTime, 10);
    EXPECT_EQ(records[0].lngAnalogData[0], 0);
    EXPECT_NEAR(records[5000].lngAnalogData[0], 6000, 5);
    EXPECT_EQ(records[5000].intDigitalData & 0x3, 0x3);  // running, up to frequency
    EXPECT_EQ(records[9999].intDigitalData, 0);
}

TEST(DriveWaveforms, FaultTripsAtTheChosenTime) {
    WaveformRequest r = runRequest(DriveScenario::Typical);
    r.faultAtMs = 4000.0;  // sample 4000 at 1 ms per sample
    const auto records = driveWaveforms(r);
    EXPECT_EQ(records[3999].intDigitalData & 0x8, 0);
    EXPECT_EQ(records[4000].intDigitalData & 0x8, 0x8);
    EXPECT_EQ(records[4000].intDigitalData & 0x1, 0);  // the run signal drops
    EXPECT_EQ(records[4000].intFaultData, 1);
}

TEST(DriveWaveforms, CountIsLimitedToOneGraph) {
    WaveformRequest r = runRequest(DriveScenario::Servo);
    r.count = 20000;
    EXPECT_EQ(driveWaveforms(r).size(), static_cast<size_t>(kGraphRecords));
    r.count = -3;
    EXPECT_TRUE(driveWaveforms(r).empty());
}

}  // namespace
}  // namespace zt::sim
