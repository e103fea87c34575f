// Text dump of a spreadsheet as a person sees it, for the command-line tool and for tests.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/ui/spread_sheet.h"

namespace zt::ui {

namespace {

bool looksWhite(int32_t color) {
    return color == kColorWhite || color == kColorWindow;
}

std::string colorText(int32_t color) {
    char buf[16];
    // System colours keep their high bit; plain colours are six hex digits, BBGGRR.
    if (color < 0 || color > 0xFFFFFF) {
        std::snprintf(buf, sizeof buf, "%08X", static_cast<unsigned>(color));
    } else {
        std::snprintf(buf, sizeof buf, "%06X", static_cast<unsigned>(color));
    }
    return buf;
}

// Line breaks and tabs inside a cell would break the table.
std::string flat(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return text;
}

struct Entry {
    std::string text;
    HAlign align = HAlign::Left;
};

std::string pad(const Entry& e, size_t width) {
    const size_t gap = width - std::min(width, e.text.size());
    switch (e.align) {
        case HAlign::Right:
            return std::string(gap, ' ') + e.text;
        case HAlign::Center:
            return std::string(gap / 2, ' ') + e.text + std::string(gap - gap / 2, ' ');
        case HAlign::General:
        case HAlign::Left:
            break;
    }
    return e.text + std::string(gap, ' ');
}

std::string trimRight(std::string s) {
    s.erase(s.find_last_not_of(' ') + 1);
    return s;
}

}  // namespace

std::string SpreadSheet::render() const {
    std::string out = Name() + " " + std::to_string(maxCols_) + "x" + std::to_string(maxRows_);
    if (!Visible) out += ", hidden";
    if (!Enabled) out += ", disabled";
    out += "\n";

    // A dump shows at most kMaxRangeCells cells; further rows are summed up in one line.
    const int64_t perRow = int64_t{maxCols_} + 1;
    const int shownRows = static_cast<int>(std::min<int64_t>(maxRows_, kMaxRangeCells / perRow));

    std::vector<std::vector<Entry>> table;
    for (int r = 0; r <= shownRows; ++r) {
        std::vector<Entry> line;
        for (int c = 0; c <= maxCols_; ++c) {
            const Cell& cell = cellAt(c, r);
            Entry e{flat(text(c, r)), cell.hAlign};
            if (c == 0 || r == 0) {
                if (e.align == HAlign::General) e.align = c == 0 ? HAlign::Left : HAlign::Center;
                line.push_back(std::move(e));
                continue;
            }
            if (e.align == HAlign::General) {
                e.align =
                    cell.type == CellType::Number && cell.number ? HAlign::Right : HAlign::Left;
            }
            if (cell.locked) e.text = "[" + e.text + "]";
            if (!looksWhite(cell.backColor)) e.text += " {" + colorText(cell.backColor) + "}";
            line.push_back(std::move(e));
        }
        table.push_back(std::move(line));
    }

    std::vector<size_t> widths(static_cast<size_t>(maxCols_) + 1, 0);
    for (const auto& line : table) {
        for (size_t c = 0; c < line.size(); ++c)
            widths[c] = std::max(widths[c], line[c].text.size());
    }

    for (size_t r = 0; r < table.size(); ++r) {
        std::string text;
        for (size_t c = 0; c < table[r].size(); ++c) {
            if (c > 0) text += " | ";
            text += pad(table[r][c], widths[c]);
        }
        out += trimRight(text) + "\n";
        if (r == 0) {
            std::string rule;
            for (size_t c = 0; c < widths.size(); ++c) {
                if (c > 0) rule += "-+-";
                rule += std::string(widths[c], '-');
            }
            out += rule + "\n";
        }
    }
    if (shownRows < maxRows_) {
        out += "... " + std::to_string(maxRows_ - shownRows) + " more rows\n";
    }
    return out;
}

}  // namespace zt::ui
