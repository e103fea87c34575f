#include "platform/ui/spread_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
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

// ---- What a person's actions raise ---------------------------------------------------------

struct SequenceCase {
    const char* name;
    std::function<void(SpreadSheet&)> act;
    std::vector<std::string> events;
    std::string row5;  // text of the position cell afterwards
    bool editing;      // editor still open afterwards
};

class PersonSequence : public ::testing::TestWithParam<SequenceCase> {};

TEST_P(PersonSequence, RaisesEventsInOrderWithTheCellAlreadyUpdated) {
    Sheet t;
    GetParam().act(t.s);
    EXPECT_EQ(t.log, GetParam().events);
    EXPECT_EQ(t.s.text(1, 5), GetParam().row5);
    EXPECT_EQ(t.s.EditMode(), GetParam().editing);
}

INSTANTIATE_TEST_SUITE_P(
    SpreadSheet, PersonSequence,
    ::testing::Values(SequenceCase{"TypeEnterCommitsThenKeyDownThenKeyPress",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.pressKey(kKeyEnter);
                                   },
                                   {"Change (1,5)=47", "KeyDown 13/0 active=(1,5)=47",
                                    "KeyPress 13"},
                                   "47",
                                   false},
                      SequenceCase{"TypeEscapeRestoresBeforeTheHandlersRun",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.pressKey(kKeyEscape);
                                   },
                                   {"KeyDown 27/0 active=(1,5)=10", "KeyPress 27"},
                                   "10",
                                   false},
                      SequenceCase{"TypeLeaveCommitsThenLeave",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.leaveSheet();
                                   },
                                   {"Change (1,5)=47", "Leave"},
                                   "47",
                                   false},
                      SequenceCase{"LeaveWithoutEditStillNotifies",
                                   [](SpreadSheet& s) { s.leaveSheet(); },
                                   {"Leave"},
                                   "10",
                                   false},
                      SequenceCase{"RetypingTheSameTextIsNoChange",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "10");
                                       s.pressKey(kKeyEnter);
                                   },
                                   {"KeyDown 13/0 active=(1,5)=10", "KeyPress 13"},
                                   "10",
                                   false},
                      SequenceCase{"ClickingAnotherCellCommitsFirst",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.clickCell(1, 3);
                                   },
                                   {"Change (1,5)=47", "Click (1,3)=Rise"},
                                   "47",
                                   false},
                      SequenceCase{"PickingAListItemElsewhereCommitsFirst",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.chooseListItem(1, 1, "Fault");
                                   },
                                   {"Change (1,5)=47", "ComboSelChange (1,1)=Fault sel=2"},
                                   "47",
                                   false},
                      SequenceCase{"UpCommitsAndMovesBeforeKeyDown",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.pressKey(kKeyUp, 1);
                                   },
                                   {"Change (1,5)=47", "KeyDown 38/1 active=(1,4)=1.50"},
                                   "47",
                                   false},
                      SequenceCase{"RightWhileEditingStaysInTheEditor",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.pressKey(kKeyRight);
                                   },
                                   {"KeyDown 39/0 active=(1,5)=47"},
                                   "47",
                                   true},
                      SequenceCase{"TypingTwiceKeepsTheFirstOldTextForEscape",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "4");
                                       s.typeIntoCell(1, 5, "47");
                                       s.pressKey(kKeyEscape);
                                   },
                                   {"KeyDown 27/0 active=(1,5)=10", "KeyPress 27"},
                                   "10",
                                   false},
                      SequenceCase{"HeaderClickCommitsButKeepsTheActiveCell",
                                   [](SpreadSheet& s) {
                                       s.typeIntoCell(1, 5, "47");
                                       s.clickCell(0, 2);
                                       s.pressKey(kKeyEnter);
                                   },
                                   {"Change (1,5)=47", "Click (0,2)=2",
                                    "KeyDown 13/0 active=(1,5)=47", "KeyPress 13"},
                                   "47",
                                   false}),
    [](const auto& caseInfo) { return std::string(caseInfo.param.name); });

TEST(SpreadSheet, ChoosingAListItemShowsTheNewSelectionInsideTheHandler) {
    Sheet t;
    EXPECT_TRUE(t.s.chooseListItem(1, 1, 1));
    EXPECT_TRUE(t.s.chooseListItem(1, 1, "Inside"));  // the same item again: raised again
    EXPECT_THAT(t.log, ElementsAre("ComboSelChange (1,1)=Inside sel=1",
                                   "ComboSelChange (1,1)=Inside sel=1"));
    EXPECT_EQ(t.s.ActiveRow(), 1);
    EXPECT_EQ(t.s.value(1, 1), "1");
}

