// Cursors on a captured graph, moved with the mouse on the chart as a person does: the grab
// rule, dragging with and without Shift, the clamp on release, the readouts in the channel
// sheet and the cursor panel, and the cursor panel's switches.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "display_fixture.h"
#include "platform/text/format_pattern.h"
#include "render/render_chart.h"

namespace zt::testing {
namespace {

// The chart reports the mouse in twips (15 per pixel here).
constexpr float kTwipsPerPixel = 15;

constexpr int16_t kLeft = 1;
constexpr int16_t kShift = 1;

class CursorTest : public ::testing::Test, public DisplayFixture {
  protected:
    chart::ChartRoot& root() { return control.chartRoot(); }
    void drag(float fromX, float fromY, float toX, float toY, int16_t shift = 0) {
        root().MouseDown.raise(kLeft, shift, fromX * kTwipsPerPixel, fromY * kTwipsPerPixel);
        root().MouseMove.raise(kLeft, shift, ((fromX + toX) / 2) * kTwipsPerPixel,
                               ((fromY + toY) / 2) * kTwipsPerPixel);
        root().MouseMove.raise(kLeft, shift, toX * kTwipsPerPixel, toY * kTwipsPerPixel);
        root().MouseUp.raise(kLeft, shift, toX * kTwipsPerPixel, toY * kTwipsPerPixel);
    }
    void timeCursorsOn() { s().chkCursor.click(); }
    void valueCursorsOn() {
        s().chkCursor.click();
        s().optCursor[1].click();
    }
    CURSORSTATE& cursors() { return info().udtCursorState; }
    // Value-cursor field: from 20 pixels to the grid's bottom.
    float yAt(double f) const { return static_cast<float>(20 + f * (chart().grid->Bottom - 20)); }
};

TEST_F(CursorTest, TimeCursorsShowReadoutsOfTheWholeGraph) {
    timeCursorsOn();
    EXPECT_EQ(cursors().intCursorState, 1);
    EXPECT_TRUE(s().optCursor[0].Enabled);
    EXPECT_TRUE(chart().cursorA->Visible);
    EXPECT_EQ(chart().cursorA->pixelX(), 320);
    EXPECT_EQ(chart().cursorB->pixelX(), 1000);
    EXPECT_TRUE(s().cmdVertA.Visible);
    EXPECT_EQ(s().cmdVertA.Left, 320 * 15 - 300);
    EXPECT_EQ(s().cmdVertB.Left, 1000 * 15);
    EXPECT_EQ(s().cmdVertA.Top, 3250);
    EXPECT_EQ(s().lblCursorTime[0].Caption, "0");
    EXPECT_EQ(s().lblCursorTime[1].Caption, "60000");
    EXPECT_EQ(s().lblCursorTime[2].Caption, "60000");

    const int iB = chart().cursorB->pointIndex();
    const chart::Series& current = chart().series(2, 0);
    double squares = 0, hi = -1e300, lo = 1e300;
    for (int i = 0; i <= iB; ++i) {
        const double v = current.values()[i];
        squares += v * v;
        hi = std::max(hi, v);
        lo = std::min(lo, v);
    }
    const auto shown = [](double v) {
        return text::formatNumber(v, "######0.00", HostLocale{}) + "A";
    };
    EXPECT_EQ(readout(2, 4), shown(current.values()[0]));
    EXPECT_EQ(readout(2, 5), shown(current.values()[iB]));
    EXPECT_EQ(readout(2, 6), shown(std::sqrt(squares / (iB + 1))));
    EXPECT_EQ(readout(2, 7), shown(hi));
    EXPECT_EQ(readout(2, 8), shown(lo));
    EXPECT_EQ(readout(1, 6), "---");  // the frequency has no effective value
    EXPECT_EQ(readout(5, 4), "OFF");  // the drive is not running at the start
    EXPECT_EQ(readout(4, 4), "---");  // channel 4 is not used
}

TEST_F(CursorTest, DraggingATimeCursorMovesItAndItsReadouts) {
    timeCursorsOn();
    drag(323, 200, 660, 200);  // grabs A 3 pixels away
    EXPECT_NEAR(cursors().sngVertCursorApos, 340.0 / 680, 1e-6);
    EXPECT_NEAR(chart().cursorA->pixelX(), 660, 1);
    const double t = *chart().timeBase->timeAt(chart().cursorA->pointIndex());
    EXPECT_EQ(s().lblCursorTime[0].Caption, std::to_string(std::lround(t)));
    EXPECT_EQ(s().lblCursorTime[2].Caption, std::to_string(60000 - std::lround(t)));
    EXPECT_EQ(s().registry.mousePointer, ui::MousePointer::Default);

    // 10 pixels or more from both grabs nothing.
    const float before = cursors().sngVertCursorApos;
    drag(650, 200, 400, 200);
    EXPECT_FLOAT_EQ(cursors().sngVertCursorApos, before);
    EXPECT_FLOAT_EQ(cursors().sngVertCursorBpos, 1.0f);

    // Released beyond the grid, B stops at its right edge.
    drag(1000, 200, 1200, 200);
    EXPECT_FLOAT_EQ(cursors().sngVertCursorBpos, 1.0f);
}

TEST_F(CursorTest, GrabTieGoesToBAndThePointerShowsTheDirection) {
    // A field 256 pixels high, so that the cursors' fractions are exact.
    control.HeightU(static_cast<float>((256 + 20 + 30) * 15 + 1800 + 255 + 3250));
    ASSERT_EQ(chart().grid->Bottom, 276);
    valueCursorsOn();
    drag(500, yAt(0), 500, 20 + 64);
    drag(500, yAt(1), 500, 20 + 80);
    root().MouseDown.raise(kLeft, 0, 500 * kTwipsPerPixel,
                           (20 + 72) * kTwipsPerPixel);  // 8 pixels from both
    EXPECT_EQ(s().registry.mousePointer, ui::MousePointer::SizeNS);
    root().MouseMove.raise(kLeft, 0, 500 * kTwipsPerPixel, (20 + 128) * kTwipsPerPixel);
    EXPECT_FLOAT_EQ(cursors().sngHorzCursorBpos, 0.5f);
    EXPECT_FLOAT_EQ(cursors().sngHorzCursorApos, 0.25f);
    root().MouseUp.raise(kLeft, 0, 500 * kTwipsPerPixel, (20 + 128) * kTwipsPerPixel);
    EXPECT_EQ(s().registry.mousePointer, ui::MousePointer::Default);
}

TEST_F(CursorTest, ShiftDragMovesBothAndTheReleaseKeepsThePartnerInside) {
    valueCursorsOn();
    drag(500, yAt(0), 500, yAt(0.2));
    drag(500, yAt(1), 500, yAt(0.5));
    root().MouseDown.raise(kLeft, kShift, 500 * kTwipsPerPixel, (yAt(0.2)) * kTwipsPerPixel);
    root().MouseMove.raise(kLeft, kShift, 500 * kTwipsPerPixel, (yAt(1)) * kTwipsPerPixel);
    EXPECT_NEAR(cursors().sngHorzCursorBpos, 1.3, 1e-5);  // not clamped while moving
    root().MouseUp.raise(kLeft, kShift, 500 * kTwipsPerPixel, (yAt(1)) * kTwipsPerPixel);
    EXPECT_NEAR(cursors().sngHorzCursorApos, 0.7, 1e-5);
    EXPECT_NEAR(cursors().sngHorzCursorBpos, 1.0, 1e-5);
    EXPECT_EQ(chart().valueCursorB->Y1, 450);
    EXPECT_FLOAT_EQ(s().cmdHorzB.Top, 3250 + (20 + 430) * 15);
}

TEST_F(CursorTest, ValueReadoutsFollowTheChannelsScale) {
    selectChannel(1);
    typeAndEnter(s().cboVertScale, "50");  // 60 / 50 rounds to 1: zero at 4
    s().updZero.clickUp();
    ASSERT_EQ(scale(1).intZeroPos, 5);
    valueCursorsOn();
    EXPECT_EQ(readout(1, 4), "250.00Hz");
    EXPECT_EQ(readout(1, 5), "-250.00Hz");
    s().updZero.clickDown();
    EXPECT_EQ(readout(1, 4), "300.00Hz");
    EXPECT_EQ(readout(5, 4), "---");
}

TEST_F(CursorTest, PositionsSurviveSwitchingOffAndBetweenKinds) {
    timeCursorsOn();
    drag(320, 200, 490, 200);
    const float a = cursors().sngVertCursorApos;
    s().optCursor[1].click();
    EXPECT_EQ(cursors().intCursorState, 2);
    EXPECT_FALSE(chart().cursorA->Visible);
    EXPECT_TRUE(chart().valueCursorA->Visible);
    EXPECT_TRUE(s().cmdHorzA.Visible);
    EXPECT_FALSE(s().cmdVertA.Visible);
    s().chkCursor.click();
    EXPECT_EQ(cursors().intCursorState, 0);
    EXPECT_FALSE(s().optCursor[0].Enabled);
    EXPECT_FALSE(chart().valueCursorA->Visible);
    for (int c = 1; c <= 8; ++c)
        for (int r = 4; r <= 8; ++r)
            EXPECT_EQ(readout(c, r), "---");
    EXPECT_EQ(s().lblCursorTime[0].Caption, "---");
    EXPECT_FALSE(s().optCursor[0].click());  // the kind is chosen only while shown
    s().chkCursor.click();
    EXPECT_EQ(cursors().intCursorState, 2);
    s().optCursor[0].click();
    EXPECT_EQ(cursors().intCursorState, 1);
    EXPECT_FLOAT_EQ(cursors().sngVertCursorApos, a);
    EXPECT_NEAR(chart().cursorA->pixelX(), 490, 1);
}

TEST_F(CursorTest, ScrollingAndRescalingMoveTheCursorsWithTheTimeWindow) {
    timeCursorsOn();
    typeAndEnter(s().cboHorzScale, "1000");
    s().hsbGraph.dragTo(10);
    EXPECT_EQ(s().lblCursorTime[0].Caption, "10000");
    EXPECT_EQ(s().lblCursorTime[1].Caption, "20000");
    EXPECT_EQ(s().lblCursorTime[2].Caption, "10000");
}

TEST_F(CursorTest, CursorControlsFollowTheRunStates) {
    EXPECT_TRUE(s().chkCursor.Enabled);
    timeCursorsOn();
    capture();  // a new run unchecks the cursors and resets the readouts
    EXPECT_EQ(s().chkCursor.value(), ui::kUnchecked);
    EXPECT_EQ(cursors().intCursorState, 0);
    EXPECT_EQ(readout(1, 4), "---");
    EXPECT_FALSE(s().cmdVertA.Visible);
    // New station information discards the graph and resets the cursors.
    timeCursorsOn();
    ASSERT_EQ(cursors().intCursorState, 1);
    SYS_INFO sys = library.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    control.SetSysInfo(1, sys, parameter);
    EXPECT_EQ(cursors().intCursorState, 0);
    EXPECT_FALSE(chart().cursorA->Visible);
    EXPECT_EQ(readout(2, 4), "---");
    // Without a graph the cursors cannot be shown.
    DisplayFixture empty(false);
    EXPECT_FALSE(empty.s().chkCursor.Enabled);
    empty.control.chartRoot().MouseDown.raise(kLeft, 0, 320 * kTwipsPerPixel, 200 * kTwipsPerPixel);
    EXPECT_EQ(empty.info().udtCursorState.intCursorState, 0);
}

TEST_F(CursorTest, ResizeLaysTheChartOutAndKeepsTheCursorsOnTheirFractions) {
    valueCursorsOn();
    control.WidthU(15600);
    control.HeightU(12505);
    EXPECT_EQ(root().Width, 1018);
    EXPECT_EQ(root().Height, 480);
    EXPECT_EQ(chart().grid->Bottom, 450);
    EXPECT_EQ(chart().grid->Right, 1018);
    EXPECT_EQ(s().tbsGraphOp.Top + s().tbsGraphOp.Height, 12505);
    EXPECT_EQ(s().cmdHorzA.Left, 15580 - 300);
    control.HeightU(9000);
    control.WidthU(5000);
    EXPECT_EQ(control.WidthU(), 7500);
    EXPECT_EQ(control.HeightU(), 9000);
    const int32_t bottom = chart().grid->Bottom;
    EXPECT_EQ(bottom, (9000 - 1800 - 255 - 3250) / 15 - 30);
    EXPECT_EQ(chart().valueCursorB->Y1, bottom);
    EXPECT_EQ(chart().edgeLineA->Y2, bottom);
    EXPECT_EQ(chart().area[1]->Bottom, bottom);
    EXPECT_LE(chart().area[5]->Bottom, bottom);
}

TEST_F(CursorTest, ColourSchemesWriteEveryElementAndOnlyModesZeroAndOne) {
    std::vector<DispatchValue> args{int32_t{1}};
    ASSERT_TRUE(dispatch(control, dispIdOf("SetGraphColor"), DispatchKind::Method, args).ok());
    EXPECT_EQ(root().BackColor, 0xFFFFFF);
    EXPECT_EQ(chart().grid->LineColor1, 0xC0C0C0);
    EXPECT_EQ(chart().cursorA->LinePen.color, 0);
    EXPECT_EQ(chart().scaleBack[3]->FillColor, 0xFFFFFF);
    EXPECT_EQ(chart().series(1, 0).LinePen.color, 0);
    EXPECT_EQ(s().sprChannel.backColor(2, kRowColor), 0xFFFFFF);
    const int redraws = root().redrawCount();
    args = {int32_t{2}};
    dispatch(control, dispIdOf("SetGraphColor"), DispatchKind::Method, args);
    EXPECT_EQ(root().BackColor, 0xFFFFFF);
    EXPECT_EQ(root().redrawCount(), redraws);
    args = {int32_t{0}};
    dispatch(control, dispIdOf("SetGraphColor"), DispatchKind::Method, args);
    EXPECT_EQ(root().BackColor, 0);
    EXPECT_EQ(chart().grid->LineColor2, 0x404000);
    EXPECT_EQ(chart().edgeLineB->LinePen.color, 0xE0E0E0);
    EXPECT_EQ(chart().series(2, 0).LinePen.color, 0xFF00FF);
    EXPECT_EQ(chart().scaleBack[6]->FillColor, 0x0000FF);
    EXPECT_EQ(s().sprChannel.backColor(7, kRowColor), 0x0080FF);
    // The next drawing takes the channel's own colour again.
    control.state().chSetting[1].lngGraphColor = 0x123456;
    capture();
    EXPECT_EQ(chart().series(1, 0).LinePen.color, 0x123456);
}

}  // namespace
}  // namespace zt::testing

