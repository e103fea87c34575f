// What the chart shows around runs, with the control wired as a host has it: a graph being
// sampled shows its time base, labels and trigger mark reply by reply, and a graph that was
// discarded or never sampled never comes back with a setting edit.
#include <gtest/gtest.h>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "core/chart_refs.h"
#include "run/run_states.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

namespace zt {
namespace {

class DisplayTest : public ::testing::Test {
  protected:
    void SetUp() override {
        control.advise(&host);
        SYS_INFO sys = library.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control.SetSysInfo(1, sys, parameter);
        control.ChgLineStatus(1);
        ch().chooseListItem(1, 2, "01");
        ch().chooseListItem(1, 3, "*Output frequency");
        ch().chooseListItem(5, 2, "01");
        ch().chooseListItem(5, 3, "*RUN");
        host.runRecords = 100;
        host.recordsPerBlock = 10;
    }
    ui::SpreadSheet& ch() { return control.surface().sprChannel; }
    const chart::Series& frequency() { return control.chartRefs().series(1, 0); }
    const chart::Series& run() { return control.chartRefs().series(5, 0); }
    const chart::Series& timeBase() { return *control.chartRefs().timeBase; }
    int seriesPoints() {
        int total = timeBase().pointCount();
        for (int c = 1; c <= 8; ++c)
            total += control.chartRefs().series(c, 0).pointCount();
        return total;
    }
    static bool anyLabel(const chart::Series& series) {
        for (int i = 0; i < series.pointCount(); ++i)
            if (series.labelShown(i)) return true;
        return false;
    }

    sim::SimCommonLibrary library;
    ztGraphControl control{library};
    sim::SimHost host{[this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
        return dispatch(control, id, kind, args);
    }};
};

TEST_F(DisplayTest, EditsWithoutAGraphDrawNothing) {
    EXPECT_EQ(seriesPoints(), 0);
    ch().chooseListItem(2, 2, "01");
    ch().chooseListItem(2, 3, "*Output frequency");
    EXPECT_EQ(seriesPoints(), 0);
}

struct Discard {
    const char* name;
    void (*discard)(ztGraphControl&, sim::SimCommonLibrary&);
};

class DiscardedGraph : public DisplayTest, public ::testing::WithParamInterface<Discard> {};

TEST_P(DiscardedGraph, StaysOffTheChartAfterTheNextEdit) {
    control.surface().cmdStart.click();
    host.run();
    ASSERT_EQ(control.runState(), OnlineGraph);
    ASSERT_GT(frequency().pointCount(), 0);
    GetParam().discard(control, library);
    ASSERT_EQ(control.runState(), OnlineReady);
    EXPECT_EQ(seriesPoints(), 0);
    EXPECT_TRUE(ch().chooseListItem(2, 2, "01"));
    EXPECT_EQ(seriesPoints(), 0);
    EXPECT_FALSE(control.chartRefs().triggerCursor->Visible);
}

INSTANTIATE_TEST_SUITE_P(Ways, DiscardedGraph,
                         ::testing::Values(Discard{"NewStationTable",
                                                   [](ztGraphControl& c,
                                                      sim::SimCommonLibrary& lib) {
                                                       SYS_INFO sys = lib.sim().link().sysInfo();
                                                       PARAMETER_INFO parameter;
                                                       c.SetSysInfo(1, sys, parameter);
                                                   }},
                                           Discard{"ClearConfirmed",
                                                   [](ztGraphControl& c, sim::SimCommonLibrary&) {
                                                       c.surface().cmdClear.click();
                                                   }}),
                         [](const ::testing::TestParamInfo<Discard>& p) { return p.param.name; });

TEST_F(DisplayTest, RunDrawsTimeBaseAndLabelsWithEveryReply) {
    control.surface().cmdStart.click();
    host.run(3);
    EXPECT_EQ(frequency().pointCount(), 30);
    EXPECT_EQ(timeBase().pointCount(), 30);
    EXPECT_DOUBLE_EQ(*timeBase().timeAt(29), *frequency().timeAt(29));
    EXPECT_DOUBLE_EQ(*timeBase().valueAt(29), -125.0);
    // 200 ms per record, 1,000 ms per division: CH1 at the first division, CH5 at the fifth.
    EXPECT_TRUE(anyLabel(frequency()));
    EXPECT_TRUE(anyLabel(run()));
}

TEST_F(DisplayTest, ContinuousRunStartsTheTimeBaseAfreshWithEachSweep) {
    control.state().sampSetting.intSamplingMode = 1;
    control.surface().cmdStart.click();
    while (control.state().graphInfo.udtHistoryState.lngGraphTotal == 0)
        ASSERT_TRUE(host.deliverBlock());
    // The reply that ended the first sweep started the second with its remaining records.
    const int points = frequency().pointCount();
    ASSERT_GT(points, 0);
    EXPECT_LT(points, 10);
    EXPECT_EQ(timeBase().pointCount(), points);
    EXPECT_DOUBLE_EQ(*timeBase().timeAt(points - 1), (points - 1) * 200.0);
}

TEST_F(DisplayTest, TriggerMarkIsShownWhileTheRunGoesOn) {
    SAMPSETTING& s = control.state().sampSetting;
    s.intTriggerType = 1;
    s.intTriggerTarget = 5;
    s.intTriggerBoot = 0;
    s.sngTriggerPosition = 10;
    // RUN off for the pre-trigger time (1,000 ms) and one record more, then on: the trigger.
    std::vector<SampleRecord> script(7);
    for (SampleRecord& r : script)
        r.lngDiffTime = 2000;
    script.back().intDigitalData = 1;
    host.script(script);
    control.surface().cmdStart.click();
    host.run(2);
    ASSERT_EQ(control.state().triggerPhase, 3);
    const int32_t point = s.lngTriggerPoint;
    ASSERT_GE(point, 1);
    EXPECT_TRUE(control.chartRefs().triggerCursor->Visible);
    EXPECT_TRUE(timeBase().labelShown(point));
    EXPECT_EQ(control.runState(), Sampling);
}

}  // namespace
}  // namespace zt
