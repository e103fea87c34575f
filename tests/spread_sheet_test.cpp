#include "platform/ui/spread_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "platform/zt_common.h"

namespace zt::ui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A sheet shaped like the trigger sheet: a type list, a target list, a static row, a level
// number cell and a position text cell.
struct Sheet {
    SpreadSheet s{"sprTest", 1, 5};
    std::vector<std::string> log;

    Sheet() {
        s.setText(0, 1, "Type");
        s.setText(1, 0, "Trigger");
        s.setCellType(1, 1, CellType::ComboBox);
        s.setListItems(1, 1, {"Not used", "Inside", "Fault"});
        s.setText(1, 1, "Not used");
        s.setCellType(1, 2, CellType::ComboBox);
        s.setListItems(1, 2, {"---", "CH01"});
        s.setCellType(1, 3, CellType::StaticText);
        s.setText(1, 3, "Rise");
        s.setCellType(1, 4, CellType::Number);
        s.setNumberFormat(1, 4, {-100, 100, 2});
        s.setNumber(1, 4, 1.5);
        s.setText(1, 5, "10");
        // Every handler notes what it saw: the cell's text at that moment.
        s.ComboSelChange.connect([this](int c, int r) {
            log.push_back("ComboSelChange " + at(c, r) +
                          " sel=" + std::to_string(s.selectedIndex(c, r)));
        });
        s.Change.connect([this](int c, int r) { log.push_back("Change " + at(c, r)); });
        s.Click.connect([this](int c, int r) { log.push_back("Click " + at(c, r)); });
        s.KeyDown.connect([this](int& key, int shift) {
            log.push_back("KeyDown " + std::to_string(key) + "/" + std::to_string(shift) +
                          " active=" + at(s.ActiveCol(), s.ActiveRow()));
        });
        s.KeyPress.connect(
            [this](int& ascii) { log.push_back("KeyPress " + std::to_string(ascii)); });
        s.Leave.connect([this] { log.push_back("Leave"); });
    }

    std::string at(int c, int r) const {
        return "(" + std::to_string(c) + "," + std::to_string(r) + ")=" + s.text(c, r);
    }
};

// Runs a person's actions written as "T c r text" (type), "K key shift" (press), "C c r"
// (click), "P c r item" / "I c r index" (pick from a list) and "L" (leave), separated by ';'.
// Returns what the last action returned.
bool act(SpreadSheet& s, const std::string& script) {
    std::istringstream ops(script);
    std::string op;
    bool ok = true;
    while (std::getline(ops, op, ';')) {
        std::istringstream in(op);
        char kind = 0;
        int a = 0, b = 0;
        std::string text;
        in >> kind >> a >> b >> text;
        ok = kind == 'T'   ? s.typeIntoCell(a, b, text)
             : kind == 'K' ? s.pressKey(a, b)
             : kind == 'C' ? s.clickCell(a, b)
             : kind == 'P' ? s.chooseListItem(a, b, text)
             : kind == 'I' ? s.chooseListItem(a, b, std::stoi(text))
                           : s.leaveSheet();
    }
    return ok;
}

// ---- What a person's actions raise ---------------------------------------------------------

struct SequenceCase {
    const char* name;
    const char* script;
    std::vector<std::string> events;
    std::string row5;  // text of the position cell afterwards
    bool editing;      // editor still open afterwards
};

class PersonSequence : public ::testing::TestWithParam<SequenceCase> {};

TEST_P(PersonSequence, RaisesEventsInOrderWithTheCellAlreadyUpdated) {
    Sheet t;
    act(t.s, GetParam().script);
    EXPECT_EQ(t.log, GetParam().events);
    EXPECT_EQ(t.s.text(1, 5), GetParam().row5);
    EXPECT_EQ(t.s.EditMode(), GetParam().editing);
}

