#include "view/panel_design.h"

#include <array>

namespace zt::view {

namespace {

struct Entry {
    std::string_view name;
    int index;
    std::string_view panel;
    DesignRect rect;
};

// Three rows of about 330 twips fit under the page's tabs.
constexpr float kRow0 = 60;
constexpr float kRow1 = 420;
constexpr float kRow2 = 780;

constexpr std::array kDesign{
    // Scale page: vertical scale of one channel, the scale display choice, the optimiser and
    // the time scale.
    Entry{"fraVertScale", -1, "picScale", {60, 0, 4200, 1180}},
    Entry{"lblCh", -1, "picScale", {200, 280, 700, 270}},
    Entry{"lblVertScale", -1, "picScale", {950, 280, 1400, 270}},
    Entry{"cboVertScale", -1, "picScale", {200, 620, 1300, 330}},
    Entry{"lblUnit", -1, "picScale", {1560, 660, 700, 270}},
    Entry{"updZero", -1, "picScale", {2500, 300, 300, 700}},
    Entry{"lblZeroPos", -1, "picScale", {2900, 500, 1200, 270}},
    Entry{"fraScaleChange", -1, "picScale", {4380, 0, 1900, 1180}},
    Entry{"optScale", 0, "picScale", {4520, 330, 1650, 300}},
    Entry{"optScale", 1, "picScale", {4520, 720, 1650, 300}},
    Entry{"cmdOptVert", -1, "picScale", {6420, 120, 2300, 420}},
    Entry{"fraHorzScale", -1, "picScale", {8860, 0, 3100, 1180}},
    Entry{"cboHorzScale", -1, "picScale", {9000, 500, 1400, 330}},
    Entry{"lblHorzUnit", -1, "picScale", {10480, 540, 1000, 270}},
    // Cursor page: the switch and kind on the left, the three times on the right.
    Entry{"chkCursor", -1, "picCursor", {120, kRow0, 2100, 300}},
    Entry{"optCursor", 0, "picCursor", {300, kRow1, 2000, 300}},
    Entry{"optCursor", 1, "picCursor", {300, kRow2, 2000, 300}},
    Entry{"fraCursor", -1, "picCursor", {2500, 0, 5600, 1180}},
    Entry{"lblCursor", 0, "picCursor", {2650, kRow0 + 200, 2700, 250}},
    Entry{"lblCursor", 1, "picCursor", {2650, kRow1 + 150, 2700, 250}},
    Entry{"lblCursor", 2, "picCursor", {2650, kRow2 + 100, 2700, 250}},
    Entry{"lblCursorTime", 0, "picCursor", {5400, kRow0 + 200, 1700, 250}},
    Entry{"lblCursorTime", 1, "picCursor", {5400, kRow1 + 150, 1700, 250}},
    Entry{"lblCursorTime", 2, "picCursor", {5400, kRow2 + 100, 1700, 250}},
    Entry{"lblms", 0, "picCursor", {7200, kRow0 + 200, 400, 240}},
    Entry{"lblms", 1, "picCursor", {7200, kRow1 + 150, 400, 240}},
    Entry{"lblms", 2, "picCursor", {7200, kRow2 + 100, 400, 240}},
    // History page: the graph shown and the graph overwritten, newest left, and the comment.
    Entry{"lblNew", -1, "picHistory", {2300, kRow0, 600, 270}},
    Entry{"lblOld", -1, "picHistory", {4700, kRow0, 600, 270}},
    Entry{"lblCurrentGraph", -1, "picHistory", {120, kRow1, 2150, 270}},
    Entry{"optHistory", 0, "picHistory", {2300, kRow1, 600, 300}},
    Entry{"optHistory", 1, "picHistory", {2900, kRow1, 600, 300}},
    Entry{"optHistory", 2, "picHistory", {3500, kRow1, 600, 300}},
    Entry{"optHistory", 3, "picHistory", {4100, kRow1, 600, 300}},
    Entry{"optHistory", 4, "picHistory", {4700, kRow1, 600, 300}},
    Entry{"lblOtherGraph", -1, "picHistory", {120, kRow2, 2150, 270}},
    Entry{"chkOverWrite", 0, "picHistory", {2300, kRow2, 600, 300}},
    Entry{"chkOverWrite", 1, "picHistory", {2900, kRow2, 600, 300}},
    Entry{"chkOverWrite", 2, "picHistory", {3500, kRow2, 600, 300}},
    Entry{"chkOverWrite", 3, "picHistory", {4100, kRow2, 600, 300}},
    Entry{"chkOverWrite", 4, "picHistory", {4700, kRow2, 600, 300}},
    Entry{"lblHistory", 0, "picHistory", {5500, kRow1, 1100, 300}},
    Entry{"lblHistValue", 0, "picHistory", {6650, kRow1, 400, 270}},
    Entry{"lblHistoryCount", 0, "picHistory", {7100, kRow1, 1680, 300}},
    Entry{"lblHistory", 1, "picHistory", {5500, kRow2, 1100, 300}},
    Entry{"lblHistValue", 1, "picHistory", {6650, kRow2, 400, 270}},
    Entry{"lblHistoryCount", 1, "picHistory", {7100, kRow2, 1680, 300}},
    Entry{"lblComment", -1, "picHistory", {9000, kRow0, 1500, 300}},
    Entry{"txtComment", -1, "picHistory", {9000, kRow1, 3200, 340}},
};

}  // namespace

std::optional<DesignPlace> designPlace(std::string_view name, int index) {
    for (const Entry& e : kDesign) {
        if (e.name == name && e.index == index) return DesignPlace{e.panel, e.rect};
    }
    return std::nullopt;
}

}  // namespace zt::view
