#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/ui/combo_box.h"
#include "platform/ui/control_error.h"
#include "platform/ui/text_box.h"

namespace zt::ui {
namespace {

// Records the events of a text box as "K<code>" and "C<text>".
struct TextBoxLog {
    TextBox box{"txtComment"};
    std::vector<std::string> log;
    TextBoxLog() {
        box.KeyPress.connect(
            [this](int& k) { log.push_back(std::string("K").append(std::to_string(k))); });
        box.Change.connect([this] { log.push_back("C" + box.text()); });
    }
};

TEST(TextBoxTest, TypingRaisesKeyPressThenChangePerCharacterCodeOnlyChange) {
    TextBoxLog t;
    EXPECT_TRUE(t.box.type("ab"));
    EXPECT_EQ(t.box.SelStart(), 2);
    t.box.setText("x");
    t.box.setText("x");
    EXPECT_EQ(t.log, (std::vector<std::string>{"K97", "Ca", "K98", "Cab", "Cx"}));
}

TEST(TextBoxTest, KeyPressHandlerCancelsOrReplacesKeysAndMaxLengthStopsTypingOnly) {
    TextBox box("txtComment");
    box.KeyPress.connect([](int& k) {
        if (k == '-') k = 0;
        if (k == 'a') k = 'A';
    });
    box.MaxLength = 3;
    box.type("a-bcd");
    EXPECT_EQ(box.text(), "Abc");
    box.setText("longer than three");
    EXPECT_EQ(box.text(), "longer than three");
}

TEST(TextBoxTest, LockedBoxRaisesKeyPressButKeepsItsText) {
    TextBoxLog t;
    t.box.setText("keep");
    t.log.clear();
    t.box.Locked = true;
    EXPECT_FALSE(t.box.type("z"));
    EXPECT_FALSE(t.box.pressKey(kKeyBack));
    EXPECT_EQ(t.box.text(), "keep");
    EXPECT_EQ(t.log, (std::vector<std::string>{"K122", "K8"}));
}

TEST(TextBoxTest, TypingReplacesTheSelectionAndBackspaceDeletesCharacters) {
    TextBox box("txtComment");
    box.setText("hello \xC3\xA9t\xC3\xA9");  // "hello été"
    box.setSelStart(6);
    box.setSelLength(2);
    box.type("the");
    EXPECT_EQ(box.text(), "hello the\xC3\xA9");
    box.pressKey(kKeyBack);
    box.pressKey(0x65E5);  // a CJK character by its code
    EXPECT_EQ(box.text(), "hello th\xE6\x97\xA5\xC3\xA9");
    box.setSelStart(0);
    box.pressKey(kKeyBack);  // nothing before the caret
    box.pressKey(kKeyReturn);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.text(), "hello th\xE6\x97\xA5\xC3\xA9");
}

TEST(TextBoxTest, OutOfRangeSelectionAndBadKeysAreHarmless) {
    TextBox box("txtComment");
    box.setText("abc");
    box.setSelStart(-5);
    box.setSelLength(99);
    EXPECT_EQ(box.SelText(), "abc");
    for (int bad : {-1, 0xD800, 0x110000, 127, 27})
        box.pressKey(bad);
    EXPECT_EQ(box.text(), "abc");
    box.setText("\x80\xFF");  // not UTF-8: each stray byte is one character
    box.setSelStart(1);
    box.pressKey(kKeyBack);
    EXPECT_EQ(box.text(), "\xFF");
}

// --- Combo box ---

struct ComboLog {
    ComboBox box;
    std::vector<std::string> log;
    explicit ComboLog(ComboStyle style = ComboStyle::DropDownCombo)
        : box("cboHorzScale", -1, style) {
        for (const char* item : {"100", "50", "20", "10"})
            box.AddItem(item);
        box.Click.connect([this] { log.push_back("Click" + std::to_string(box.ListIndex())); });
        box.Change.connect([this] { log.push_back("Change " + box.text()); });
    }
};

TEST(ComboBoxTest, ListIndexInCodeClicksOnChangeAndRefusesIndexesOutsideTheList) {
    ComboLog c;
    c.box.setListIndex(2);
    c.box.setListIndex(2);
    EXPECT_EQ(c.box.text(), "20");
    for (int bad : {-2, 4}) {
        try {
            c.box.setListIndex(bad);
            ADD_FAILURE() << bad;
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.code(), kErrInvalidPropertyValue);
        }
    }
    c.box.setListIndex(-1);
    EXPECT_EQ(c.box.text(), "");
    EXPECT_EQ(c.log, (std::vector<std::string>{"Click2", "Click-1"}));
}

TEST(ComboBoxTest, PersonPickingClicksEveryTimeWithoutChange) {
    ComboLog c;
    EXPECT_TRUE(c.box.select(1));
    EXPECT_TRUE(c.box.select(1));
    EXPECT_FALSE(c.box.select(4));
    EXPECT_EQ(c.log, (std::vector<std::string>{"Click1", "Click1"}));
    EXPECT_EQ(c.box.text(), "50");
}

TEST(ComboBoxTest, TypingRaisesChangeAndMatchesAnItemWithoutClick) {
    ComboLog c;
    std::vector<int> keys;
    c.box.KeyPress.connect([&](int& k) { keys.push_back(k); });
    EXPECT_TRUE(c.box.enter("5"));
    EXPECT_TRUE(c.box.type("0"));
    EXPECT_EQ(c.box.ListIndex(), 1);
    EXPECT_TRUE(c.box.type("0"));
    EXPECT_EQ(c.box.ListIndex(), -1);
    EXPECT_TRUE(c.box.pressKey(kKeyReturn));
    c.box.setText("500");  // code writing the same text raises nothing
    EXPECT_EQ(keys, (std::vector<int>{'5', '0', '0', kKeyReturn}));
    EXPECT_EQ(c.log, (std::vector<std::string>{"Change 5", "Change 50", "Change 500"}));
}

TEST(ComboBoxTest, DropDownListTextFollowsTheSelectionOnly) {
    ComboLog c(ComboStyle::DropDownList);
    c.box.setText("10");
    EXPECT_EQ(c.box.ListIndex(), 3);
    EXPECT_THROW(c.box.setText("7"), AutomationError);
    EXPECT_TRUE(c.box.type("5"));
    EXPECT_EQ(c.box.text(), "10");
    c.box.RemoveItem(3);
    EXPECT_EQ(c.box.text(), "");
    EXPECT_EQ(c.log, (std::vector<std::string>{"Click3"}));
}

TEST(ComboBoxTest, ListEditingKeepsTheSelectionOnItsItemAndRaisesNothing) {
    ComboLog c;
    c.box.setListIndex(1);  // "50"
    c.log.clear();
    c.box.AddItem("200", 0);
    EXPECT_EQ(c.box.ListIndex(), 2);
    c.box.RemoveItem(0);
    EXPECT_EQ(c.box.List(c.box.ListIndex()), "50");
    EXPECT_EQ(c.box.List(4), "");
    EXPECT_THROW(c.box.AddItem("x", 9), AutomationError);
    EXPECT_THROW(c.box.RemoveItem(4), AutomationError);
    c.box.Clear();
    EXPECT_EQ(c.box.ListIndex(), -1);
    EXPECT_TRUE(c.log.empty());
}

}  // namespace
}  // namespace zt::ui
