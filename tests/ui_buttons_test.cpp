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

// A person's action on a control that counts the events it raises, and counts one more if a
// refused action changed the control's value anyway. Returns the action's result.
struct UserActionCase {
    const char* name;
    std::function<bool(bool visible, bool enabled, int& events)> act;
};

template <typename C>
C& place(C& c, bool visible, bool enabled) {
    c.Visible = visible;
    c.Enabled = enabled;
    return c;
}

const std::vector<UserActionCase>& userActions() {
    static const std::vector<UserActionCase> cases = {
        {"CommandButtonClick",
         [](bool v, bool e, int& n) {
             CommandButton b("cmdStart");
             place(b, v, e).Click.connect([&] { ++n; });
             return b.click();
         }},
        {"OptionButtonClick",
         [](bool v, bool e, int& n) {
             OptionButton b("optScale", 0);
             place(b, v, e).Click.connect([&] { ++n; });
             const bool r = b.click();
             n += !r && b.value();
             return r;
         }},
        {"CheckBoxClick",
         [](bool v, bool e, int& n) {
             CheckBox b("chkCursor");
             place(b, v, e).Click.connect([&] { ++n; });
             const bool r = b.click();
             n += !r && b.value() != 0;
             return r;
         }},
        {"ComboBoxSelectAndType",
         [](bool v, bool e, int& n) {
             ComboBox c("cboHorzScale");
             c.AddItem("100");
             place(c, v, e).Click.connect([&] { ++n; });
             c.Change.connect([&] { ++n; });
             const bool picked = c.select(0);
             const bool r = c.type("5") && picked;
             n += !r && !c.text().empty();
             return r;
         }},
        {"TextBoxType",
         [](bool v, bool e, int& n) {
             TextBox t("txtComment");
             place(t, v, e).KeyPress.connect([&](int&) { ++n; });
             const bool r = t.type("a");
             n += !r && !t.text().empty();
             return r;
         }},
        {"ScrollBarLineAndDrag",
         [](bool v, bool e, int& n) {
             HScrollBar s("hsbGraph");
             place(s, v, e).Change.connect([&] { ++n; });
             const bool stepped = s.lineRight();
             const bool r = s.dragTo(5) && stepped;
             n += !r && s.value() != 0;
             return r;
         }},
        {"UpDownClickUp",
         [](bool v, bool e, int& n) {
             UpDown u("updZero");
             place(u, v, e).UpClick.connect([&] { ++n; });
             return u.clickUp();
         }},
        {"TabStripClickAndMouseMove",
         [](bool v, bool e, int& n) {
             TabStrip t("tbsGraphOp");
             t.Tabs.Add("Scale");
             t.Tabs.Add("Cursor");
             place(t, v, e).Click.connect([&] { ++n; });
             t.MouseMove.connect([&](int16_t, int16_t, float, float) { ++n; });
             const bool clicked = t.click(2);
             const bool r = t.moveMouse(0, 0, 10, 10) && clicked;
             n += !r && t.SelectedIndex() != 1;
             return r;
         }},
    };
    return cases;
}

class UserActionTest : public ::testing::TestWithParam<UserActionCase> {};

TEST_P(UserActionTest, OnlyAVisibleEnabledControlTakesTheActionAndRaisesEvents) {
    int events = 0;
    EXPECT_TRUE(GetParam().act(true, true, events));
    EXPECT_GT(events, 0);
    for (const bool visible : {false, true}) {
        events = 0;
        EXPECT_FALSE(GetParam().act(visible, !visible, events)) << "visible " << visible;
        EXPECT_EQ(events, 0) << "visible " << visible;
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, UserActionTest, ::testing::ValuesIn(userActions()),
                         [](const auto& p) { return std::string(p.param.name); });

TEST(CommandButtonTest, ValueTrueInCodeClicksEvenWhenDisabled) {
    CommandButton b("cmdStop");
    b.Enabled = false;
    int clicks = 0;
    b.Click.connect([&] { ++clicks; });
    b.setValue(false);
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

TEST_F(OptionFixture, CodeSelectsOneClearingTheOthersFirstAndClicksOnlyOnChange) {
    opt[0].setValue(true);
    bool otherStillSet = true;
    opt[2].Click.connect([&] {  // replaces the fixture's handler
        otherStillSet = opt[0].value();
        clicks.push_back(2);
    });
    opt[2].setValue(true);
    opt[2].setValue(true);
    EXPECT_FALSE(otherStillSet);
    EXPECT_EQ(values(), (std::vector<bool>{false, false, true}));
    opt[2].setValue(false);
    EXPECT_EQ(clicks, (std::vector<int>{0, 2}));
    EXPECT_EQ(opt.group().selectedIndex(), -1);
    for (OptionButton& b : opt)
        b.Enabled = false;
    opt[1].setValue(true);  // a disabled button still takes a value from code
    EXPECT_EQ(clicks, (std::vector<int>{0, 2, 1}));
}

TEST_F(OptionFixture, PersonClicksEveryTimeEvenOnTheSelectedButton) {
    EXPECT_TRUE(opt[1].click());
    EXPECT_TRUE(opt[1].click());
    EXPECT_TRUE(opt[0].click());
    EXPECT_EQ(clicks, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(values(), (std::vector<bool>{true, false, false}));
}

TEST(OptionGroupTest, SeparateArraysDoNotExcludeEachOtherAndMembersOutliveTheGroup) {
    ControlArray<OptionButton> scale("optScale", 2);
    ControlArray<OptionButton> cursor("optCursor", 2);
    scale[1].setValue(true);
    cursor[0].setValue(true);
    EXPECT_TRUE(scale[1].value());
    auto group = std::make_unique<OptionGroup>();
    OptionButton a("optA", -1, *group);
    {
        OptionButton b("optB", -1, *group);
        b.setValue(true);
    }
    a.setValue(true);
    group.reset();
    EXPECT_TRUE(a.click());
    EXPECT_TRUE(a.value());
}

TEST(CheckBoxTest, CodeClicksOnChangePersonTogglesAndGrayedBecomesChecked) {
    CheckBox c("chkCursor");
    std::vector<int> seen;
    c.Click.connect([&] { seen.push_back(c.value()); });
    c.setValue(1);
    c.setValue(1);
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
