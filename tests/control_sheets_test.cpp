// The setting sheets inside the control, as a person uses them between host calls: what a new
// station table keeps, the trigger rows of "Not used", Clear, and the settings-file members.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "config/sheet_rows.h"
#include "run/run_states.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

constexpr const char* kPositionCommand = "*Position Command [before the electronic gear]";

struct SheetsInControl : ::testing::Test, RunFixture {
    ui::SpreadSheet& ch() { return control.surface().sprChannel; }
    ui::SpreadSheet& trig() { return control.surface().sprTrigger; }
    ui::SpreadSheet& samp() { return control.surface().sprSampling; }
    void showTab(int index) { control.surface().tabSpread.click(index); }
    void newStationTable() {
        SYS_INFO sys = lib.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control.SetSysInfo(1, sys, parameter);
    }
};

TEST_F(SheetsInControl, NewStationTableKeepsWhatTheTwoChannelItemRemembers) {
    showTab(2);
    ASSERT_TRUE(samp().chooseListItem(1, 2, "High Speed"));
    showTab(1);
    ASSERT_TRUE(ch().chooseListItem(1, 2, "03"));
    ASSERT_TRUE(ch().chooseListItem(2, 3, "*Motor speed"));
    control.state().graphInfo.udtVertScale[2] = {50, 3};
    ASSERT_TRUE(ch().chooseListItem(1, 3, kPositionCommand));
    ASSERT_TRUE(ch().locked(2, 3));

    newStationTable();
    EXPECT_TRUE(ch().locked(2, 3));
    EXPECT_EQ(ch().text(2, 3), kPositionCommand);

    ASSERT_TRUE(ch().chooseListItem(1, 3, "*Output frequency"));
    EXPECT_FALSE(ch().locked(2, 3));
    EXPECT_EQ(ch().text(2, 3), "*Motor speed");
    EXPECT_EQ(control.state().graphInfo.udtVertScale[2], (VERTSCALE{50, 3}));
    EXPECT_EQ(control.state().chSetting[2].lngSamplingItem, 209);
}

TEST_F(SheetsInControl, NotUsedTriggerShowsLevelZeroAndPositionTen) {
    showTab(2);
    ASSERT_TRUE(trig().chooseListItem(1, kTriggerRowType, "Fault"));
    ASSERT_TRUE(trig().chooseListItem(1, kTriggerRowType, "Not used"));
    EXPECT_EQ(trig().text(1, kTriggerRowTarget), "---");
    EXPECT_EQ(trig().text(1, kTriggerRowBoot), "---");
    EXPECT_EQ(trig().text(1, kTriggerRowLevel), "0.00");
    trig().leaveSheet();
    EXPECT_EQ(trig().text(1, kTriggerRowLevel), "0.00");
    EXPECT_EQ(trig().text(1, kTriggerRowPosition), "10");
    const SAMPSETTING& s = setting();
    EXPECT_EQ(s.intTriggerType, 0);
    EXPECT_EQ(s.intTriggerTarget, kNoTriggerTarget);
    EXPECT_EQ(s.dblTriggerLevel, 0);
    EXPECT_EQ(s.sngTriggerPosition, 10);
    for (int r = kTriggerRowTarget; r <= kTriggerRowPosition; ++r)
        EXPECT_TRUE(trig().locked(1, r)) << r;
}

TEST_F(SheetsInControl, ClearWithoutAGraphAppliesTheCleanStateOnce) {
    setChannel(1, 1, 201);
    ASSERT_EQ(control.runState(), OnlineReady);
    int applied = 0;
    RunHooks& hooks = control.run().hooks();
    auto lock = hooks.lockSheets;
    hooks.lockSheets = [&](bool locked) {
        ++applied;
        lock(locked);
    };
    EXPECT_TRUE(control.surface().cmdClear.click());
    EXPECT_EQ(control.runState(), OnlineNoChannel);
    EXPECT_EQ(applied, 1);
}

TEST(SettingsFile, FileNameGoesToTheProfileInTheHostsCodePage) {
    const char* env = std::getenv("ZT_TEST_TMP");
    std::filesystem::path dir =
        env != nullptr ? std::filesystem::path(env) : std::filesystem::temp_directory_path();
    dir /= "control_settings_file";
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    sim::SimCommonLibrary lib;
    HostEnvironment env1252;
    env1252.locale.codePage = 1252;
    ztGraphControl control{lib, env1252};
    const std::string utf8Name = (dir / "caf\xC3\xA9.ini").string();
    std::string value = "1";
    EXPECT_TRUE(control.SetInifileString(utf8Name, "S", "K", value));
    EXPECT_TRUE(std::filesystem::exists(dir / "caf\xE9.ini"));
    EXPECT_FALSE(std::filesystem::exists(utf8Name));
    std::string read;
    EXPECT_TRUE(control.GetInifileString(utf8Name, "S", "K", read));
    EXPECT_EQ(read, "1");
}

}  // namespace
}  // namespace zt::testing