TEST(SpreadSheet, ClickActivatesWithoutOpeningTheEditor) {
    Sheet t;
    EXPECT_TRUE(t.s.clickCell(1, 4));
    EXPECT_EQ(t.s.ActiveRow(), 4);
    EXPECT_FALSE(t.s.EditMode());
    // The component opens the editor at once, as the trigger sheet does for rows 4 and 5.
    t.s.SetEditMode(true);
    EXPECT_TRUE(t.s.EditMode());
    EXPECT_THAT(t.log, ElementsAre("Click (1,4)=1.50"));
}

TEST(SpreadSheet, HandlerMayRewriteTheCellItWasToldAbout) {
    Sheet t;
    t.s.Change.connect([&](int c, int r) { t.s.setText(c, r, "50"); });
    t.s.typeIntoCell(1, 5, "47");
    t.s.pressKey(kKeyEnter);
    EXPECT_EQ(t.s.text(1, 5), "50");
    EXPECT_FALSE(t.s.EditMode());
}

TEST(SpreadSheet, EditorStaysOnTheActiveCellWhateverAChangeHandlerDoes) {
    Sheet t;
    t.s.Change.connect([&](int, int) {
        t.s.SetActiveCell(1, 5);  // the handler reopens the editor on the cell just left
        t.s.SetEditMode(true);
    });
    t.s.typeIntoCell(1, 5, "47");
    EXPECT_TRUE(t.s.typeIntoCell(1, 4, "200"));  // commits row 5, then edits row 4
    EXPECT_EQ(t.s.text(1, 5), "47");
    EXPECT_EQ(t.s.ActiveRow(), 4);
    t.s.pressKey(kKeyEnter);
    EXPECT_EQ(t.s.text(1, 4), "100.00");  // a typed number is clamped to the cell's bounds

    Sheet u;
    u.s.Change.connect([&](int, int) { u.s.SetMaxRows(2); });
    u.s.typeIntoCell(1, 5, "47");
    EXPECT_TRUE(u.s.clickCell(1, 4));  // the cell is gone once the handler ran
    EXPECT_FALSE(u.s.EditMode());
    EXPECT_EQ(u.s.ActiveRow(), 2);
}

// ---- What a person cannot do ---------------------------------------------------------------

struct RefusalCase {
    const char* name;
    std::function<void(SpreadSheet&)> setUp;
    std::function<bool(SpreadSheet&)> act;
};

class PersonRefused : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(PersonRefused, ReturnsFalseAndChangesNothing) {
    Sheet t;
    GetParam().setUp(t.s);
    const std::string before = t.s.render();
    const int activeRow = t.s.ActiveRow();
    EXPECT_FALSE(GetParam().act(t.s));
    EXPECT_THAT(t.log, IsEmpty());
    EXPECT_EQ(t.s.render(), before);
    EXPECT_EQ(t.s.ActiveRow(), activeRow);
    EXPECT_FALSE(t.s.EditMode());
}

const auto kNothing = [](SpreadSheet&) {};
const auto kHide = [](SpreadSheet& s) { s.Visible = false; };
const auto kDisable = [](SpreadSheet& s) { s.Enabled = false; };
const auto kLockAll = [](SpreadSheet& s) { s.lockAll(true); };

