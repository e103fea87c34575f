// Cursors A and B on the chart: time cursors (vertical lines that stand on data points) and
// value cursors (horizontal lines), their handles, the mouse drag, and the readouts in the
// channel sheet and the cursor panel.
#include <algorithm>
#include <cmath>
#include <limits>

#include "config/item_attribute.h"
#include "config/sheet_rows.h"
#include "control/graph_display.h"
#include "graph/surface_layout.h"
#include "platform/text/format_pattern.h"
#include "platform/text/number_text.h"
#include "platform/text/rounding.h"
#include "run/run_states.h"

namespace zt {

namespace {

constexpr int kTimeCursors = 1;
constexpr int kValueCursors = 2;
constexpr int kCursorA = 1;
constexpr int kCursorB = 2;
constexpr double kFieldTop = 20;
constexpr double kGrabReach = 10;
constexpr int16_t kLeftButton = 1;
constexpr int16_t kShiftKey = 1;
constexpr int kRowCursorA = kFirstReadoutRow;
constexpr int kRowCursorB = kFirstReadoutRow + 1;
constexpr int kRowEffective = kFirstReadoutRow + 2;
constexpr int kRowMax = kFirstReadoutRow + 3;
constexpr int kRowMin = kFirstReadoutRow + 4;

// Number pattern of a channel's readouts by its decimal places.
std::string readoutPattern(int16_t decimals) {
    switch (decimals) {
        case 1:
            return "######0.0";
        case 2:
            return "######0.00";
        case 3:
            return "######0.000";
        default:
            return "######0";
    }
}

bool inGraph(int index) {
    return index >= 0 && index < kGraphRecords;
}

}  // namespace

double GraphDisplay::fieldWidth() const {
    return static_cast<double>(chart_.grid->Right) - chart_.grid->Left;
}

double GraphDisplay::fieldHeight() const {
    return static_cast<double>(chart_.grid->Bottom) - kFieldTop;
}

void GraphDisplay::setCursorPosition(double fraction, int kind, int which) {
    if (!alive() || chart_.timeBase->pointCount() == 0) return;
    if ((kind != kTimeCursors && kind != kValueCursors) || (which != kCursorA && which != kCursorB))
        return;
    CURSORSTATE& cs = state_.graphInfo.udtCursorState;
    const double tppX = env_.twipsPerPixelX > 0 ? env_.twipsPerPixelX : 15;
    const double tppY = env_.twipsPerPixelY > 0 ? env_.twipsPerPixelY : 15;
    if (!std::isfinite(fraction)) fraction = 0;
    if (kind == kValueCursors) {
        chart::Line& line = which == kCursorA ? *chart_.valueCursorA : *chart_.valueCursorB;
        ui::CommandButton& handle = which == kCursorA ? s_.cmdHorzA : s_.cmdHorzB;
        line.Visible = true;
        handle.Visible = true;
        handle.Enabled = true;
        const double p = fraction * fieldHeight();
        const double fieldTopPx = kChartTop / tppY + kFieldTop;
        handle.Top = static_cast<float>((p + fieldTopPx) * tppY -
                                        (which == kCursorA ? handle.Height : 0.0f));
        const double y = std::clamp(p + kFieldTop, -1e6, 1e6);
        line.Y1 = line.Y2 = static_cast<int32_t>(std::lround(y));
        (which == kCursorA ? cs.sngHorzCursorApos : cs.sngHorzCursorBpos) =
            static_cast<float>(fraction);
        return;
    }
    chart::Cursor& cursor = which == kCursorA ? *chart_.cursorA : *chart_.cursorB;
    ui::CommandButton& handle = which == kCursorA ? s_.cmdVertA : s_.cmdVertB;
    cursor.Visible = true;
    const double x = std::clamp(fraction * fieldWidth() + chart_.grid->Left, -1e6, 1e6);
    cursor.setPixelX(static_cast<double>(std::lround(x)));
    const int32_t at = cursor.pixelX();
    if (at != chart::Cursor::kOffGraph) {
        handle.Visible = true;
        handle.Enabled = true;
        handle.Left = static_cast<float>(at * tppX - (which == kCursorA ? handle.Width : 0.0f));
        handle.Top = kChartTop;
    } else {
        handle.Visible = false;
        handle.Enabled = false;
    }
    (which == kCursorA ? cs.sngVertCursorApos : cs.sngVertCursorBpos) =
        static_cast<float>(fraction);
}

void GraphDisplay::clearReadouts() {
    const std::string none = host_.text(msg::kNoValue);
    for (int c = 1; c <= kChannelCount; ++c)
        for (int r = kFirstReadoutRow; r <= kLastReadoutRow; ++r)
            s_.sprChannel.setText(c, r, none);
    for (ui::Label& label : s_.lblCursorTime)
        label.Caption = none;
}

void GraphDisplay::showCursors(int kind, bool on) {
    if (!alive()) return;
    for (ui::CommandButton* handle : {&s_.cmdVertA, &s_.cmdVertB, &s_.cmdHorzA, &s_.cmdHorzB}) {
        handle->Visible = false;
        handle->Enabled = false;
    }
    CURSORSTATE& cs = state_.graphInfo.udtCursorState;
    if (!on) {
        cs.intCursorState = 0;
        chart_.cursorA->Visible = false;
        chart_.cursorB->Visible = false;
        chart_.valueCursorA->Visible = false;
        chart_.valueCursorB->Visible = false;
        clearReadouts();
        return;
    }
    if (chart_.timeBase->pointCount() == 0) return;
    if (kind == kValueCursors) {
        // The value handles sit at the chart's right edge.
        const float handleLeft = chartWidth_ > 0
                                     ? chartWidth_ - static_cast<float>(20 * env_.twipsPerPixelX)
                                     : static_cast<float>(chart_.root->Width * env_.twipsPerPixelX);
        s_.cmdHorzA.Left = handleLeft;
        s_.cmdHorzB.Left = handleLeft;
        for (chart::Line* line : {chart_.valueCursorA, chart_.valueCursorB}) {
            line->X1 = chart_.grid->Left;
            line->X2 = chart_.root->Width;
            line->Visible = true;
        }
        cs.intCursorState = kValueCursors;
        setCursorPosition(cs.sngHorzCursorApos, kValueCursors, kCursorA);
        setCursorPosition(cs.sngHorzCursorBpos, kValueCursors, kCursorB);
    } else if (kind == kTimeCursors) {
        cs.intCursorState = kTimeCursors;
        chart_.cursorA->Visible = true;
        chart_.cursorB->Visible = true;
        setCursorPosition(cs.sngVertCursorApos, kTimeCursors, kCursorA);
        setCursorPosition(cs.sngVertCursorBpos, kTimeCursors, kCursorB);
    }
}

void GraphDisplay::refreshReadouts() {
    if (!alive()) return;
    const int16_t kind = state_.graphInfo.udtCursorState.intCursorState;
    if (kind == kTimeCursors) timeReadouts();
    if (kind == kValueCursors) valueReadouts();
}

void GraphDisplay::refreshCursors() {
    if (!alive()) return;
    const int16_t kind = state_.graphInfo.udtCursorState.intCursorState;
    if (kind != kTimeCursors && kind != kValueCursors) return;
    showCursors(kind, true);
    refreshReadouts();
}

void GraphDisplay::resetForRun() {
    showCursors(0, false);
}

void GraphDisplay::timeReadouts() {
    chart_.root->Redraw();
    const int iA = chart_.cursorA->pointIndex();
    const int iB = chart_.cursorB->pointIndex();
    const HostLocale& loc = env_.locale;
    ui::SpreadSheet& sheet = s_.sprChannel;
    const std::string none = host_.text(msg::kNoValue);
    for (int c = 1; c <= kChannelCount; ++c) {
        if (!channelInUse(c)) continue;
        const chart::Series& series = chart_.series(c, 0);
        const int n = series.pointCount();
        if (n == 0) continue;
        const bool hasA = inGraph(iA) && iA < n;
        const bool hasB = inGraph(iB) && iB < n;
        const double a = hasA ? series.values()[iA] : 0;
        const double b = hasB ? series.values()[iB] : 0;
        if (!isAnalogChannel(c)) {
            if (hasA) sheet.setText(c, kRowCursorA, a != 0 ? "ON" : "OFF");
            if (hasB) sheet.setText(c, kRowCursorB, b != 0 ? "ON" : "OFF");
            continue;
        }
        const std::string pattern =
            readoutPattern(state_.sampData[static_cast<size_t>(c)].intDecPoint);
        const std::string unit = itemText(c, kAttrUnit);
        const auto shown = [&](double v) { return text::formatNumber(v, pattern, loc) + unit; };
        if (hasA) sheet.setText(c, kRowCursorA, shown(a));
        if (hasB) sheet.setText(c, kRowCursorB, shown(b));
        if (!inGraph(iA) || !inGraph(iB)) continue;
        const double* values = series.values();
        double squares = 0;
        int counted = 0;
        double hi = -std::numeric_limits<double>::infinity();
        double lo = std::numeric_limits<double>::infinity();
        for (int i = iA; i <= iB && i < n; ++i) {
            const double v = values[i];
            if (!std::isfinite(v)) continue;
            squares += v * v;
            ++counted;
            hi = std::max(hi, v);
            lo = std::min(lo, v);
        }
        const bool effective = itemText(c, kAttrEffective) == "1";
        const double rms = counted > 0 ? std::sqrt(squares / counted) : std::sqrt(squares);
        const std::string eff = text::formatNumber(effective ? rms : -1.0, pattern + ";---", loc);
        sheet.setText(c, kRowEffective, effective ? eff + unit : eff);
        sheet.setText(c, kRowMax, counted > 0 ? shown(hi) : none);
        sheet.setText(c, kRowMin, counted > 0 ? shown(lo) : none);
    }
    const std::optional<double> tA = chart_.timeBase->timeAt(iA);
    const std::optional<double> tB = chart_.timeBase->timeAt(iB);
    if (!tA || !tB) return;
    const int64_t msA = static_cast<int64_t>(text::roundHalfEven(*tA));
    const int64_t msB = static_cast<int64_t>(text::roundHalfEven(*tB));
    s_.lblCursorTime[0].Caption = text::integerText(msA);
    s_.lblCursorTime[1].Caption = text::integerText(msB);
    s_.lblCursorTime[2].Caption = text::integerText(msB > msA ? msB - msA : msA - msB);
}

void GraphDisplay::valueReadouts() {
    const CURSORSTATE& cs = state_.graphInfo.udtCursorState;
    for (int c = 1; c <= kAnalogChannels; ++c) {
        if (!channelInUse(c)) continue;
        const VERTSCALE& v = state_.graphInfo.udtVertScale[static_cast<size_t>(c)];
        const double bottom = -v.intZeroPos * v.dblVertScale;
        const double top = (10 - v.intZeroPos) * v.dblVertScale;
        const std::string pattern =
            readoutPattern(state_.sampData[static_cast<size_t>(c)].intDecPoint);
        const std::string unit = itemText(c, kAttrUnit);
        const auto at = [&](float f) {
            const double value = (1.0 - f) * (top - bottom) + bottom;
            return text::formatNumber(value, pattern, env_.locale) + unit;
        };
        s_.sprChannel.setText(c, kRowCursorA, at(cs.sngHorzCursorApos));
        s_.sprChannel.setText(c, kRowCursorB, at(cs.sngHorzCursorBpos));
    }
}

void GraphDisplay::chkCursorClick() {
    if (!alive() || !graphShown()) return;
    const bool checked = s_.chkCursor.value() == ui::kChecked;
    for (ui::OptionButton& option : s_.optCursor)
        option.Enabled = checked;
    if (!checked) {
        showCursors(0, false);
        return;
    }
    showCursors(s_.optCursor[0].value() ? kTimeCursors : kValueCursors, true);
    refreshReadouts();
}

void GraphDisplay::optCursorClick(int index) {
    if (!alive() || s_.chkCursor.value() != ui::kChecked) return;
    showCursors(0, false);
    showCursors(index == 1 ? kValueCursors : kTimeCursors, true);
    refreshReadouts();
}

// The chart reports the mouse in twips; the cursors work in the chart's pixels.
std::pair<double, double> GraphDisplay::mousePixels(float x, float y) const {
    const double tppX = env_.twipsPerPixelX > 0 ? env_.twipsPerPixelX : 15;
    const double tppY = env_.twipsPerPixelY > 0 ? env_.twipsPerPixelY : 15;
    return {x / tppX, y / tppY};
}

void GraphDisplay::mouseDown(int16_t button, int16_t shift, float xTwips, float yTwips) {
    if (!alive() || s_.chkCursor.value() != ui::kChecked || (button & kLeftButton) == 0) return;
    const auto [x, y] = mousePixels(xTwips, yTwips);
    CURSORSTATE& cs = state_.graphInfo.udtCursorState;
    both_ = (shift & kShiftKey) != 0;
    const auto grab = [](double m, double pA, double pB) {
        if (std::fabs(m - pA) - std::fabs(m - pB) >= 0)
            return std::fabs(m - pB) < kGrabReach ? kCursorB : 0;
        return std::fabs(m - pA) < kGrabReach ? kCursorA : 0;
    };
    if (cs.intCursorState == kTimeCursors) {
        const double left = chart_.grid->Left;
        const auto offset = [&](const chart::Cursor& c, float f) {
            const int32_t at = c.pixelX();
            return at != chart::Cursor::kOffGraph ? at - left : f * fieldWidth();
        };
        grabbedTime_ = grab(x - left, offset(*chart_.cursorA, cs.sngVertCursorApos),
                            offset(*chart_.cursorB, cs.sngVertCursorBpos));
        if (grabbedTime_ != 0) s_.registry.mousePointer = ui::MousePointer::SizeWE;
        cs.sngVertDiffPosAB = std::fabs(cs.sngVertCursorApos - cs.sngVertCursorBpos);
    } else if (cs.intCursorState == kValueCursors) {
        const double h = fieldHeight();
        grabbedValue_ = grab(y - kFieldTop, cs.sngHorzCursorApos * h, cs.sngHorzCursorBpos * h);
        if (grabbedValue_ != 0) s_.registry.mousePointer = ui::MousePointer::SizeNS;
        cs.sngHorzDiffPosAB = std::fabs(cs.sngHorzCursorApos - cs.sngHorzCursorBpos);
    }
}

GraphDisplay::CursorDrag GraphDisplay::cursorDrag(double x, double y, bool clamp) const {
    const CURSORSTATE& cs = state_.graphInfo.udtCursorState;
    CursorDrag d;
    if (cs.intCursorState == kTimeCursors) {
        const double px =
            clamp ? std::max<double>(chart_.grid->Left, std::min<double>(x, chart_.grid->Right))
                  : x;
        d = {kTimeCursors, grabbedTime_, (px - chart_.grid->Left) / fieldWidth(),
             cs.sngVertDiffPosAB};
    } else if (cs.intCursorState == kValueCursors) {
        const double py = clamp ? std::max(kFieldTop, std::min<double>(y, chart_.grid->Bottom)) : y;
        d = {kValueCursors, grabbedValue_, (py - kFieldTop) / fieldHeight(), cs.sngHorzDiffPosAB};
    }
    return d;
}

void GraphDisplay::mouseMove(int16_t button, int16_t, float xTwips, float yTwips) {
    if (!alive() || s_.chkCursor.value() != ui::kChecked || (button & kLeftButton) == 0) return;
    const auto [x, y] = mousePixels(xTwips, yTwips);
    const CursorDrag d = cursorDrag(x, y, false);
    if (d.grabbed == 0) return;
    setCursorPosition(d.fraction, d.kind, d.grabbed);
    if (both_)
        setCursorPosition(d.grabbed == kCursorA ? d.fraction + d.distance : d.fraction - d.distance,
                          d.kind, d.grabbed == kCursorA ? kCursorB : kCursorA);
}

void GraphDisplay::mouseUp(int16_t button, int16_t, float xTwips, float yTwips) {
    if (!alive() || s_.chkCursor.value() != ui::kChecked || (button & kLeftButton) == 0) return;
    const auto [x, y] = mousePixels(xTwips, yTwips);
    const CursorDrag d = cursorDrag(x, y, true);
    const int kind = d.kind;
    const int grabbed = d.grabbed;
    const double distance = d.distance;
    double f = d.fraction;
    grabbedTime_ = 0;
    grabbedValue_ = 0;
    s_.registry.mousePointer = ui::MousePointer::Default;
    if (grabbed == 0 || !std::isfinite(f)) return;
    if (both_) {
        f = grabbed == kCursorA ? std::max(0.0, std::min(f, 1 - distance))
                                : std::min(1.0, std::max(f, distance));
        setCursorPosition(f, kind, grabbed);
        setCursorPosition(grabbed == kCursorA ? f + distance : f - distance, kind,
                          grabbed == kCursorA ? kCursorB : kCursorA);
    } else {
        setCursorPosition(f, kind, grabbed);
    }
    refreshReadouts();
}

}  // namespace zt
