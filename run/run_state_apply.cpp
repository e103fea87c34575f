#include "run/run_state_apply.h"

namespace zt {

void applyRunStateView(GraphSurface& s, const RunStateView& view, const RunHooks& hooks) {
    s.cmdStart.Enabled = view.startEnabled;
    s.cmdStop.Enabled = view.stopEnabled;
    s.cmdClear.Enabled = view.clearEnabled;
    callHook(hooks.lockSheets, view.sheetsLocked);

    for (auto& opt : s.optScale)
        opt.Enabled = view.scaleOptionsEnabled;
    s.chkCursor.Enabled = view.cursorCheckEnabled;
    for (auto& opt : s.optCursor)
        opt.Enabled = view.cursorOptionsEnabled;
    s.cboHorzScale.Enabled = view.horzScaleEnabled;
    s.hsbGraph.Enabled = view.scrollBarEnabled;
    s.cboVertScale.Enabled = view.vertScaleEnabled;
    s.updZero.Enabled = view.zeroEnabled;

    for (auto& opt : s.optHistory) {
        opt.Enabled = opt.Index() < view.historyEnabledCount;
        if (view.historyCleared) opt.setValue(false);
    }
    for (auto& box : s.chkOverWrite) {
        box.Enabled = box.Index() < view.historyEnabledCount;
        if (view.historyCleared && box.value() != ui::kUnchecked) box.setValue(ui::kUnchecked);
    }
    if (view.historyLabelsEmptied)
        for (auto& label : s.lblHistValue)
            label.Caption.clear();
    s.txtComment.Enabled = view.commentEnabled;
    s.txtComment.BackColor = view.commentBackColor;
    s.cmdOptVert.Enabled = view.optimizeEnabled;

    if (view.statusLabel == StatusLabelEffect::Hidden) callHook(hooks.hideStatusLabel);
    if (view.refreshHistory) callHook(hooks.refreshHistoryDisplay);
}

}  // namespace zt