INSTANTIATE_TEST_SUITE_P(
    SpreadSheet, PersonRefused,
    ::testing::Values(
        RefusalCase{"ClickOnHiddenSheet", kHide, [](SpreadSheet& s) { return s.clickCell(1, 2); }},
        RefusalCase{"KeyOnDisabledSheet", kDisable,
                    [](SpreadSheet& s) { return s.pressKey(kKeyEnter); }},
        RefusalCase{"LeaveHiddenSheet", kHide, [](SpreadSheet& s) { return s.leaveSheet(); }},
        RefusalCase{"PickOnDisabledSheet", kDisable,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 1, 2); }},
        RefusalCase{"PickInLockedList", kLockAll,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 1, 2); }},
        RefusalCase{"TypeInLockedCell", kLockAll,
                    [](SpreadSheet& s) { return s.typeIntoCell(1, 5, "47"); }},
        RefusalCase{"TypeInStaticText", kNothing,
                    [](SpreadSheet& s) { return s.typeIntoCell(1, 3, "Fall"); }},
        RefusalCase{"TypeInDropDownList", kNothing,
                    [](SpreadSheet& s) { return s.typeIntoCell(1, 1, "Inside"); }},
        RefusalCase{"TypeInHeader", kNothing,
                    [](SpreadSheet& s) { return s.typeIntoCell(0, 1, "x"); }},
        RefusalCase{"PickItemNotInList", kNothing,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 1, "Outside"); }},
        RefusalCase{"PickIndexPastList", kNothing,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 1, 3); }},
        RefusalCase{"PickNegativeIndex", kNothing,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 1, -1); }},
        RefusalCase{"PickInNumberCell", kNothing,
                    [](SpreadSheet& s) { return s.chooseListItem(1, 4, 0); }},
        RefusalCase{"ClickOutsideGrid", kNothing, [](SpreadSheet& s) { return s.clickCell(2, 1); }},
        RefusalCase{"TypeOutsideGrid", kNothing,
                    [](SpreadSheet& s) { return s.typeIntoCell(1, 6, "x"); }},
        RefusalCase{"NegativeAddress", kNothing,
                    [](SpreadSheet& s) { return s.chooseListItem(-1, -1, "Inside"); }},
        RefusalCase{"NoSuchKey", kNothing, [](SpreadSheet& s) { return s.pressKey(256); }}),
    [](const auto& caseInfo) { return std::string(caseInfo.param.name); });

TEST(SpreadSheet, HoverAsksForTheTipAndShowsIt) {
    Sheet t;
    EXPECT_EQ(t.s.hoverCell(0, 3), "");  // no handler: no tip
    t.s.TextTipFetch.connect([](int c, int r, std::string& tip, bool& show) {
        if (c == 0 && r == 3) tip = "Tip of row 3";
        if (c == 0 && r == 4) {
            tip = "hidden";
            show = false;
        }
    });
    EXPECT_EQ(t.s.hoverCell(0, 3), "Tip of row 3");
    EXPECT_EQ(t.s.hoverCell(0, 4), "");
    EXPECT_EQ(t.s.hoverCell(1, 3), "");
    EXPECT_EQ(t.s.hoverCell(0, 9), "");
    t.s.Visible = false;
    EXPECT_EQ(t.s.hoverCell(0, 3), "");
}

// ---- Cell contents -------------------------------------------------------------------------

TEST(SpreadSheet, ComboTextSelectsTheMatchingItem) {
    Sheet t;
    t.s.setText(1, 1, "Fault");
    EXPECT_EQ(t.s.selectedIndex(1, 1), 2);
    t.s.setText(1, 1, "fault");  // exact match only
    EXPECT_EQ(t.s.selectedIndex(1, 1), -1);
    EXPECT_EQ(t.s.text(1, 1), "fault");
    EXPECT_EQ(t.s.value(1, 1), "");
    // A refilled list picks up the shown text again.
    t.s.setText(1, 2, "CH05");
    EXPECT_EQ(t.s.selectedIndex(1, 2), -1);
    t.s.addListItem(1, 2, "CH05");
    EXPECT_EQ(t.s.selectedIndex(1, 2), 2);
    t.s.clearListItems(1, 2);
    EXPECT_EQ(t.s.selectedIndex(1, 2), -1);
    EXPECT_EQ(t.s.text(1, 2), "CH05");
    t.s.setListItems(1, 2, {"---"});
    t.s.setSelectedIndex(1, 2, 0);
    EXPECT_EQ(t.s.text(1, 2), "---");
    t.s.setSelectedIndex(1, 2, -1);
    EXPECT_EQ(t.s.text(1, 2), "");
    EXPECT_THROW(t.s.setSelectedIndex(1, 2, 1), AutomationError);
}

TEST(SpreadSheet, NumberCellKeepsValueAndFormattedText) {
    Sheet t;
    t.s.setText(1, 4, "12.345");
    EXPECT_EQ(t.s.text(1, 4), "12.35");
    EXPECT_EQ(t.s.value(1, 4), "12.345");
    EXPECT_EQ(t.s.number(1, 4), 12.345);
    t.s.setNumber(1, 4, 1e9);  // clamped to the bounds
    EXPECT_EQ(t.s.text(1, 4), "100.00");
    t.s.setNumberFormat(1, 4, {0, 5400000000.0, 0});
    t.s.setNumber(1, 4, 5400000000.0);
    EXPECT_EQ(t.s.text(1, 4), "5400000000");
    EXPECT_EQ(t.s.value(1, 4), "5400000000");
    EXPECT_THROW(t.s.setNumber(1, 4, std::nan("")), AutomationError);
    EXPECT_THROW(t.s.setNumberFormat(1, 4, {1, 0, 0}), AutomationError);
}