INSTANTIATE_TEST_SUITE_P(
    SpreadSheet, PersonSequence,
    ::testing::Values(
        SequenceCase{"TypeEnterCommitsThenKeyDownThenKeyPress",
                     "T 1 5 47; K 13",
                     {"Change (1,5)=47", "KeyDown 13/0 active=(1,5)=47", "KeyPress 13"},
                     "47",
                     false},
        SequenceCase{"TypeEscapeRestoresBeforeTheHandlersRun",
                     "T 1 5 4; T 1 5 47; K 27",
                     {"KeyDown 27/0 active=(1,5)=10", "KeyPress 27"},
                     "10",
                     false},
        SequenceCase{
            "TypeLeaveCommitsThenLeave", "T 1 5 47; L", {"Change (1,5)=47", "Leave"}, "47", false},
        SequenceCase{"RetypingTheSameTextIsNoChange",
                     "T 1 5 10; K 13",
                     {"KeyDown 13/0 active=(1,5)=10", "KeyPress 13"},
                     "10",
                     false},
        SequenceCase{"ClickingAnotherCellCommitsFirst",
                     "T 1 5 47; C 1 3",
                     {"Change (1,5)=47", "Click (1,3)=Rise"},
                     "47",
                     false},
        SequenceCase{"PickingAListItemElsewhereCommitsFirst",
                     "T 1 5 47; P 1 1 Fault",
                     {"Change (1,5)=47", "ComboSelChange (1,1)=Fault sel=2"},
                     "47",
                     false},
        SequenceCase{"UpCommitsAndMovesBeforeKeyDown",
                     "T 1 5 47; K 38 1",
                     {"Change (1,5)=47", "KeyDown 38/1 active=(1,4)=1.50"},
                     "47",
                     false},
        SequenceCase{"PickingTheSameItemAgainRaisesAgainWithTheNewSelection",
                     "I 1 1 1; P 1 1 Inside",
                     {"ComboSelChange (1,1)=Inside sel=1", "ComboSelChange (1,1)=Inside sel=1"},
                     "10",
                     false},
        SequenceCase{"RightWhileEditingStaysInTheEditor",
                     "T 1 5 47; K 39",
                     {"KeyDown 39/0 active=(1,5)=47"},
                     "47",
                     true},
        SequenceCase{
            "HeaderClickCommitsButKeepsTheActiveCell",
            "T 1 5 47; C 0 2; K 13",
            {"Change (1,5)=47", "Click (0,2)=2", "KeyDown 13/0 active=(1,5)=47", "KeyPress 13"},
            "47",
            false}),
    [](const auto& caseInfo) { return std::string(caseInfo.param.name); });

TEST(SpreadSheet, ChangeHandlerMayRewriteTheCellOrMoveTheEditor) {
    Sheet t;
    t.s.Change.connect([&](int c, int r) { t.s.setText(c, r, "50"); });
    act(t.s, "T 1 5 47; K 13");
    EXPECT_EQ(t.s.text(1, 5), "50");
    EXPECT_FALSE(t.s.EditMode());

    Sheet u;
    u.s.Change.connect([&](int, int) {
        u.s.SetActiveCell(1, 5);  // the handler reopens the editor on the cell just left
        u.s.SetEditMode(true);
    });
    EXPECT_TRUE(act(u.s, "T 1 5 47; T 1 4 200"));  // commits row 5, then edits row 4
    EXPECT_EQ(u.s.ActiveRow(), 4);
    act(u.s, "K 13");
    EXPECT_EQ(u.s.text(1, 4), "100.00");  // a typed number is clamped to the cell's bounds

    Sheet v;
    v.s.Change.connect([&](int, int) { v.s.SetMaxRows(2); });
    EXPECT_TRUE(act(v.s, "T 1 5 47; C 1 4"));  // the cell is gone once the handler ran
    EXPECT_FALSE(v.s.EditMode());
    EXPECT_EQ(v.s.ActiveRow(), 2);
}

