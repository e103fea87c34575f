#include <gtest/gtest.h>

#include <functional>
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

// "code text" of the error a call raises, or "" when it raises none.
std::string errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const AutomationError& e) {
        return std::to_string(e.code()) + " " + e.what();
    }
    return "";
}

struct TabLog {
    TabStrip strip{"tbsGraphOp"};
    std::vector<int> clicks;
    TabLog() {
        for (const char* c : {"Scale", "Cursor", "History"})
            strip.Tabs.Add(c);
        strip.Click.connect([this] { clicks.push_back(strip.SelectedIndex()); });
    }
};

TEST(TabStripTest, CodeClicksOnChangeOnlyPersonClicksEveryTime) {
    TabLog t;
    EXPECT_EQ(t.strip.SelectedIndex(), 1);  // the first tab, without a click
    t.strip.select(2);
    t.strip.select(2);
    EXPECT_TRUE(t.strip.click(2));
    EXPECT_TRUE(t.strip.click(3));
    EXPECT_FALSE(t.strip.click(4));
    EXPECT_FALSE(t.strip.click(0));
    EXPECT_EQ(t.clicks, (std::vector<int>{2, 2, 3}));
}

TEST(TabStripTest, BadTabIndexIsIndexOutOfBounds) {
    TabLog t;
    for (int bad : {0, 4, -1})
        EXPECT_EQ(errorOf([&] { t.strip.select(bad); }), "35600 Index out of bounds") << bad;
    EXPECT_THROW(t.strip.Tabs(4), AutomationError);
    EXPECT_THROW(t.strip.Tabs.Remove(0), AutomationError);
    EXPECT_EQ(t.strip.SelectedIndex(), 1);
}

TEST(TabStripTest, SelectionFollowsInsertAndRemoveWithoutClick) {
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

TEST(ControlArrayTest, MissingElementIsRefusedWithItsIndex) {
    ControlArray<CheckBox> boxes("chkOverWrite", 5);
    EXPECT_EQ(boxes[4].Index(), 4);
    EXPECT_EQ(errorOf([&] { boxes[5]; }), "340 Control array element '5' doesn't exist");
    EXPECT_EQ(errorOf([&] { boxes[-1]; }), "340 Control array element '-1' doesn't exist");
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
    EXPECT_FALSE(labels.contains(1));
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
    CommandButton twin("CmdStart");
    EXPECT_THROW(surface.add(twin), AutomationError);  // same name and index twice
}

TEST_F(SurfaceFixture, MissingControlAndWrongKindAreClearErrors) {
    EXPECT_EQ(errorOf([&] { surface.get<CommandButton>("cmdStop"); }),
              "424 Object required: no control cmdStop");
    EXPECT_EQ(errorOf([&] { surface.get<CheckBox>("optScale", 1); }),
              "13 Type mismatch: optScale(1) is a OptionButton, not a CheckBox");
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

}  // namespace
}  // namespace zt::ui
