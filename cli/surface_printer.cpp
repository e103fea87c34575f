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

}  // namespace

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
    out << "\nOperation panel:\n";
    printTabs(s.tbsGraphOp, out);
}

void printSettingSheets(const ztGraphControl& control, std::ostream& out) {
    const GraphSurface& s = control.surface();
    for (const ui::SpreadSheet* sheet : {&s.sprChannel, &s.sprTrigger, &s.sprSampling})
        out << "\n" << sheet->render();
    if (s.lblHighSampItem.Visible) out << "\n" << s.lblHighSampItem.Caption << "\n";
}

}  // namespace zt::cli
