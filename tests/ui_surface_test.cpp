#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/ui/check_box.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/control_array.h"
#include "platform/ui/control_error.h"
#include "platform/ui/option_button.h"
#include "platform/ui/static_controls.h"
#include "platform/ui/surface.h"
#include "platform/ui/tab_strip.h"

namespace zt::ui {
namespace {

struct TabLog {
    TabStrip strip{"tbsGraphOp"};
    std::vector<int> clicks;
    TabLog() {
        for (const char* c : {"Scale", "Cursor", "History"})
            strip.Tabs.Add(c);
        strip.Click.connect([this] { clicks.push_back(strip.SelectedIndex()); });
    }
};

TEST(TabStripTest, FirstTabIsSelectedWithoutClick) {
    TabLog t;
    EXPECT_EQ(t.strip.SelectedIndex(), 1);
    EXPECT_EQ(t.strip.Tabs.Count(), 3);
    EXPECT_EQ(t.strip.Tabs(2).Caption, "Cursor");
    EXPECT_TRUE(t.clicks.empty());
}

TEST(TabStripTest, SelectInCodeClicksOnChangeOnly) {
    TabLog t;
    t.strip.select(2);
    t.strip.select(2);
    EXPECT_EQ(t.clicks, (std::vector<int>{2}));
}

TEST(TabStripTest, PersonClicksEveryTimeEvenOnTheSelectedTab) {
    TabLog t;
    EXPECT_TRUE(t.strip.click(2));
    EXPECT_TRUE(t.strip.click(2));
    EXPECT_FALSE(t.strip.click(4));
    EXPECT_FALSE(t.strip.click(0));
    EXPECT_EQ(t.clicks, (std::vector<int>{2, 2}));
}

TEST(TabStripTest, BadTabIndexIsIndexOutOfBounds) {
    TabLog t;
    for (int bad : {0, 4, -1}) {
        try {
            t.strip.select(bad);
            ADD_FAILURE() << bad;
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrIndexOutOfBounds);
            EXPECT_STREQ(e.what(), "Index out of bounds");
        }
    }
    EXPECT_THROW(t.strip.Tabs(4), AutomationError);
    EXPECT_THROW(t.strip.Tabs.Remove(0), AutomationError);
    EXPECT_THROW(t.strip.Tabs.Add("x", 5), AutomationError);
    EXPECT_EQ(t.strip.SelectedIndex(), 1);
}

TEST(TabStripTest, SelectionFollowsInsertAndRemove) {
    TabLog t;
    t.strip.select(2);
    t.clicks.clear();
    t.strip.Tabs.Add("First", 1);
    EXPECT_EQ(t.strip.SelectedIndex(), 3);
    t.strip.Tabs.Remove(3);
    EXPECT_EQ(t.strip.SelectedIndex(), 1);
    t.strip.Tabs.Clear();
    EXPECT_EQ(t.strip.SelectedIndex(), 0);
    EXPECT_TRUE(t.clicks.empty());
}

TEST(TabStripTest, MouseMovePassesButtonShiftAndTwips) {
    TabStrip strip("tabSpread");
    std::vector<float> seen;
    strip.MouseMove.connect([&](int16_t b, int16_t s, float x, float y) {
        seen = {float(b), float(s), x, y};
    });
    EXPECT_TRUE(strip.moveMouse(1, 2, 150.0f, 45.0f));
    EXPECT_EQ(seen, (std::vector<float>{1, 2, 150, 45}));
}

TEST(ControlArrayTest, MissingElementIsRefusedWithItsIndex) {
    ControlArray<CheckBox> boxes("chkOverWrite", 5);
    EXPECT_EQ(boxes.size(), 5);
    EXPECT_EQ(boxes[4].Index(), 4);
    EXPECT_EQ(boxes[4].Name(), "chkOverWrite");
    for (int bad : {-1, 5, 1 << 30}) {
        try {
            boxes[bad];
            ADD_FAILURE() << bad;
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrNoArrayElement);
            EXPECT_EQ(std::string(e.what()),
                      "Control array element '" + std::to_string(bad) + "' doesn't exist");
        }
    }
}