// ---- What a person cannot do ---------------------------------------------------------------

struct RefusalCase {
    const char* name;
    char state;  // 'H' hidden, 'D' disabled, 'L' every cell locked, '-' as built
    const char* script;
};

class PersonRefused : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(PersonRefused, ReturnsFalseAndChangesNothing) {
    Sheet t;
    t.s.Visible = GetParam().state != 'H';
    t.s.Enabled = GetParam().state != 'D';
    if (GetParam().state == 'L') t.s.lockAll(true);
    const std::string before = t.s.render();
    const int activeRow = t.s.ActiveRow();
    EXPECT_FALSE(act(t.s, GetParam().script));
    EXPECT_THAT(t.log, IsEmpty());
    EXPECT_EQ(t.s.render(), before);
    EXPECT_EQ(t.s.ActiveRow(), activeRow);
    EXPECT_FALSE(t.s.EditMode());
}

INSTANTIATE_TEST_SUITE_P(SpreadSheet, PersonRefused,
                         ::testing::Values(RefusalCase{"ClickOnHiddenSheet", 'H', "C 1 2"},
                                           RefusalCase{"LeaveHiddenSheet", 'H', "L"},
                                           RefusalCase{"KeyOnDisabledSheet", 'D', "K 13"},
                                           RefusalCase{"PickOnDisabledSheet", 'D', "I 1 1 2"},
                                           RefusalCase{"PickInLockedList", 'L', "I 1 1 2"},
                                           RefusalCase{"TypeInLockedCell", 'L', "T 1 5 47"},
                                           RefusalCase{"TypeInStaticText", '-', "T 1 3 Fall"},
                                           RefusalCase{"TypeInDropDownList", '-', "T 1 1 Inside"},
                                           RefusalCase{"TypeInHeader", '-', "T 0 1 x"},
                                           RefusalCase{"PickItemNotInList", '-', "P 1 1 Outside"},
                                           RefusalCase{"PickIndexPastList", '-', "I 1 1 3"},
                                           RefusalCase{"PickInNumberCell", '-', "I 1 4 0"},
                                           RefusalCase{"ClickOutsideGrid", '-', "C 2 1"},
                                           RefusalCase{"NegativeAddress", '-', "P -1 -1 Inside"},
                                           RefusalCase{"NoSuchKey", '-', "K 256"}),
                         [](const auto& caseInfo) { return std::string(caseInfo.param.name); });

TEST(SpreadSheet, HoverShowsTheTipTheHandlerGives) {
    Sheet t;
    EXPECT_EQ(t.s.hoverCell(0, 3), "");  // no handler: no tip
    t.s.TextTipFetch.connect([](int c, int r, std::string& tip, bool& show) {
        tip = "Tip of row " + std::to_string(r);
        show = c == 0 && r == 3;
    });
    EXPECT_EQ(t.s.hoverCell(0, 3), "Tip of row 3");
    EXPECT_EQ(t.s.hoverCell(0, 4), "");
    t.s.Visible = false;
    EXPECT_EQ(t.s.hoverCell(0, 3), "");
}

// ---- Cell contents -------------------------------------------------------------------------

TEST(SpreadSheet, ComboTextSelectsOnlyAnExactlyMatchingItem) {
    Sheet t;
    t.s.setText(1, 1, "Fault");
    EXPECT_EQ(t.s.selectedIndex(1, 1), 2);
    t.s.setText(1, 1, "fault");
    EXPECT_EQ(t.s.selectedIndex(1, 1), -1);
    EXPECT_EQ(t.s.text(1, 1), "fault");
    t.s.setText(1, 2, "CH05");  // a refilled list picks up the shown text again
    t.s.addListItem(1, 2, "CH05");
    EXPECT_EQ(t.s.selectedIndex(1, 2), 2);
    EXPECT_THROW(t.s.setSelectedIndex(1, 2, 3), AutomationError);
}

