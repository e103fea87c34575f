#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/ui/control_error.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/up_down.h"

namespace zt::ui {
namespace {

struct ScrollLog {
    HScrollBar bar{"hsbGraph"};
    std::vector<std::string> log;
    ScrollLog(int min, int max, int value) {
        bar.setMin(min);
        bar.setMax(max);
        bar.setValue(value);
        bar.SmallChange = 1;
        bar.LargeChange = 5;
        bar.Change.connect([this] { log.push_back("C" + std::to_string(bar.value())); });
        bar.Scroll.connect([this] { log.push_back("S" + std::to_string(bar.value())); });
    }
};

struct ScrollCase {
    const char* name;
    int min, max, start;
    char action;              // 'r'/'l' one line right/left, 'R'/'L' one page, 'd' drag
    std::array<int, 4> drag;  // positions the thumb is dragged through; repeats raise nothing
    int end;
    std::vector<std::string> log;
};

class ScrollBarUserTest : public ::testing::TestWithParam<ScrollCase> {};

TEST_P(ScrollBarUserTest, MovesClampedAndRaisesInOrder) {
    const ScrollCase& c = GetParam();
    ScrollLog s(c.min, c.max, c.start);
    HScrollBar& b = s.bar;
    EXPECT_TRUE(c.action == 'r'   ? b.lineRight()
                : c.action == 'l' ? b.lineLeft()
                : c.action == 'R' ? b.pageRight()
                : c.action == 'L' ? b.pageLeft()
                                  : b.drag({c.drag[0], c.drag[1], c.drag[2], c.drag[3]}));
    EXPECT_EQ(s.bar.value(), c.end);
    EXPECT_EQ(s.log, c.log);
}

INSTANTIATE_TEST_SUITE_P(
    Actions, ScrollBarUserTest,
    ::testing::Values(
        ScrollCase{"LineRight", 0, 20, 3, 'r', {}, 4, {"C4"}},
        ScrollCase{"LineLeftAtMin", 0, 20, 0, 'l', {}, 0, {}},
        ScrollCase{"PageRightStopsAtMax", 0, 20, 18, 'R', {}, 20, {"C20"}},
        ScrollCase{"PageLeftStopsAtMin", 0, 20, 2, 'L', {}, 0, {"C0"}},
        ScrollCase{"ReversedRangeRightGoesTowardMax", 10, 0, 5, 'r', {}, 4, {"C4"}},
        ScrollCase{"DragScrollsThenChangesOnce",
                   0,
                   20,
                   0,
                   'd',
                   {3, 3, 7, 99},
                   20,
                   {"S3", "S7", "S20", "C20"}},
        ScrollCase{"DragBackToStartRaisesNoChange", 0, 20, 5, 'd', {8, 5, 5, 5}, 5, {"S8", "S5"}},
        ScrollCase{"DragBelowMinClamps", 0, 20, 5, 'd', {-40, -40, -40, -40}, 0, {"S0", "C0"}}),
    [](const auto& p) { return std::string(p.param.name); });

TEST(ScrollBarTest, CodeChangeRaisesChangeOnlyAndRefusesOutOfRange) {
    ScrollLog s(0, 10, 0);
    s.bar.setValue(10);
    s.bar.setValue(10);
    EXPECT_THROW(s.bar.setValue(11), AutomationError);
    EXPECT_THROW(s.bar.setValue(-1), AutomationError);
    s.bar.setMax(8);  // shrinking the range pulls the value back
    EXPECT_EQ(s.log, (std::vector<std::string>{"C10", "C8"}));
    EXPECT_THROW(s.bar.setMax(40000), AutomationError);
}

TEST(ScrollBarTest, StepsBelowOneCountAsOneAndHugeStepsClamp) {
    ScrollLog s(-32768, 32767, 0);
    s.bar.SmallChange = 0;
    s.bar.LargeChange = 2147483647;
    s.bar.lineRight();
    s.bar.pageRight();
    EXPECT_EQ(s.log, (std::vector<std::string>{"C1", "C32767"}));
}

struct SpinCase {
    const char* name;
    int min, max, start, increment;
    bool wrap;
    bool up;
    int end;
    std::vector<std::string> log;
};

class UpDownClickTest : public ::testing::TestWithParam<SpinCase> {};

TEST_P(UpDownClickTest, MovesWithinBoundsAndReportsTheClick) {
    const SpinCase& c = GetParam();
    UpDown u("updZero");
    u.setMin(c.min);
    u.setMax(c.max);
    u.setValue(c.start);
    u.Increment = c.increment;
    u.Wrap = c.wrap;
    std::vector<std::string> log;
    u.Change.connect([&] { log.push_back("C" + std::to_string(u.value())); });
    u.UpClick.connect([&] { log.push_back("Up"); });
    u.DownClick.connect([&] { log.push_back("Down"); });
    EXPECT_TRUE(c.up ? u.clickUp() : u.clickDown());
    EXPECT_EQ(u.value(), c.end);
    EXPECT_EQ(log, c.log);
}

INSTANTIATE_TEST_SUITE_P(
    Clicks, UpDownClickTest,
    ::testing::Values(
        SpinCase{"Up", 0, 10, 4, 1, false, true, 5, {"C5", "Up"}},
        SpinCase{"Down", 0, 10, 4, 1, false, false, 3, {"C3", "Down"}},
        SpinCase{"UpAtMaxStays", 0, 10, 10, 1, false, true, 10, {"Up"}},
        SpinCase{"UpPastMaxStopsAtMax", 0, 10, 9, 3, false, true, 10, {"C10", "Up"}},
        SpinCase{"UpAtMaxWraps", 0, 10, 10, 1, true, true, 0, {"C0", "Up"}},
        SpinCase{"DownAtMinWraps", 0, 10, 0, 1, true, false, 10, {"C10", "Down"}},
        SpinCase{"ReversedRangeUpGoesTowardMax", 10, 0, 5, 1, false, true, 4, {"C4", "Up"}},
        SpinCase{"NegativeIncrementTakesItsSize", 0, 10, 5, -2, false, true, 7, {"C7", "Up"}},
        SpinCase{"ExtremeRangeDoesNotOverflow",
                 INT32_MIN,
                 INT32_MAX,
                 INT32_MAX,
                 INT32_MAX,
                 false,
                 true,
                 INT32_MAX,
                 {"Up"}}),
    [](const auto& p) { return std::string(p.param.name); });

TEST(UpDownTest, CodeValueRaisesChangeAndOutOfRangeIsRefused) {
    UpDown u("updZero");
    int changes = 0;
    u.Change.connect([&] { ++changes; });
    u.setValue(7);
    u.setValue(7);
    EXPECT_THROW(u.setValue(11), AutomationError);
    EXPECT_THROW(u.setValue(-1), AutomationError);
    u.setMax(5);
    EXPECT_EQ(u.value(), 5);
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace zt::ui