TEST(SpreadSheet, NumberCellHoldsTextThatIsNotANumber) {
    Sheet t;
    t.s.setText(1, 4, "---");  // placeholder written by code
    EXPECT_EQ(t.s.text(1, 4), "---");
    EXPECT_EQ(t.s.value(1, 4), "---");
    EXPECT_EQ(t.s.number(1, 4), std::nullopt);
    t.s.typeIntoCell(1, 4, "12abc");  // letters typed by a person
    EXPECT_EQ(t.s.number(1, 4), std::nullopt);
    t.s.pressKey(kKeyEnter);
    EXPECT_EQ(t.s.text(1, 4), "12abc");
    EXPECT_EQ(t.s.value(1, 4), "12abc");
    EXPECT_EQ(t.s.number(1, 4), std::nullopt);
    t.s.typeIntoCell(1, 4, " -7.5 ");
    EXPECT_EQ(t.s.number(1, 4), -7.5);  // read while typing: what has been typed
    EXPECT_EQ(t.s.text(1, 4), " -7.5 ");
    t.s.leaveSheet();
    EXPECT_EQ(t.s.text(1, 4), "-7.50");
    EXPECT_EQ(t.s.value(1, 4), "-7.5");
}

struct NumberTextCase {
    const char* typed;
    std::optional<double> number;
};

class CellNumberParsing : public ::testing::TestWithParam<NumberTextCase> {};

