#include "cli/display_actions.h"

#include <cmath>
#include <iomanip>
#include <vector>

#include "cli/arguments.h"
#include "config/sheet_rows.h"
#include "control/graph_control_interface.h"

namespace zt::cli {

namespace {

std::optional<double> fraction(const std::string& text) {
    try {
        std::size_t used = 0;
        const double v = std::stod(text, &used);
        if (used != text.size() || !(v >= 0 && v <= 1)) return std::nullopt;
        return v;
    } catch (...) {
        return std::nullopt;
    }
}

std::string notUsable(const std::string& option, const std::string& what) {
    return option + ": " + what + " is not usable now";
}

// Drags a cursor's handle: presses the left button on the cursor line, moves to the target
// and lets go there.
void dragCursor(ztGraphControl& control, int kind, bool cursorA, double to) {
    const ChartRefs& r = control.chartRefs();
    chart::ChartRoot& root = control.chartRoot();
    const GRAPHINFO& info = control.state().graphInfo;
    const CURSORSTATE& cs = info.udtCursorState;
    float fromX = 0, fromY = 200, toX = 0, toY = 200;
    if (kind == 1) {
        const chart::Cursor& cursor = cursorA ? *r.cursorA : *r.cursorB;
        const double width = static_cast<double>(r.grid->Right) - r.grid->Left;
        const int32_t at = cursor.pixelX();
        fromX = static_cast<float>(
            at != chart::Cursor::kOffGraph
                ? at
                : r.grid->Left + (cursorA ? cs.sngVertCursorApos : cs.sngVertCursorBpos) * width);
        toX = static_cast<float>(r.grid->Left + to * width);
        fromY = toY = static_cast<float>((r.grid->Top + r.grid->Bottom) / 2);
    } else {
        const double height = static_cast<double>(r.grid->Bottom) - 20;
        fromX = toX = static_cast<float>((r.grid->Left + r.grid->Right) / 2);
        fromY = static_cast<float>(20 + (cursorA ? cs.sngHorzCursorApos : cs.sngHorzCursorBpos) *
                                            height);
        toY = static_cast<float>(20 + to * height);
    }
    // The chart reports the mouse in twips.
    const auto tx = static_cast<float>(control.environment().twipsPerPixelX);
    const auto ty = static_cast<float>(control.environment().twipsPerPixelY);
    root.MouseDown.raise(1, 0, fromX * tx, fromY * ty);
    root.MouseMove.raise(1, 0, (fromX + toX) / 2 * tx, (fromY + toY) / 2 * ty);
    root.MouseMove.raise(1, 0, toX * tx, toY * ty);
    root.MouseUp.raise(1, 0, toX * tx, toY * ty);
}

}  // namespace

bool isDisplayFlag(const std::string& option) {
    return option == "--optimize";
}

std::optional<std::string> parseDisplayOption(const std::string& option, const std::string* value,
                                              DisplayActions& a) {
    if (option == "--optimize") {
        a.optimize = true;
        return std::string();
    }
    if (option != "--hscale" && option != "--scroll" && option != "--scale" &&
        option != "--cursors" && option != "--scheme")
        return std::nullopt;
    if (!value) return option + " needs a value";
    const std::string& v = *value;
    if (option == "--hscale") {
        a.horzScale = v;
    } else if (option == "--scroll") {
        const auto n = wholeNumberArg(v, 0, 32767);
        if (!n) return std::string("--scroll takes a position from 0 to 32767");
        a.scroll = *n;
    } else if (option == "--scale") {
        const auto colon = v.find(':');
        const auto ch =
            colon == std::string::npos ? std::nullopt : wholeNumberArg(v.substr(0, colon), 1, 8);
        if (!ch || colon + 1 >= v.size()) return std::string("--scale takes CH:VALUE, CH 1 to 8");
        a.scaleChannel = *ch;
        a.scaleText = v.substr(colon + 1);
    } else if (option == "--cursors") {
        const auto colon = v.find(':');
        const auto comma = v.find(',');
        const std::string kind = v.substr(0, colon);
        std::optional<double> fa, fb;
        if (colon != std::string::npos && comma != std::string::npos && comma > colon) {
            fa = fraction(v.substr(colon + 1, comma - colon - 1));
            fb = fraction(v.substr(comma + 1));
        }
        if ((kind != "time" && kind != "value") || !fa || !fb)
            return std::string("--cursors takes time:A,B or value:A,B with fractions 0 to 1");
        a.cursorKind = kind == "time" ? 1 : 2;
        a.cursorA = *fa;
        a.cursorB = *fb;
    } else {
        if (v != "light" && v != "dark") return std::string("--scheme takes light or dark");
        a.scheme = v == "light" ? 1 : 0;
    }
    return std::string();
}

std::optional<std::string> performDisplayActions(ztGraphControl& control, const DisplayActions& a) {
    GraphSurface& s = control.surface();
    if (a.horzScale) {
        if (!s.cboHorzScale.enter(*a.horzScale)) return notUsable("--hscale", "the ms/Div box");
        s.cboHorzScale.pressKey(ui::kKeyEnter);
    }
    if (a.scroll && !s.hsbGraph.dragTo(*a.scroll))
        return notUsable("--scroll", "the scroll bar (the graph fits in ten divisions)");
    if (a.optimize && !s.cmdOptVert.click())
        return notUsable("--optimize", "\"" + s.cmdOptVert.Caption + "\"");
    if (a.scaleChannel) {
        if (!s.optScale[0].click()) return notUsable("--scale", "the scale display option");
        s.sprChannel.clickCell(*a.scaleChannel, kRowName);
        if (!s.cboVertScale.enter(a.scaleText))
            return notUsable("--scale",
                             "the scale box of channel " + std::to_string(*a.scaleChannel));
        s.cboVertScale.pressKey(ui::kKeyEnter);
    }
    if (a.cursorKind != 0) {
        if (!s.chkCursor.click()) return notUsable("--cursors", "the cursor display");
        if (a.cursorKind == 2) s.optCursor[1].click();
        if (control.state().graphInfo.udtCursorState.intCursorState != a.cursorKind)
            return notUsable("--cursors", "the cursor display");
        dragCursor(control, a.cursorKind, true, a.cursorA);
        dragCursor(control, a.cursorKind, false, a.cursorB);
    }
    if (a.scheme) {
        std::vector<DispatchValue> args{*a.scheme};
        dispatch(control, dispIdOf("SetGraphColor"), DispatchKind::Method, args);
    }
    return std::nullopt;
}

void printCursorReadouts(ztGraphControl& control, std::ostream& out) {
    const int16_t kind = control.state().graphInfo.udtCursorState.intCursorState;
    if (kind == 0) return;
    const GraphSurface& s = control.surface();
    const ui::SpreadSheet& sheet = s.sprChannel;
    constexpr int kWidth = 14;
    out << "Cursors:  " << (kind == 1 ? s.optCursor[0].Caption : s.optCursor[1].Caption) << "\n"
        << "      ";
    for (int r = kFirstReadoutRow; r <= kLastReadoutRow; ++r)
        out << std::right << std::setw(kWidth) << sheet.text(0, r);
    out << "\n";
    for (int c = 1; c <= kChannelCount; ++c) {
        if (!control.settingSheets().channelIsSet(c)) continue;
        out << "  " << std::left << std::setw(4) << sheet.text(c, 0) << std::right;
        for (int r = kFirstReadoutRow; r <= kLastReadoutRow; ++r)
            out << std::setw(kWidth) << sheet.text(c, r);
        out << "\n";
    }
    for (int i = 0; i < 3; ++i) {
        out << "  " << s.lblCursor[i].Caption << ": " << s.lblCursorTime[i].Caption << " "
            << s.lblms[i].Caption << "\n";
    }
}

}  // namespace zt::cli
