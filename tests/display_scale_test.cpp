// The scale panel on a captured graph, driven as a person does: the scale display option, a
// channel column clicked on the channel sheet, scales typed or picked in the boxes, the zero
// spin, the time scale, the scroll bar and the optimiser.
#include <gtest/gtest.h>

#include <algorithm>

#include "display_fixture.h"
#include "platform/text/format_pattern.h"
#include "run/run_states.h"
#include "scale/vert_scale.h"

namespace zt::testing {
namespace {

class ScaleTest : public ::testing::Test, public DisplayFixture {};

std::vector<std::string> items(const ui::ComboBox& box) {
    std::vector<std::string> out;
    for (int i = 0; i < box.ListCount(); ++i)
        out.push_back(box.List(i));
    return out;
}

TEST_F(ScaleTest, OneShowsTheFirstChannelInUseAndItsScaleListAllShowsEveryScale) {
    ASSERT_EQ(control.runState(), OnlineGraph);
    EXPECT_EQ(info().intChNumber, 0);
    EXPECT_EQ(chart().grid->Left, 320);
    s().optScale[0].click();
    EXPECT_EQ(info().intChNumber, 1);
    EXPECT_TRUE(s().cboVertScale.Enabled);
    EXPECT_TRUE(s().updZero.Enabled);
    // Full scale 120 Hz.
    EXPECT_EQ(items(s().cboVertScale), (std::vector<std::string>{"12", "6", "1.2", "0.6", "0.12"}));
    EXPECT_EQ(s().cboVertScale.text(), "12.0");
    EXPECT_EQ(s().lblCh.Caption, "CH1");
    EXPECT_EQ(s().lblUnit.Caption, "Hz");
    EXPECT_EQ(s().lblVertScale.Caption, "12.0");
    EXPECT_EQ(s().lblZeroPos.Caption, "0");
    // One scale column: plot, grid, time axis and scroll bar start at 80 pixels.
    EXPECT_EQ(chart().grid->Left, 80);
    EXPECT_EQ(chart().timeAxis->Left, 80);
    EXPECT_EQ(chart().area[1]->Left, 80);
    EXPECT_EQ(s().hsbGraph.Left, 80 * 15);
    EXPECT_TRUE(chart().vertAxis[1]->Visible);
    EXPECT_FALSE(chart().vertAxis[2]->Visible);

    s().optScale[1].click();
    EXPECT_EQ(info().intChNumber, 0);
    EXPECT_FALSE(s().cboVertScale.Enabled);
    EXPECT_EQ(chart().grid->Left, 320);
    EXPECT_EQ(s().hsbGraph.Left, 320 * 15);
    for (int c : {1, 2, 3}) {
        EXPECT_TRUE(chart().vertAxis[c]->Visible) << c;
        EXPECT_EQ(chart().vertAxis[c]->Left, (c - 1) * 80) << c;
    }
    // The digital scales share the free fourth column without overlapping.
    EXPECT_EQ(chart().vertAxis[5]->Left, 240);
    EXPECT_EQ(chart().vertAxis[6]->Left, 240);
    EXPECT_GE(chart().area[6]->Top, chart().area[5]->Bottom);
}

TEST_F(ScaleTest, ClickingAChannelColumnOrPressingRightSelectsThatChannel) {
    selectChannel(3);
    EXPECT_EQ(info().intChNumber, 3);
    EXPECT_EQ(items(s().cboVertScale), (std::vector<std::string>{"80", "40", "8", "4", "0.8"}));
    EXPECT_EQ(s().lblUnit.Caption, "V");
    s().sprChannel.pressKey(ui::kKeyRight);
    EXPECT_EQ(info().intChNumber, 4);
    EXPECT_FALSE(s().cboVertScale.Enabled);  // channel 4 is not set
    selectChannel(6);
    EXPECT_EQ(info().intChNumber, 6);
    EXPECT_FALSE(s().cboVertScale.Enabled);
    EXPECT_EQ(s().cboVertScale.ListCount(), 0);
    EXPECT_TRUE(s().updZero.Enabled);
    EXPECT_EQ(s().lblVertScale.Caption, "2.0");
    // With "All" a click selects nothing.
    s().optScale[1].click();
    s().sprChannel.clickCell(2, kRowName);
    EXPECT_EQ(info().intChNumber, 0);
}

struct EntryCase {
    const char* typed;
    double scale;
    int16_t zero;
    const char* shown;
};

class VertEntryTest : public ScaleTest, public ::testing::WithParamInterface<EntryCase> {};

// Channel 3 (DC bus, 0 to 800 V at 80 V per division): the centre 400 V stays in the middle.
TEST_P(VertEntryTest, TypedScaleKeepsTheCentreOnTheMiddleLine) {
    selectChannel(3);
    typeAndEnter(s().cboVertScale, GetParam().typed);
    EXPECT_DOUBLE_EQ(scale(3).dblVertScale, GetParam().scale);
    EXPECT_EQ(scale(3).intZeroPos, GetParam().zero);
    EXPECT_EQ(s().cboVertScale.text(), GetParam().shown);
    EXPECT_EQ(s().lblVertScale.Caption, GetParam().shown);
    EXPECT_DOUBLE_EQ(chart().vertAxis[3]->Minimum, -GetParam().zero * GetParam().scale);
}

INSTANTIATE_TEST_SUITE_P(Entries, VertEntryTest,
                         ::testing::Values(EntryCase{"100", 100, 1, "100.0"},
                                           EntryCase{"40", 40, -5, "40.0"},
                                           EntryCase{"0.04", 0.1, -3995, "0.1"},
                                           EntryCase{"200000000", 99999999.9, 5, "99999999.9"},
                                           EntryCase{"abc", 80, 0, "80.0"},
                                           EntryCase{"  12.345678901", 12.3, -28, "12.3"},
                                           EntryCase{"160", 160, 3, "160.0"}));

TEST_F(ScaleTest, PickingOrLeavingTheBoxTakesTheEntryAndTiesRoundToEven) {
    selectChannel(1);  // 0 to 120 Hz, centre 60
    s().cboVertScale.enter("24");
    s().cboVertScale.leave();
    EXPECT_EQ(scale(1).intZeroPos, 3);  // 60 / 24 = 2.5 rounds to 2
    s().cboVertScale.select(1);         // "6": the axis now runs -72 to 168, centre 48
    EXPECT_DOUBLE_EQ(scale(1).dblVertScale, 6);
    EXPECT_EQ(scale(1).intZeroPos, -3);
}

TEST_F(ScaleTest, ZeroPositionStepsStopAtTheItemsBounds) {
    selectChannel(3);  // unsigned
    s().updZero.clickDown();
    EXPECT_EQ(scale(3).intZeroPos, 0);
    for (int i = 0; i < 12; ++i)
        s().updZero.clickUp();
    EXPECT_EQ(scale(3).intZeroPos, 10);
    EXPECT_EQ(s().lblZeroPos.Caption, "10");
    EXPECT_DOUBLE_EQ(chart().vertAxis[3]->Maximum, 0);

    selectChannel(1);  // signed: below zero is allowed
    s().updZero.clickDown();
    EXPECT_EQ(scale(1).intZeroPos, -1);

    selectChannel(5);
    for (int i = 0; i < 12; ++i)
        s().updZero.clickUp();
    EXPECT_EQ(scale(5).intZeroPos, 9);
    const int32_t bandTop = chart().area[5]->Top;
    for (int i = 0; i < 12; ++i)
        s().updZero.clickDown();
    EXPECT_EQ(scale(5).intZeroPos, 0);
    EXPECT_GT(chart().area[5]->Top, bandTop);  // the band moved down with its zero line
}

TEST_F(ScaleTest, TimeScaleListEntriesLimitsAndScrolling) {
    ui::ComboBox& box = s().cboHorzScale;
    ui::HScrollBar& bar = s().hsbGraph;
    // 60,000 ms at 100 ms: upper 6000, lower 1000.
    EXPECT_EQ(items(box), (std::vector<std::string>{"6000", "3000", "1200", "1000"}));
    EXPECT_TRUE(box.Enabled);
    EXPECT_FALSE(bar.Enabled);  // exactly ten divisions

    typeAndEnter(box, "1000");
    EXPECT_FLOAT_EQ(info().udtHorzScale.sngHorzScale, 1000);
    EXPECT_TRUE(bar.Enabled);
    EXPECT_EQ(bar.Max(), 50);
    bar.dragTo(20);
    EXPECT_EQ(info().udtHorzScale.lngHScrollPos, 20);
    EXPECT_DOUBLE_EQ(chart().timeAxis->Minimum, 20000);
    EXPECT_DOUBLE_EQ(chart().timeAxis->Maximum, 30000);

    box.select(1);  // 3000: the range shrinks to 10 and pulls the position back
    EXPECT_EQ(bar.Max(), 10);
    EXPECT_EQ(info().udtHorzScale.lngHScrollPos, 10);
    EXPECT_DOUBLE_EQ(chart().timeAxis->Minimum, 30000);
    EXPECT_DOUBLE_EQ(chart().timeAxis->Maximum, 60000);

    for (const auto& [typed, expected] :
         std::vector<std::pair<std::string, float>>{{"abc", 1000},
                                                    {"1e3", 1000},
                                                    {"99999", 6000},
                                                    {"5", 1000},
                                                    {" 2500.4 ", 2500},
                                                    {"6000", 6000}}) {
        typeAndEnter(box, typed);
        EXPECT_FLOAT_EQ(info().udtHorzScale.sngHorzScale, expected) << typed;
    }
    EXPECT_EQ(box.text(), "6000");
    EXPECT_FALSE(bar.Enabled);
}

struct FitCase {
    double min, max;
    double scale;
    int16_t zero;
};

class OptimiseRuleTest : public ::testing::TestWithParam<FitCase> {};

TEST_P(OptimiseRuleTest, FitsTheCurveAroundTheMiddle) {
    const VERTSCALE v = optimisedVertScale(GetParam().min, GetParam().max);
    EXPECT_DOUBLE_EQ(v.dblVertScale, GetParam().scale);
    EXPECT_EQ(v.intZeroPos, GetParam().zero);
}

INSTANTIATE_TEST_SUITE_P(Cases, OptimiseRuleTest,
                         ::testing::Values(FitCase{0, 8, 1.1, 1}, FitCase{50, 50, 0.1, -495},
                                           FitCase{0, 0, 0.1, 5}, FitCase{-80, 80, 20.1, 5},
                                           FitCase{1e7, 1e7, 334, -29935}));

TEST_F(ScaleTest, OptimizeFitsEveryAnalogCurveIntoItsAxis) {
    s().optScale[0].click();
    s().cmdOptVert.click();
    for (int c = 1; c <= 3; ++c) {
        const chart::Series& series = chart().series(c, 0);
        const auto [lo, hi] =
            std::minmax_element(series.values(), series.values() + series.pointCount());
        const chart::Axis& axis = *chart().vertAxis[c];
        EXPECT_LE(axis.Minimum, *lo) << c;
        EXPECT_GE(axis.Maximum, *hi) << c;
        EXPECT_LE(axis.Maximum - axis.Minimum, (*hi - *lo) * 10 / 8 + 2.0) << c;
    }
    EXPECT_EQ(s().cboVertScale.text(),
              text::formatNumber(scale(1).dblVertScale, "########0.0", HostLocale{}));
    EXPECT_DOUBLE_EQ(scale(4).dblVertScale, 0.1);  // an empty channel
    EXPECT_EQ(scale(4).intZeroPos, 5);
}

TEST_F(ScaleTest, StartResetsTheScalesOfTheNewGraph) {
    selectChannel(1);
    typeAndEnter(s().cboVertScale, "50");
    typeAndEnter(s().cboHorzScale, "1000");
    s().hsbGraph.dragTo(5);
    capture();
    EXPECT_EQ(info().intChNumber, 0);
    EXPECT_TRUE(s().optScale[1].value());
    EXPECT_DOUBLE_EQ(scale(1).dblVertScale, 12);
    EXPECT_FLOAT_EQ(info().udtHorzScale.sngHorzScale, 6000);
    EXPECT_EQ(info().udtHorzScale.lngHScrollPos, 0);
    EXPECT_EQ(s().hsbGraph.value(), 0);
}

}  // namespace
}  // namespace zt::testing

namespace zt::testing {
namespace {

TEST_F(ScaleTest, ShowRedrawsTheScaleLabelsAndFarZeroPositionsKeepTheBandsOnTheChart) {
    selectChannel(2);
    scale(2).dblVertScale = 25;  // as a load leaves it
    scale(6).intZeroPos = 500;
    scale(5).intZeroPos = -40;
    control.Show();
    EXPECT_EQ(s().lblVertScale.Caption, "25.0");
    EXPECT_DOUBLE_EQ(chart().vertAxis[2]->Maximum, 250);
    EXPECT_GE(chart().area[6]->Top, 0);
    EXPECT_LE(chart().area[5]->Bottom, chart().grid->Bottom);
    EXPECT_LT(chart().area[5]->Top, chart().area[5]->Bottom);
}

}  // namespace
}  // namespace zt::testing