TEST_P(CellNumberParsing, AcceptsOnlyPlainNumbers) {
    EXPECT_EQ(parseCellNumber(GetParam().typed), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    SpreadSheet, CellNumberParsing,
    ::testing::Values(NumberTextCase{"100", 100}, NumberTextCase{"+5", 5},
                      NumberTextCase{" -0.25\t", -0.25}, NumberTextCase{".5", 0.5},
                      NumberTextCase{"7.", 7}, NumberTextCase{"1e3", 1000},
                      NumberTextCase{"", std::nullopt}, NumberTextCase{"-", std::nullopt},
                      NumberTextCase{".", std::nullopt}, NumberTextCase{"---", std::nullopt},
                      NumberTextCase{"1,000", std::nullopt}, NumberTextCase{"1e", std::nullopt},
                      NumberTextCase{"inf", std::nullopt}, NumberTextCase{"nan", std::nullopt},
                      NumberTextCase{"0x10", std::nullopt}, NumberTextCase{"1e999", std::nullopt},
                      NumberTextCase{"1 2", std::nullopt}));

TEST(SpreadSheet, NumberFormattingRoundsAndNeverShowsMinusZero) {
    EXPECT_EQ(formatCellNumber(0.125, 2), "0.12");  // binary value just below the half
    EXPECT_EQ(formatCellNumber(2.5, 0), "2");
    EXPECT_EQ(formatCellNumber(-0.001, 2), "0.00");
    EXPECT_EQ(formatCellNumber(-1.5, 1), "-1.5");
    EXPECT_EQ(formatCellNumber(1e300, 0).size(), 301u);
    EXPECT_EQ(formatCellNumber(std::numeric_limits<double>::infinity(), 2), "");
    EXPECT_EQ(plainNumberText(-0.0), "0");
}

TEST(SpreadSheet, EditCellLengthLimitCutsWhatAPersonTypes) {
    Sheet t;
    t.s.setMaxLength(1, 5, 2);
    t.s.typeIntoCell(1, 5, "12345");
    EXPECT_EQ(t.s.text(1, 5), "12");
    t.s.setText(1, 5, "12345");  // code is not cut
    EXPECT_EQ(t.s.text(1, 5), "12345");
}

TEST(SpreadSheet, CodeWriteToTheCellUnderEditClosesTheEditorSilently) {
    Sheet t;
    t.s.typeIntoCell(1, 5, "47");
    t.s.setText(1, 5, "90");
    EXPECT_FALSE(t.s.EditMode());
    t.s.pressKey(kKeyEscape);
    EXPECT_EQ(t.s.text(1, 5), "90");
    EXPECT_THAT(t.log, ElementsAre("KeyDown 27/0 active=(1,5)=90", "KeyPress 27"));
}

// ---- Locking -------------------------------------------------------------------------------

TEST(SpreadSheet, LockAllThenUnlockARange) {
    SpreadSheet s("sprChannel", 8, 8);
    s.lockAll(true);
    for (int c = 1; c <= 8; ++c) {
        for (int r = 1; r <= 8; ++r)
            EXPECT_TRUE(s.locked(c, r)) << c << "," << r;
    }
    s.lockRange(8, 3, 2, 2, false);  // corners in any order
    for (int c = 1; c <= 8; ++c) {
        for (int r = 1; r <= 8; ++r) {
            EXPECT_EQ(s.locked(c, r), !(c >= 2 && r >= 2 && r <= 3)) << c << "," << r;
        }
    }
    EXPECT_TRUE(s.typeIntoCell(2, 2, "x"));
    EXPECT_FALSE(s.typeIntoCell(1, 2, "x"));
    EXPECT_THROW(s.lockRange(0, 1, 8, 8, false), AutomationError);
    EXPECT_THROW(s.lockRange(1, 1, 9, 8, false), AutomationError);
}

TEST(SpreadSheet, LockingTheCellUnderEditKeepsWhatWasTyped) {
    Sheet t;
    t.s.typeIntoCell(1, 5, "47");
    t.s.lockAll(true);
    EXPECT_FALSE(t.s.EditMode());
    EXPECT_EQ(t.s.text(1, 5), "47");
    t.s.SetActiveCell(1, 5);
    t.s.SetEditMode(true);  // a locked cell does not open its editor
    EXPECT_FALSE(t.s.EditMode());
}

// ---- Drawing and grid ----------------------------------------------------------------------

TEST(SpreadSheet, WritesWithDrawingSuspendedRepaintOnceOnResume) {
    SpreadSheet s("sprChannel", 8, 8);
    const int before = s.repaintCount();
    s.SetReDraw(false);
    s.SetReDraw(false);  // already off: not counted again
    for (int c = 1; c <= 8; ++c)
        s.setBackColor(c, 1, 0xFFFFFF);
    EXPECT_EQ(s.repaintCount(), before);
    s.SetReDraw(true);
    EXPECT_EQ(s.repaintCount(), before + 1);
    EXPECT_EQ(s.redrawSuspendCount(), 1);
    EXPECT_EQ(s.redrawResumeCount(), 1);
    s.setBackColor(1, 1, 0xFF);
    EXPECT_EQ(s.repaintCount(), before + 2);
}

TEST(SpreadSheet, SizesDefaultAndRefuseBadValues) {
    SpreadSheet s("sprTrigger", 1, 5);
    EXPECT_EQ(s.ColWidth(1), kDefaultColWidth);
    s.SetColWidth(0, 980);
    s.SetRowHeight(5, 250);
    EXPECT_EQ(s.ColWidth(0), 980);
    EXPECT_EQ(s.RowHeight(5), 250);
    EXPECT_THROW(s.SetColWidth(2, 100), AutomationError);
    EXPECT_THROW(s.SetColWidth(1, -1), AutomationError);
    EXPECT_THROW(s.SetRowHeight(1, std::nanf("")), AutomationError);
    EXPECT_THROW(s.SetMaxRows(-1), AutomationError);
}

TEST(SpreadSheet, ShrinkingDropsCellsAndThePendingEdit) {
    Sheet t;
    t.s.typeIntoCell(1, 5, "47");
    t.s.SetMaxRows(3);
    EXPECT_FALSE(t.s.EditMode());
    EXPECT_EQ(t.s.ActiveRow(), 3);
    t.s.SetMaxRows(5);
    EXPECT_EQ(t.s.text(1, 5), "");
    EXPECT_EQ(t.s.text(0, 5), "5");
    EXPECT_THAT(t.log, IsEmpty());
}

TEST(SpreadSheet, CodeAddressOutsideTheGridThrows) {
    SpreadSheet s("sprSampling", 1, 4);
    const std::vector<std::function<void()>> calls{
        [&] { s.text(2, 1); },
        [&] { s.setText(1, 5, "x"); },
        [&] { s.setText(-1, 0, "x"); },
        [&] { s.setCellType(0, 1, CellType::Edit); },  // header cells have no kind
        [&] { s.SetActiveCell(0, 1); },
        [&] { s.locked(1, 0); },
        [&] { s.setBackColor(1, 99, 0); },
        [&] { s.setListItems(1, 1, {}); },  // not a combo box
        [&] { s.setNumber(1, 1, 1); },      // not a number cell
        [&] { s.setMaxLength(1, 1, -1); },
    };
    for (size_t i = 0; i < calls.size(); ++i) {
        EXPECT_THROW(calls[i](), AutomationError) << "call " << i;
    }
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