namespace zt::testing {
namespace {

uint32_t rgb(uint32_t argb) {
    return argb & 0xFFFFFF;
}

TEST_F(CursorTest, PictureShowsTheHandlesAndEachScalesUnitReadably) {
    timeCursorsOn();
    drag(320, 200, 500, 200);
    const int32_t x = chart().cursorA->pixelX();
    const render::Image dark = render::renderChartImage(root(), {});
    // Handle A stands left of its line above the grid, in the cursor colour (0xE0E0E0).
    EXPECT_EQ(rgb(dark.at(x - 3, 3)), 0xE0E0E0u);
    EXPECT_EQ(rgb(dark.at(x + 3, 3)), 0u);
    const int32_t xb = chart().cursorB->pixelX();
    EXPECT_EQ(rgb(dark.at(xb + 3, 3)), 0xE0E0E0u);
    // The unit "Hz" in channel 1's cyan column: some pixels of the top-left corner are black.
    bool text = false;
    for (int y = 35; y < 50 && !text; ++y)
        for (int px = 2; px < 20 && !text; ++px)
            text = rgb(dark.at(px, y)) == 0u;
    EXPECT_TRUE(text);

    std::vector<DispatchValue> light{int32_t{1}};
    dispatch(control, dispIdOf("SetGraphColor"), DispatchKind::Method, light);
    const render::Image image = render::renderChartImage(root(), {});
    EXPECT_EQ(rgb(image.at(700, 100)), 0xFFFFFFu);
    EXPECT_EQ(rgb(image.at(x - 3, 3)), 0u);  // black handle on white
}

}  // namespace
}  // namespace zt::testing
