#include "cli/surface_printer.h"

namespace zt::cli {

namespace {

const char* onOff(bool enabled) {
    return enabled ? "enabled" : "disabled";
}

void printButton(const ui::CommandButton& b, std::ostream& out) {
    out << "  [ " << b.Caption << " ]  " << onOff(b.Enabled) << "\n";
}

void printTabs(const ui::TabStrip& strip, std::ostream& out) {
    out << " ";
    for (int i = 1; i <= strip.Tabs.Count(); ++i) {
        const bool selected = strip.SelectedIndex() == i;
        out << " " << (selected ? "<" : " ") << strip.Tabs(i).Caption << (selected ? ">" : " ");
    }
    out << "\n";
}

std::string state(const ui::ControlBase& c) {
    return std::string(onOff(c.Enabled)) + (c.Visible ? "" : ", hidden");
}

void printOption(const ui::OptionButton& b, std::ostream& out) {
    out << "    (" << (b.value() ? "*" : " ") << ") " << b.Caption << "  " << state(b) << "\n";
}

void printCheck(const ui::CheckBox& b, std::ostream& out) {
    out << "    [" << (b.value() == ui::kChecked ? "x" : " ") << "] " << b.Caption << "  "
        << state(b) << "\n";
}

void printCombo(const std::string& caption, const ui::ComboBox& box, std::ostream& out) {
    out << "    " << caption << ": \"" << box.text() << "\"";
    if (box.ListCount() > 0) {
        out << "  list";
        for (int i = 0; i < box.ListCount(); ++i)
            out << (i == 0 ? " " : ", ") << box.List(i);
    }
    out << "  " << state(box) << "\n";
}

void printLabel(const std::string& what, const ui::Label& label, std::ostream& out) {
    out << "    " << what << ": \"" << label.Caption << "\"\n";
}

void printPanelHeader(const ui::TabStrip& strip, int tab, const ui::PictureBox& panel,
                      std::ostream& out) {
    out << "  " << strip.Tabs(tab).Caption << " panel ("
        << (strip.SelectedIndex() == tab ? "shown" : "out of sight") << ", " << onOff(panel.Enabled)
        << ")\n";
}

}  // namespace

void printOperationPanels(const ztGraphControl& control, std::ostream& out) {
    const GraphSurface& s = control.surface();
    const GRAPHINFO& info = control.state().graphInfo;
    out << "\nOperation panel:\n";
    printTabs(s.tbsGraphOp, out);
    printPanelHeader(s.tbsGraphOp, 1, s.picScale, out);
    out << "    " << s.fraScaleChange.Caption << ":\n";
    printOption(s.optScale[0], out);
    printOption(s.optScale[1], out);
    out << "    " << s.fraVertScale.Caption << ":\n";
    printCombo("  scale", s.cboVertScale, out);
    out << "      zero position: " << s.lblZeroPos.Caption << "  spin " << state(s.updZero) << "\n";
    printLabel("  channel", s.lblCh, out);
    printLabel("  unit", s.lblUnit, out);
    printLabel("  scale per division", s.lblVertScale, out);
    printButton(s.cmdOptVert, out);
    out << "    " << s.fraHorzScale.Caption << ":\n";
    printCombo("  " + s.lblHorzUnit.Caption, s.cboHorzScale, out);
    out << "      scroll position " << s.hsbGraph.value() << " of 0 to " << s.hsbGraph.Max() << "  "
        << state(s.hsbGraph) << "\n";

    printPanelHeader(s.tbsGraphOp, 2, s.picCursor, out);
    printCheck(s.chkCursor, out);
    printOption(s.optCursor[0], out);
    printOption(s.optCursor[1], out);
    for (int i = 0; i < 3; ++i) {
        out << "    " << s.lblCursor[i].Caption << ": " << s.lblCursorTime[i].Caption << " "
            << s.lblms[i].Caption << "\n";
    }
    out << "    cursor state " << info.udtCursorState.intCursorState << "\n";

    printPanelHeader(s.tbsGraphOp, 3, s.picHistory, out);
    printLabel(s.lblCurrentGraph.Caption, s.lblHistValue[0], out);
    printLabel(s.lblOtherGraph.Caption, s.lblHistValue[1], out);
    for (const ui::OptionButton& b : s.optHistory)
        printOption(b, out);
    for (const ui::CheckBox& b : s.chkOverWrite)
        printCheck(b, out);
    out << "    " << s.lblComment.Caption << ": \"" << s.txtComment.text() << "\"  "
        << state(s.txtComment) << "\n";
}

void printControl(ztGraphControl& control, std::ostream& out) {
    const GraphSurface& s = control.surface();
    out << control.CaptionU() << "  (" << control.WidthU() << " x " << control.HeightU()
        << " twips)\n";
    out << "Run state: " << control.runState() << "   Status: " << control.StatusU() << "\n\n";
    out << "Run buttons:\n";
    printButton(s.cmdStart, out);
    printButton(s.cmdStop, out);
    printButton(s.cmdClear, out);
    out << "\nSheet tabs:\n";
    printTabs(s.tabSpread, out);
    printOperationPanels(control, out);
}

void printSettingSheets(const ztGraphControl& control, std::ostream& out) {
    const GraphSurface& s = control.surface();
    for (const ui::SpreadSheet* sheet : {&s.sprChannel, &s.sprTrigger, &s.sprSampling})
        out << "\n" << sheet->render();
    if (s.lblHighSampItem.Visible) out << "\n" << s.lblHighSampItem.Caption << "\n";
}

}  // namespace zt::cli
