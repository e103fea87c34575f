#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "platform/chart/chart_root.h"

namespace zt::chart {
namespace {

namespace d = design;

TEST(ChartDesign, MissingNamesThrowAutomationErrors) {
    ChartRoot root;
    const std::vector<std::function<void()>> lookups = {
        [&] { root.Areas["PlotArea5"]; },
        [&] { root.PlotDataCollection["plotdata1"]; },  // names are exact
        [&] { root.PulseDataCollection["DummyData"]; },
        [&] { root.Shapes[""]; },
        [&] { root.Lines["VertCursorA"]; },
    };
    for (size_t i = 0; i < lookups.size(); ++i) {
        try {
            lookups[i]();
            ADD_FAILURE() << "lookup " << i << " found something";
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrorNoSuchObject) << i;
        }
    }
}

TEST(ChartDesign, SeriesBelongToTheirChannelsStripAndAxis) {
    ChartRoot root;
    // Overlay of analog channel 3 and displayed graph of digital channel 6.
    const Series& overlay3 = root.PlotDataCollection["PlotData7"];
    EXPECT_EQ(&overlay3.area(), &root.Areas["PlotArea3"]);
    EXPECT_EQ(&overlay3.axis(), &root.Axes["Y3Axis"]);
    const Series& digital6 = root.PulseDataCollection["PulseData2"];
    EXPECT_EQ(&digital6.area(), &root.Areas["PulseArea2"]);
    EXPECT_EQ(&digital6.axis(), &root.Axes["Y6Axis"]);
    EXPECT_EQ(&root.Shapes["Y8AxisBack"].axis(), &root.Axes["Y8Axis"]);
}

TEST(Series, TakesItsArraysOverLimitsTheCountAndStartsWithLabelsOff) {
    ChartRoot root;
    Series& s = root.PlotDataCollection["PlotData2"];
    std::vector<double> values{1, 2, 3, 4};
    const double* data = values.data();
    s.setPoints(10, std::move(values), std::vector<double>{0, 1, 2});
    EXPECT_EQ(s.pointCount(), 3);
    EXPECT_EQ(s.values(), data);
    EXPECT_EQ(s.valueAt(3), std::nullopt);
    EXPECT_EQ(s.valueAt(-1), std::nullopt);
    for (int i : {0, 2, 2, 3, -1})
        s.setLabelShown(i, true);
    s.setLabelShown(0, false);
    EXPECT_EQ(s.labelSwitches().onIndices().size(), 1u);
    EXPECT_TRUE(s.labelShown(2));
    s.setPoints(3, std::vector<double>(3, 0.0), std::vector<double>(3, 0.0));
    EXPECT_FALSE(s.labelShown(2));  // refilling starts with every label off
    s.setLabelShown(1, true);
    s.setPointCount(0);
    EXPECT_FALSE(s.labelShown(1));
    s.setPoints(-5, std::vector<double>{1}, std::vector<double>{1});
    EXPECT_EQ(s.pointCount(), 0);

    Series& base = root.PlotDataCollection["DummyData"];
    base.setPoints(3, std::vector<int16_t>{-125, -125, -125}, std::vector<double>{0, 0.5, 1.5});
    EXPECT_EQ(base.valueAt(1), -125.0);
    EXPECT_EQ(base.timeAt(2), 1.5);
}

struct SnapCase {
    double time;
    int index;
};

class CursorSnap : public ::testing::TestWithParam<SnapCase> {};

TEST_P(CursorSnap, StandsOnTheNearestPoint) {
    ChartRoot root;
    Series& base = root.PlotDataCollection["DummyData"];
    base.setPoints(6, std::vector<int16_t>(6, -125), std::vector<double>{0, 1, 1, 1, 3, 10});
    Cursor& c = root.Cursors["VertCursorA"];
    c.setPosition(GetParam().time);
    EXPECT_EQ(c.pointIndex(), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(Times, CursorSnap,
                         ::testing::Values(SnapCase{-4, 0}, SnapCase{0.4, 0}, SnapCase{0.5, 0},
                                           SnapCase{0.6, 1}, SnapCase{1.0, 1}, SnapCase{2.0, 1},
                                           SnapCase{2.1, 4}, SnapCase{6.5, 4}, SnapCase{7, 5},
                                           SnapCase{1e9, 5}));

TEST(Cursor, ReportsItsPixelOrMinusTwoOffTheGraph) {
    ChartRoot root;
    Cursor& c = root.Cursors["VertCursorB"];
    Axis& time = root.Axes["XAxis"];
    c.setPosition(50);
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);  // no points
    std::vector<double> times;
    for (int i = 0; i < 101; ++i)
        times.push_back(i * 10.0);
    root.PlotDataCollection["DummyData"].setPoints(101, std::vector<int16_t>(101, -125),
                                                   std::move(times));
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);  // time axis 0 .. 0
    time.Maximum = 1000;
    c.setPosition(53);
    EXPECT_EQ(c.position(), 50);
    EXPECT_EQ(c.pixelX(), 320 + 34);  // 50 of 1000 ms over 680 px
    c.setPixelX(320 + 340);           // placing by pixel snaps as well
    EXPECT_EQ(c.pointIndex(), 50);
    time.Minimum = 600;  // scrolled away from the cursor's point
    time.Maximum = 1600;
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);
    c.setPixelX(2000);  // beyond the axis: nearest point is the last, 1000 ms
    EXPECT_EQ(c.pixelX(), 320 + 272);
    c.setPointIndex(100000);
    EXPECT_EQ(c.pointIndex(), -1);
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);
}

}  // namespace
}  // namespace zt::chart