TEST(ControlArrayTest, LoadAddsElementsInIndexOrderAndRefusesDuplicates) {
    ControlArray<Label> labels("lblCursor", 0);
    labels.load(2);
    labels.load(0);
    EXPECT_THROW(labels.load(2), AutomationError);
    std::vector<int> order;
    for (Label& l : labels)
        order.push_back(l.Index());
    EXPECT_EQ(order, (std::vector<int>{0, 2}));
    EXPECT_EQ(labels.LBound(), 0);
    EXPECT_EQ(labels.UBound(), 2);
    EXPECT_FALSE(labels.contains(1));
}

TEST(ControlArrayTest, HandlersGetTheElementIndexByCapture) {
    ControlArray<CommandButton> buttons("cmdVert", 2);
    std::vector<int> clicked;
    for (CommandButton& b : buttons)
        b.Click.connect([&, i = b.Index()] { clicked.push_back(i); });
    buttons[1].click();
    buttons[0].click();
    EXPECT_EQ(clicked, (std::vector<int>{1, 0}));
}

struct SurfaceFixture : ::testing::Test {
    CommandButton cmdStart{"cmdStart"};
    ComboBox cboVertScale{"cboVertScale"};
    ControlArray<OptionButton> optScale{"optScale", 2};
    Label lblUnit{"lblUnit"};
    Surface surface;
    void SetUp() override {
        cmdStart.TabIndex = 4;
        cboVertScale.TabIndex = 14;
        optScale[0].TabIndex = 12;
        optScale[1].TabIndex = 13;
        lblUnit.TabIndex = 4;
        surface.add(cmdStart);
        surface.add(cboVertScale);
        surface.add(optScale);
        surface.add(lblUnit);
    }
};

TEST_F(SurfaceFixture, FindsControlsByNameWithoutCaseAndByIndex) {
    EXPECT_EQ(surface.find("cmdStart"), &cmdStart);
    EXPECT_EQ(surface.find("CMDSTART"), &cmdStart);
    EXPECT_EQ(surface.find("optScale", 1), &optScale[1]);
    EXPECT_EQ(surface.find("optScale"), nullptr);
    EXPECT_EQ(surface.find("cmdStart", 0), nullptr);
    EXPECT_EQ(surface.find(""), nullptr);
    EXPECT_EQ(&surface.get<ComboBox>("cboVertScale"), &cboVertScale);
}

TEST_F(SurfaceFixture, DrivesTheControlsAsAPersonWould) {
    int clicks = 0;
    optScale[0].Click.connect([&] { ++clicks; });
    EXPECT_TRUE(surface.get<OptionButton>("optScale", 0).click());
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(optScale.group().selectedIndex(), 0);
}

TEST_F(SurfaceFixture, MissingControlAndWrongKindAreClearErrors) {
    try {
        surface.get<CommandButton>("cmdStop");
        ADD_FAILURE();
    } catch (const AutomationError& e) {
        EXPECT_EQ(e.code(), kErrObjectRequired);
        EXPECT_STREQ(e.what(), "Object required: no control cmdStop");
    }
    try {
        surface.get<CheckBox>("optScale", 1);
        ADD_FAILURE();
    } catch (const AutomationError& e) {
        EXPECT_EQ(e.code(), kErrTypeMismatch);
        EXPECT_STREQ(e.what(), "Type mismatch: optScale(1) is a OptionButton, not a CheckBox");
    }
}

TEST_F(SurfaceFixture, AddingTheSameNameAndIndexTwiceIsRefused) {
    CommandButton twin("CmdStart");
    EXPECT_THROW(surface.add(twin), AutomationError);
    EXPECT_EQ(surface.controls().size(), 5u);
}

TEST_F(SurfaceFixture, ListsControlsInTabOrderKeepingTheOrderOfAddingForTies) {
    std::vector<std::string> names;
    for (const ControlBase* c : surface.inTabOrder()) {
        names.push_back(displayName(*c) + ":" + std::string(kindOf(*c)));
    }
    EXPECT_EQ(names, (std::vector<std::string>{
                         "cmdStart:CommandButton", "lblUnit:Label", "optScale(0):OptionButton",
                         "optScale(1):OptionButton", "cboVertScale:ComboBox"}));
}

TEST_F(SurfaceFixture, MousePointerStartsAtTheDefaultShape) {
    EXPECT_EQ(surface.mousePointer, MousePointer::Default);
    surface.mousePointer = MousePointer::Hourglass;
    EXPECT_EQ(static_cast<int>(surface.mousePointer), 11);
}

}  // namespace
}  // namespace zt::ui