TEST(SpreadSheet, NumberCellShowsFormattedTextAndKeepsWhatIsNotANumber) {
    Sheet t;
    t.s.setText(1, 4, "12.345");
    EXPECT_EQ(t.s.text(1, 4), "12.35");
    EXPECT_EQ(t.s.number(1, 4), 12.345);
    t.s.setNumber(1, 4, 1e9);  // clamped to the bounds
    EXPECT_EQ(t.s.text(1, 4), "100.00");
    EXPECT_THROW(t.s.setNumber(1, 4, std::nan("")), AutomationError);
    EXPECT_THROW(t.s.setNumberFormat(1, 4, {1, 0, 0}), AutomationError);
    t.s.setText(1, 4, "---");  // placeholder written by code
    EXPECT_EQ(t.s.text(1, 4), "---");
    EXPECT_EQ(t.s.number(1, 4), std::nullopt);
    act(t.s, "T 1 4 12abc; K 13");  // letters typed by a person
    EXPECT_EQ(t.s.value(1, 4), "12abc");
    act(t.s, "T 1 4 -7.5");
    EXPECT_EQ(t.s.number(1, 4), -7.5);  // read while typing: what has been typed
    act(t.s, "L");
    EXPECT_EQ(t.s.text(1, 4), "-7.50");
    EXPECT_EQ(t.s.value(1, 4), "-7.5");
}

TEST(SpreadSheet, CellNumbersParsePlainNumbersOnlyAndFormatWithoutMinusZero) {
    for (const char* bad : {"", ".", "-", "1,000", "inf", "nan", "0x10", "1e999", "1 2"})
        EXPECT_EQ(parseCellNumber(bad), std::nullopt) << bad;
    EXPECT_EQ(parseCellNumber(" -0.25\t"), -0.25);
    EXPECT_EQ(parseCellNumber("+5"), 5);
    EXPECT_EQ(parseCellNumber("1e3"), 1000);
    EXPECT_EQ(formatCellNumber(0.125, 2), "0.12");  // binary value just below the half
    EXPECT_EQ(formatCellNumber(-0.001, 2), "0.00");
    EXPECT_EQ(formatCellNumber(1e300, 0).size(), 301u);
    EXPECT_EQ(formatCellNumber(std::numeric_limits<double>::infinity(), 2), "");
    EXPECT_EQ(plainNumberText(-0.0), "0");
}

TEST(SpreadSheet, CodeWritesAreNotCutAndCloseTheEditorSilently) {
    Sheet t;
    t.s.setMaxLength(1, 5, 2);
    act(t.s, "T 1 5 12345");
    EXPECT_EQ(t.s.text(1, 5), "12");
    t.s.setText(1, 5, "12345");
    EXPECT_EQ(t.s.text(1, 5), "12345");
    t.log.clear();
    act(t.s, "T 1 5 47");
    t.s.setText(1, 5, "90");
    EXPECT_FALSE(t.s.EditMode());
    act(t.s, "K 27");
    EXPECT_EQ(t.s.text(1, 5), "90");
    EXPECT_THAT(t.log, ElementsAre("KeyDown 27/0 active=(1,5)=90", "KeyPress 27"));
}

// ---- Locking, drawing, grid ----------------------------------------------------------------

TEST(SpreadSheet, LockAllThenUnlockARange) {
    SpreadSheet s("sprChannel", 8, 8);
    s.lockAll(true);
    s.lockRange(8, 3, 2, 2, false);  // corners in any order
    for (int c = 1; c <= 8; ++c) {
        for (int r = 1; r <= 8; ++r)
            EXPECT_EQ(s.locked(c, r), !(c >= 2 && r >= 2 && r <= 3)) << c << "," << r;
    }
    EXPECT_TRUE(s.typeIntoCell(2, 2, "x"));
    EXPECT_FALSE(s.typeIntoCell(1, 2, "x"));
}

