// What a drawn graph shows: sample times, series, labels, the trigger mark, clearing and the
// chart's start-up state.
#include <gtest/gtest.h>

#include <limits>

#include "control/graph_control.h"
#include "graph/chart_setup.h"
#include "sim/sim_common_library.h"
#include "tests/plot_fixture.h"

namespace zt {
namespace {

using testing::PlotFixture;

TEST(PlotTimes, ZeroIntervalRepeatsTheSampleAtTheSameTime) {
    PlotFixture f;
    f.use(1, 202);
    f.state->sampData[1].sngBaseValue = 4095;  // one unit per count
    const int32_t intervals[] = {5, 5, 0, 10};
    for (size_t i = 0; i < 4; ++i) {
        f.records()[i].lngDiffTime = intervals[i];
        f.records()[i].lngAnalogData[0] = static_cast<int32_t>(10 * (i + 1));
    }
    f.draw();
    EXPECT_EQ(f.time(0), 0);
    EXPECT_EQ(f.time(1), 0.5);
    EXPECT_EQ(f.time(2), 0.5);
    EXPECT_EQ(f.time(3), 1.5);
    EXPECT_EQ(f.time(9999), 1.5);
    EXPECT_EQ(f.value(1, 2), f.value(1, 1));
    EXPECT_EQ(f.value(1, 3), 40);
    EXPECT_EQ(f.state->sampData[8].sngSamplingTimeByInv[3], 1.5);
}

struct DriftCase {
    int32_t interval;
    size_t index;
    double expected;
};
void PrintTo(const DriftCase& c, std::ostream* os) {
    *os << "interval " << c.interval << ", sample " << c.index;
}
class PlotLongRun : public ::testing::TestWithParam<DriftCase> {};

TEST_P(PlotLongRun, TimesDoNotDrift) {
    PlotFixture f;
    f.setIntervals(GetParam().interval);
    f.draw();
    EXPECT_EQ(f.time(GetParam().index), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Plot, PlotLongRun,
    ::testing::Values(DriftCase{1, 3, 0.3}, DriftCase{1, 9999, 999.9}, DriftCase{3, 7777, 2333.1},
                      DriftCase{std::numeric_limits<int32_t>::max(), 9999, 2147268898635.3}));

struct TriggerCase {
    float position;
    bool shown;
};
void PrintTo(const TriggerCase& c, std::ostream* os) {
    *os << "position " << c.position;
}
class PlotTriggerMark : public ::testing::TestWithParam<TriggerCase> {};

TEST_P(PlotTriggerMark, ShownOnlyForPositionsFrom10To90) {
    PlotFixture f;
    f.setIntervals(10);
    f.state->sampSetting.intTriggerType = 1;
    f.state->sampSetting.lngTriggerPoint = 1000;
    f.state->sampSetting.sngTriggerPosition = GetParam().position;
    f.draw();
    EXPECT_EQ(f.refs.triggerCursor->Visible, GetParam().shown);
    EXPECT_EQ(f.refs.timeBase->labelShown(1000), GetParam().shown);
    if (GetParam().shown) {
        EXPECT_EQ(f.refs.triggerCursor->position(), 1000.0);
        EXPECT_EQ(f.refs.timeBase->Label.Text, " T ");
    }
}

INSTANTIATE_TEST_SUITE_P(Plot, PlotTriggerMark,
                         ::testing::Values(TriggerCase{9.9f, false}, TriggerCase{10, true},
                                           TriggerCase{90, true}, TriggerCase{90.1f, false}));

TEST(PlotTriggerMark, HiddenWhenNoSampleFollowsTheTriggerPoint) {
    PlotFixture f;
    f.setIntervals(10);
    f.setIntervals(0, 500);
    f.state->sampSetting.intTriggerType = 2;
    f.state->sampSetting.lngTriggerPoint = 600;
    f.draw();
    EXPECT_FALSE(f.refs.triggerCursor->Visible);
    EXPECT_TRUE(f.refs.timeBase->labelSwitches().onIndices().empty());
}

TEST(PlotOverlay, IsGreyAndLeavesTheTimeBaseAlone) {
    PlotFixture f;
    f.use(3, 202);
    f.use(6, 33);
    f.setIntervals(10, 1);
    f.draw(2, kOverlayGraph);
    EXPECT_EQ(f.root.PlotDataCollection["PlotData7"].pointCount(), kGraphRecords);
    EXPECT_EQ(f.root.PlotDataCollection["PlotData3"].pointCount(), 0);
    EXPECT_EQ(f.root.PulseDataCollection["PulseData6"].pointCount(), kGraphRecords);
    EXPECT_EQ(f.root.PulseDataCollection["PulseData6"].LinePen.color, 0xC0C0C0);
    EXPECT_EQ(f.root.PlotDataCollection["PlotData7"].Label.TextColor, 0xC0C0C0);
    EXPECT_EQ(f.refs.timeBase->pointCount(), 0);
}

TEST(PlotDisplayed, UsesChannelColoursAndLabels) {
    PlotFixture f;
    f.use(3, 202);
    f.state->chSetting[3].lngGraphColor = 0x123456;
    f.draw();
    const chart::Series& s = f.root.PlotDataCollection["PlotData3"];
    EXPECT_EQ(s.LinePen.color, 0x123456);
    EXPECT_EQ(s.Label.TextColor, 0x123456);
    EXPECT_EQ(s.Label.Text, "CH3");
    EXPECT_EQ(f.refs.timeBase->pointCount(), kGraphRecords);
    EXPECT_EQ(f.refs.timeBase->valueAt(5), -125);
    // A channel not in use keeps its series empty.
    EXPECT_EQ(f.root.PlotDataCollection["PlotData1"].pointCount(), 0);
}

TEST(PlotChannelLabels, SitOneDivisionPerChannelIntoTheVisibleSpan) {
    PlotFixture f;
    f.use(1, 202);
    f.use(2, 203);
    f.use(5, 33);
    f.setIntervals(10);  // 1 ms per sample
    for (auto& r : f.records())
        r.intDigitalData = 1;
    f.state->graphInfo.udtHorzScale.sngHorzScale = 100;
    f.refs.timeAxis->Minimum = 0;
    f.refs.timeAxis->Maximum = 1000;
    f.draw();
    const auto& ch1 = f.refs.series(1, kDisplayedGraph).labelSwitches().onIndices();
    const auto& ch2 = f.refs.series(2, kDisplayedGraph).labelSwitches().onIndices();
    const auto& ch5 = f.refs.series(5, kDisplayedGraph);
    ASSERT_EQ(ch1.size(), 1u);
    ASSERT_EQ(ch2.size(), 1u);
    EXPECT_GE(ch1[0], 100);
    EXPECT_LE(ch1[0], 200);
    EXPECT_GE(ch2[0], 200);
    EXPECT_LE(ch2[0], 300);
    ASSERT_EQ(ch5.labelSwitches().onIndices().size(), 1u);
    // The pulse is high, so the label goes below it.
    EXPECT_EQ(ch5.Label.Placement, chart::LabelPlacement::Below);

    // Scrolled past the end: no label is shown, and the old ones are gone.
    f.refs.timeAxis->Minimum = 20000;
    placeChannelLabels(f.refs, *f.state, f.inputs, kDisplayedGraph);
    EXPECT_TRUE(f.refs.series(1, kDisplayedGraph).labelSwitches().onIndices().empty());
    EXPECT_TRUE(f.refs.series(2, kDisplayedGraph).labelSwitches().onIndices().empty());
}

TEST(PlotSearch, FindsASampleInsideTheRangeOrNone) {
    std::vector<double> times(kGraphRecords);
    for (size_t i = 0; i < times.size(); ++i)
        times[i] = static_cast<double>(i);
    EXPECT_EQ(findSampleInTimeRange(times, 4999.5, 5000.5), 5000);
    EXPECT_EQ(findSampleInTimeRange(times, 0.2, 0.8), 0);
    EXPECT_EQ(findSampleInTimeRange(times, 20000, 30000), 0);
    EXPECT_EQ(findSampleInTimeRange({}, 0, 1), 0);
}

TEST(PlotClear, AllGraphsEmptiesSeriesAndHistory) {
    PlotFixture f;
    f.use(1, 202);
    f.setIntervals(10);
    f.records(4)[7].lngAnalogData[2] = 99;
    f.records(4)[7].intFaultData = 5;
    f.state->history.strComments[0] = "run 1";
    f.draw();
    clearDisplayedGraph(f.refs, *f.state);
    EXPECT_EQ(f.refs.series(1, kDisplayedGraph).pointCount(), 0);
    EXPECT_EQ(f.refs.timeBase->pointCount(), 0);
    EXPECT_EQ(f.state->history.strComments[0], "");
    EXPECT_EQ(f.records()[5].lngDiffTime, 10);

    clearAllGraphs(f.refs, *f.state);
    EXPECT_EQ(f.records()[5].lngDiffTime, 0);
    EXPECT_EQ(f.records(4)[7].lngAnalogData[2], 0);
    // The fault word is not part of what is cleared.
    EXPECT_EQ(f.records(4)[7].intFaultData, 5);
}

TEST(PlotLayout, MarginFollowsTheScaleDisplay) {
    PlotFixture f;
    setScaleMargin(f.refs, 3);
    EXPECT_EQ(f.refs.area[8]->Left, 80);
    EXPECT_EQ(f.refs.grid->Left, 80);
    EXPECT_EQ(f.refs.timeAxis->Left, 80);
    EXPECT_EQ(f.refs.timeAxis->Length, f.root.Width - 80);
    EXPECT_EQ(f.refs.edgeLineA->X1, 80);
    setScaleMargin(f.refs, 0);
    EXPECT_EQ(f.refs.timeBaseArea->Left, 320);
    EXPECT_EQ(f.refs.timeAxis->Length, f.root.Width - 320);
}

TEST(PlotStartUp, ControlShowsAnEmptyChart) {
    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    const ChartRefs& r = control.chartRefs();
    EXPECT_EQ(r.root, &control.chartRoot());
    EXPECT_FALSE(r.triggerCursor->Visible);
    EXPECT_FALSE(r.cursorA->Visible);
    EXPECT_FALSE(r.edgeLineB->Visible);
    EXPECT_EQ(r.timeAxis->Minimum, 0);
    EXPECT_EQ(r.timeAxis->Maximum, 0);
    EXPECT_EQ(r.edgeLineA->Y1, r.grid->Top);
    EXPECT_EQ(r.edgeLineA->Y2, r.grid->Bottom);
    for (int c = 1; c <= 8; ++c) {
        EXPECT_EQ(r.series(c, kDisplayedGraph).pointCount(), 0);
        EXPECT_EQ(r.area[static_cast<size_t>(c)]->Left, 320);
    }
    EXPECT_EQ(control.state().chSetting[4].lngGraphColor, 0x80FF80);

    control.Terminate();
    EXPECT_EQ(control.chartRefs().root, nullptr);
    EXPECT_EQ(control.chartRefs().timeBase, nullptr);
}

}  // namespace
}  // namespace zt
