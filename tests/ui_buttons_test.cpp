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
#include "platform/ui/scroll_bar.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"
#include "platform/ui/up_down.h"

namespace zt::ui {
namespace {

// A person's action on a control that counts the events it raises: returns the action's
// result; `events` counts what reached the handlers.
struct UserActionCase {
    const char* name;
    std::function<bool(bool visible, bool enabled, int& events)> act;
};

template <typename C>
void place(C& c, bool visible, bool enabled) {
    c.Visible = visible;
    c.Enabled = enabled;
}

const std::vector<UserActionCase>& userActions() {
    static const std::vector<UserActionCase> cases = {
        {"CommandButtonClick",
         [](bool v, bool e, int& n) {
             CommandButton b("cmdStart");
             place(b, v, e);
             b.Click.connect([&] { ++n; });
             return b.click();
         }},
        {"OptionButtonClick",
         [](bool v, bool e, int& n) {
             OptionButton b("optScale", 0);
             place(b, v, e);
             b.Click.connect([&] { ++n; });
             bool r = b.click();
             if (!r && b.value()) ++n;  // a refused click must not select either
             return r;
         }},
        {"CheckBoxClick",
         [](bool v, bool e, int& n) {
             CheckBox b("chkCursor");
             place(b, v, e);
             b.Click.connect([&] { ++n; });
             bool r = b.click();
             if (!r && b.value() != 0) ++n;
             return r;
         }},
        {"ComboBoxSelect",
         [](bool v, bool e, int& n) {
             ComboBox c("cboHorzScale");
             c.AddItem("100");
             place(c, v, e);
             c.Click.connect([&] { ++n; });
             c.Change.connect([&] { ++n; });
             return c.select(0);
         }},
        {"ComboBoxType",
         [](bool v, bool e, int& n) {
             ComboBox c("cboVertScale");
             place(c, v, e);
             c.Change.connect([&] { ++n; });
             c.KeyPress.connect([&](int&) { ++n; });
             bool r = c.type("5");
             if (!r && !c.text().empty()) ++n;
             return r;
         }},
        {"TextBoxType",
         [](bool v, bool e, int& n) {
             TextBox t("txtComment");
             place(t, v, e);
             t.Change.connect([&] { ++n; });
             t.KeyPress.connect([&](int&) { ++n; });
             bool r = t.type("a");
             if (!r && !t.text().empty()) ++n;
             return r;
         }},
        {"ScrollBarLineRight",
         [](bool v, bool e, int& n) {
             HScrollBar s("hsbGraph");
             place(s, v, e);
             s.Change.connect([&] { ++n; });
             bool r = s.lineRight();
             if (!r && s.value() != 0) ++n;
             return r;
         }},
        {"ScrollBarDrag",
         [](bool v, bool e, int& n) {
             HScrollBar s("hsbGraph");
             place(s, v, e);
             s.Change.connect([&] { ++n; });
             s.Scroll.connect([&] { ++n; });
             return s.dragTo(5);
         }},
        {"UpDownClickUp",
         [](bool v, bool e, int& n) {
             UpDown u("updZero");
             place(u, v, e);
             u.UpClick.connect([&] { ++n; });
             u.Change.connect([&] { ++n; });
             return u.clickUp();
         }},
        {"TabStripClick",
         [](bool v, bool e, int& n) {
             TabStrip t("tbsGraphOp");
             t.Tabs.Add("Scale");
             t.Tabs.Add("Cursor");
             place(t, v, e);
             t.Click.connect([&] { ++n; });
             bool r = t.click(2);
             if (!r && t.SelectedIndex() != 1) ++n;
             return r;
         }},
        {"TabStripMouseMove",
         [](bool v, bool e, int& n) {
             TabStrip t("tabSpread");
             place(t, v, e);
             t.MouseMove.connect([&](int16_t, int16_t, float, float) { ++n; });
             return t.moveMouse(0, 0, 10, 10);
         }},
    };
    return cases;
}

class UserActionTest : public ::testing::TestWithParam<UserActionCase> {};

TEST_P(UserActionTest, UsableControlTakesTheActionAndRaisesItsEvents) {
    int events = 0;
    EXPECT_TRUE(GetParam().act(true, true, events));
    EXPECT_GT(events, 0);
}

TEST_P(UserActionTest, DisabledControlRefusesAndRaisesNothing) {
    int events = 0;
    EXPECT_FALSE(GetParam().act(true, false, events));
    EXPECT_EQ(events, 0);
}

TEST_P(UserActionTest, HiddenControlRefusesAndRaisesNothing) {
    int events = 0;
    EXPECT_FALSE(GetParam().act(false, true, events));
    EXPECT_EQ(events, 0);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, UserActionTest, ::testing::ValuesIn(userActions()),
                         [](const auto& p) { return std::string(p.param.name); });

TEST(CommandButtonTest, ValueTrueInCodeClicksEvenWhenDisabled) {
    CommandButton b("cmdStop");
    b.Enabled = false;
    int clicks = 0;
    b.Click.connect([&] { ++clicks; });
    b.setValue(false);
    EXPECT_EQ(clicks, 0);
    b.setValue(true);
    EXPECT_EQ(clicks, 1);
}

struct OptionFixture : ::testing::Test {
    ControlArray<OptionButton> opt{"optHistory", 3};
    std::vector<int> clicks;  // index of each Click raised, in order
    void SetUp() override {
        for (OptionButton& b : opt)
            b.Click.connect([this, i = b.Index()] { clicks.push_back(i); });
    }
    std::vector<bool> values() const {
        std::vector<bool> v;
        for (const OptionButton& b : opt)
            v.push_back(b.value());
        return v;
    }
};

TEST_F(OptionFixture, SelectingInCodeClearsTheOthersAndClicksOnlyTheNewOne) {
    opt[0].setValue(true);
    opt[2].setValue(true);
    EXPECT_EQ(values(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(clicks, (std::vector<int>{0, 2}));
    EXPECT_EQ(opt.group().selectedIndex(), 2);
}

TEST_F(OptionFixture, OthersAreClearedBeforeTheClickHandlerRuns) {
    opt[1].setValue(true);
    bool otherStillSet = true;
    opt[2].Click.connect([&] { otherStillSet = opt[1].value(); });
    opt[2].setValue(true);
    EXPECT_FALSE(otherStillSet);
}

TEST_F(OptionFixture, CodeRaisesNothingForNoChangeOrForFalse) {
    opt[1].setValue(true);
    clicks.clear();
    opt[1].setValue(true);
    opt[1].setValue(false);
    EXPECT_TRUE(clicks.empty());
    EXPECT_EQ(opt.group().selectedIndex(), -1);
}

TEST_F(OptionFixture, PersonClicksEveryTimeEvenOnTheSelectedButton) {
    EXPECT_TRUE(opt[1].click());
    EXPECT_TRUE(opt[1].click());
    EXPECT_TRUE(opt[0].click());
    EXPECT_EQ(clicks, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(values(), (std::vector<bool>{true, false, false}));
}

TEST_F(OptionFixture, DisabledButtonStillTakesAValueFromCode) {
    for (OptionButton& b : opt)
        b.Enabled = false;
    EXPECT_FALSE(opt[2].click());
    opt[2].setValue(true);
    EXPECT_EQ(clicks, (std::vector<int>{2}));
}

TEST(OptionGroupTest, SeparateArraysDoNotExcludeEachOther) {
    ControlArray<OptionButton> scale("optScale", 2);
    ControlArray<OptionButton> cursor("optCursor", 2);
    scale[1].setValue(true);
    cursor[0].setValue(true);
    EXPECT_TRUE(scale[1].value());
    EXPECT_TRUE(cursor[0].value());
}

TEST(OptionGroupTest, GroupSurvivesAMemberLeavingAndMembersSurviveTheGroup) {
    auto group = std::make_unique<OptionGroup>();
    OptionButton a("optA", -1, *group);
    {
        OptionButton b("optB", -1, *group);
        b.setValue(true);
    }
    EXPECT_EQ(group->members().size(), 1u);
    a.setValue(true);
    group.reset();
    EXPECT_EQ(a.group(), nullptr);
    a.setValue(false);
    EXPECT_TRUE(a.click());
    EXPECT_TRUE(a.value());
}

TEST(CheckBoxTest, OnThenOffRaisesTwoClicks) {
    CheckBox c("chkOverWrite", 0);
    std::vector<int> seen;
    c.Click.connect([&] { seen.push_back(c.value()); });
    c.setValue(1);
    c.setValue(1);
    c.setValue(0);
    EXPECT_EQ(seen, (std::vector<int>{1, 0}));
}

TEST(CheckBoxTest, PersonClickTogglesAndGrayedBecomesChecked) {
    CheckBox c("chkCursor");
    std::vector<int> seen;
    c.Click.connect([&] { seen.push_back(c.value()); });
    c.click();
    c.click();
    c.setValue(kGrayed);
    c.click();
    EXPECT_EQ(seen, (std::vector<int>{1, 0, 2, 1}));
}

TEST(CheckBoxTest, OutOfRangeValueIsInvalidPropertyValue) {
    CheckBox c("chkCursor");
    for (int bad : {-1, 3, 255}) {
        try {
            c.setValue(bad);
            ADD_FAILURE() << bad;
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrInvalidPropertyValue);
            EXPECT_STREQ(e.what(), "Invalid property value");
        }
    }
    EXPECT_EQ(c.value(), 0);
}

}  // namespace
}  // namespace zt::ui