TEST(SpreadSheet, LockingOrShrinkingUnderTheEditorClosesItSilently) {
    Sheet t;
    act(t.s, "T 1 5 47");
    t.s.lockAll(true);
    EXPECT_FALSE(t.s.EditMode());
    EXPECT_EQ(t.s.text(1, 5), "47");
    t.s.SetEditMode(true);  // a locked cell does not open its editor
    EXPECT_FALSE(t.s.EditMode());

    Sheet u;
    act(u.s, "T 1 5 47");
    u.s.SetMaxRows(3);
    EXPECT_FALSE(u.s.EditMode());
    EXPECT_EQ(u.s.ActiveRow(), 3);
    u.s.SetMaxRows(5);
    EXPECT_EQ(u.s.text(1, 5), "");
    EXPECT_THAT(u.log, IsEmpty());
}

TEST(SpreadSheet, WritesWithDrawingSuspendedRepaintOnceOnResume) {
    SpreadSheet s("sprChannel", 8, 8);
    const int before = s.repaintCount();
    s.SetReDraw(false);
    for (int c = 1; c <= 8; ++c)
        s.setBackColor(c, 1, 0xFFFFFF);
    EXPECT_EQ(s.repaintCount(), before);
    s.SetReDraw(true);
    EXPECT_EQ(s.repaintCount(), before + 1);
}

TEST(SpreadSheet, BadCodeCallsThrow) {
    SpreadSheet s("sprSampling", 1, 4);
    const std::vector<std::function<void()>> calls{
        [&] { s.text(2, 1); },
        [&] { s.setText(-1, 0, "x"); },
        [&] { s.setCellType(0, 1, CellType::Edit); },  // header cells have no kind
        [&] { s.setBackColor(1, 99, 0); },
        [&] { s.setListItems(1, 1, {}); },  // not a combo box
        [&] { s.setNumber(1, 1, 1); },      // not a number cell
        [&] { s.lockRange(0, 1, 1, 4, false); },
        [&] { s.SetColWidth(2, 100); },
        [&] { s.SetRowHeight(1, std::nanf("")); },
        [&] { s.SetMaxRows(-1); },
    };
    for (size_t i = 0; i < calls.size(); ++i)
        EXPECT_THROW(calls[i](), AutomationError) << "call " << i;
}

TEST(SpreadSheet, RendersWhatAPersonSees) {
    SpreadSheet s("sprChannel", 2, 3);
    s.setText(0, 1, "Color");
    s.setText(0, 2, "St.No.");
    s.setText(1, 0, "CH1");
    for (int c = 1; c <= 2; ++c) {
        s.setCellType(c, 1, CellType::StaticText);
        s.setText(c, 1, "CH" + std::to_string(c));
        s.setHAlign(c, 1, HAlign::Center);
        s.setLocked(c, 1, true);
        s.setCellType(c, 2, CellType::ComboBox);
        s.setListItems(c, 2, {"None", "03"});
        s.setText(c, 2, "None");
    }
    s.setBackColor(1, 1, 0xFFFF00);
    s.setBackColor(2, 1, 0xFF00FF);
    s.setText(2, 2, "03");
    s.setLocked(2, 2, true);
    s.setCellType(1, 3, CellType::Number);
    s.setNumberFormat(1, 3, {0, 1000, 1});
    s.setNumber(1, 3, 7);
    s.setText(2, 3, "---");
    s.setHAlign(2, 3, HAlign::Right);
    s.Visible = false;
    EXPECT_EQ(s.render(),
              "sprChannel 2x3, hidden\n"
              "       |      CH1       |       B\n"
              "-------+----------------+---------------\n"
              "Color  | [CH1] {FFFF00} | [CH2] {FF00FF}\n"
              "St.No. | None           | [03]\n"
              "3      |            7.0 |            ---\n");
}

}  // namespace
}  // namespace zt::ui
