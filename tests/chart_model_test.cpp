#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "platform/chart/chart_root.h"

namespace zt::chart {
namespace {

namespace d = design;

// Every object the control keeps, fetched in the order it looks them up.
std::vector<const void*> lookUpDesign(ChartRoot& root) {
    std::vector<const void*> refs;
    for (auto name : d::kChannelAreas)
        refs.push_back(&root.Areas[name]);
    refs.push_back(&root.Areas[d::kTimeBaseArea]);
    for (auto name : d::kPlotSeriesNames)
        refs.push_back(&root.PlotDataCollection[name]);
    for (auto name : d::kPulseSeriesNames)
        refs.push_back(&root.PulseDataCollection[name]);
    refs.push_back(&root.PlotDataCollection[d::kTimeBaseSeries]);
    for (auto name : d::kChannelAxes)
        refs.push_back(&root.Axes[name]);
    refs.push_back(&root.Axes[d::kTimeBaseAxis]);
    refs.push_back(&root.Axes[d::kTimeAxis]);
    for (auto name : d::kScaleBacks)
        refs.push_back(&root.Shapes[name]);
    refs.push_back(&root.Cursors[d::kCursorA]);
    refs.push_back(&root.Cursors[d::kCursorB]);
    refs.push_back(&root.Cursors[d::kTriggerCursor]);
    refs.push_back(&root.Grids[d::kGrid]);
    refs.push_back(&root.Lines[d::kValueCursorA]);
    refs.push_back(&root.Lines[d::kValueCursorB]);
    refs.push_back(&root.Lines[d::kEdgeLineB]);
    refs.push_back(&root.Lines[d::kEdgeLineA]);
    refs.push_back(&root.Labels[d::kTriggerStateLabel]);
    return refs;
}

TEST(ChartDesign, EveryObjectIsFoundOnceInLookupOrder) {
    ChartRoot root;
    const auto refs = lookUpDesign(root);
    EXPECT_EQ(refs.size(), 53u);
    EXPECT_EQ(std::set<const void*>(refs.begin(), refs.end()).size(), refs.size());
    // A second round finds the very same objects.
    EXPECT_EQ(lookUpDesign(root), refs);
}

TEST(ChartDesign, MissingNamesThrowAutomationErrors) {
    ChartRoot root;
    const std::vector<std::pair<std::string, std::function<void()>>> cases = {
        {"PlotArea5", [&] { root.Areas["PlotArea5"]; }},
        {"plotdata1", [&] { root.PlotDataCollection["plotdata1"]; }},
        {"DummyData", [&] { root.PulseDataCollection["DummyData"]; }},
        {"ZAxis", [&] { root.Axes["ZAxis"]; }},
        {"", [&] { root.Shapes[""]; }},
        {"HorzCursorA", [&] { root.Cursors["HorzCursorA"]; }},
        {"Grid2", [&] { root.Grids["Grid2"]; }},
        {"VertCursorA", [&] { root.Lines["VertCursorA"]; }},
        {"Label1", [&] { root.Labels["Label1"]; }},
    };
    for (const auto& [name, lookup] : cases) {
        try {
            lookup();
            ADD_FAILURE() << name << " was found";
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrorNoSuchObject) << name;
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
    EXPECT_EQ(digital6.kind(), SeriesKind::Pulse);
    EXPECT_EQ(&digital6.area(), &root.Areas["PulseArea2"]);
    EXPECT_EQ(&digital6.axis(), &root.Axes["Y6Axis"]);
    const Series& timeBase = root.PlotDataCollection["DummyData"];
    EXPECT_EQ(&timeBase.area(), &root.Areas["DummyArea"]);
    EXPECT_EQ(&timeBase.axis(), &root.Axes["YDummyAxis"]);
    EXPECT_EQ(&root.Shapes["Y8AxisBack"].axis(), &root.Axes["Y8Axis"]);
}

TEST(ChartDesign, StartGeometryHasTheFourColumnMarginAndStackedStrips) {
    ChartRoot root;
    EXPECT_EQ(root.BackColor, 0);
    EXPECT_EQ(root.Width, 1000);
    const Grid& grid = root.Grids["Grid"];
    EXPECT_EQ(grid.Left, 320);
    EXPECT_EQ(grid.Top, 20);
    EXPECT_EQ(grid.Bottom, root.Height - 30);
    EXPECT_EQ(grid.Right, root.Width);
    EXPECT_EQ(grid.LineColor1, 0x404000);
    const Axis& time = root.Axes["XAxis"];
    EXPECT_EQ(time.Left, 320);
    EXPECT_EQ(time.Length, root.Width - 320);
    EXPECT_EQ(time.TickCount, 11);
    EXPECT_EQ(time.Minimum, 0);
    EXPECT_EQ(time.Maximum, 0);
    for (int c = 0; c < 8; ++c) {
        const Area& area = root.Areas[d::kChannelAreas[c]];
        EXPECT_EQ(area.Left, 320);
        EXPECT_GE(area.Top, grid.Top);
        EXPECT_LE(area.Bottom, grid.Bottom);
        EXPECT_LT(area.Top, area.Bottom);
        const Shape& back = root.Shapes[d::kScaleBacks[c]];
        EXPECT_EQ(back.Size, 80);
        EXPECT_EQ(back.FillColor, d::kChannelColors[c]);
        EXPECT_EQ(back.axis().Left, (c % 4) * 80);
    }
    for (auto name : {"DummyVertLineA", "DummyVertLineB"}) {
        const Line& edge = root.Lines[name];
        EXPECT_EQ(edge.X1, grid.Left);
        EXPECT_EQ(edge.X2, grid.Left);
        EXPECT_EQ(edge.Y1, grid.Top);
        EXPECT_EQ(edge.Y2, grid.Bottom);
    }
    EXPECT_EQ(root.Labels["TriggerStateLabel"].FontSize, 20);
    EXPECT_FALSE(root.Cursors["TriggerCursor"].Visible);
}

TEST(Series, TakesItsArraysOverAndLimitsTheCount) {
    ChartRoot root;
    Series& s = root.PlotDataCollection["PlotData1"];
    std::vector<double> values{1, 2, 3, 4};
    std::vector<double> times{0, 1, 2};
    const double* data = values.data();
    s.setPoints(10, std::move(values), std::move(times));
    EXPECT_EQ(s.pointCount(), 3);
    EXPECT_EQ(s.values(), data);
    EXPECT_EQ(s.valueAt(2), 3.0);
    EXPECT_EQ(s.valueAt(3), std::nullopt);
    EXPECT_EQ(s.valueAt(-1), std::nullopt);
    s.setPoints(-5, std::vector<double>{1}, std::vector<double>{1});
    EXPECT_EQ(s.pointCount(), 0);
}

TEST(Series, TimeBaseTakesSixteenBitValues) {
    ChartRoot root;
    Series& s = root.PlotDataCollection["DummyData"];
    s.setPoints(3, std::vector<int16_t>{-125, -125, -125}, std::vector<double>{0, 0.5, 1.5});
    EXPECT_EQ(s.pointCount(), 3);
    EXPECT_EQ(s.valueAt(1), -125.0);
    EXPECT_EQ(s.timeAt(2), 1.5);
}

TEST(Series, CountZeroEmptiesAndLabelsGoOff) {
    ChartRoot root;
    Series& s = root.PulseDataCollection["PulseData1"];
    s.setPoints(5, std::vector<double>(5, 1.0), std::vector<double>{0, 1, 2, 3, 4});
    s.setLabelShown(2, true);
    s.setPointCount(7);
    EXPECT_EQ(s.pointCount(), 5);
    EXPECT_TRUE(s.labelShown(2));
    s.setPointCount(0);
    EXPECT_EQ(s.pointCount(), 0);
    EXPECT_FALSE(s.labelShown(2));
    EXPECT_EQ(s.valueAt(0), std::nullopt);
}

TEST(Series, LabelSwitchesFollowEverySequence) {
    ChartRoot root;
    Series& s = root.PlotDataCollection["PlotData2"];
    s.setPoints(10000, std::vector<double>(10000, 0.0), std::vector<double>(10000, 0.0));
    for (int i : {0, 5, 9999, 5, 42})
        s.setLabelShown(i, true);
    s.setLabelShown(10000, true);
    s.setLabelShown(-1, true);
    EXPECT_EQ(s.labelSwitches().onIndices().size(), 4u);
    s.setLabelShown(0, false);
    s.setLabelShown(0, false);
    EXPECT_FALSE(s.labelShown(0));
    EXPECT_TRUE(s.labelShown(5));
    EXPECT_TRUE(s.labelShown(9999));
    EXPECT_TRUE(s.labelShown(42));
    EXPECT_EQ(
        std::set<int>(s.labelSwitches().onIndices().begin(), s.labelSwitches().onIndices().end()),
        (std::set<int>{5, 42, 9999}));
    s.hideAllLabels();
    EXPECT_TRUE(s.labelSwitches().onIndices().empty());
    for (int i : {5, 42, 9999})
        EXPECT_FALSE(s.labelShown(i));
    s.setLabelShown(42, true);
    EXPECT_TRUE(s.labelShown(42));
    EXPECT_FALSE(s.labelShown(5));
    // Refilling the series starts with every label off.
    s.setPoints(10000, std::vector<double>(10000, 0.0), std::vector<double>(10000, 0.0));
    EXPECT_FALSE(s.labelShown(42));
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
    Series& base = root.PlotDataCollection["DummyData"];
    c.setPosition(50);
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);  // no points
    std::vector<double> times;
    for (int i = 0; i < 101; ++i)
        times.push_back(i * 10.0);
    base.setPoints(101, std::vector<int16_t>(101, -125), std::move(times));
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);  // time axis 0 .. 0
    time.Minimum = 0;
    time.Maximum = 1000;
    c.setPosition(53);
    EXPECT_EQ(c.pointIndex(), 5);
    EXPECT_EQ(c.position(), 50);
    EXPECT_EQ(c.pixelX(), 320 + 34);  // 50 of 1000 ms over 680 px
    // Placing by pixel snaps as well: the middle of the axis is 500 ms.
    c.setPixelX(320 + 340);
    EXPECT_EQ(c.pointIndex(), 50);
    EXPECT_EQ(c.pixelX(), 660);
    // Scrolled away from the cursor's point.
    time.Minimum = 600;
    time.Maximum = 1600;
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);
    c.setPixelX(2000);  // beyond the axis: nearest point is the last, 1000 ms
    EXPECT_EQ(c.pointIndex(), 100);
    EXPECT_EQ(c.pixelX(), 320 + 272);
    c.setPointIndex(100000);
    EXPECT_EQ(c.pointIndex(), -1);
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);
    c.setPointIndex(70);
    EXPECT_EQ(c.pixelX(), 320 + 68);
    time.Maximum = time.Minimum;
    c.setPixelX(400);
    EXPECT_EQ(c.pixelX(), Cursor::kOffGraph);
}

TEST(ChartRoot, MouseEventsReachTheirHandler) {
    ChartRoot root;
    std::vector<float> seen;
    root.MouseDown.connect([&](int16_t button, int16_t shift, float x, float y) {
        seen = {float(button), float(shift), x, y};
    });
    root.MouseDown.raise(int16_t{1}, int16_t{1}, 400.0f, 30.0f);
    root.MouseUp.raise(int16_t{1}, int16_t{0}, 0.0f, 0.0f);
    EXPECT_EQ(seen, (std::vector<float>{1, 1, 400, 30}));
}

}  // namespace
}  // namespace zt::chart
