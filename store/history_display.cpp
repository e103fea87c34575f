#include "store/history_display.h"

#include <algorithm>
#include <string>

#include "platform/text/code_page.h"

namespace zt {

namespace {

constexpr int kDisplayed = 0;
constexpr int kOverlay = 1;

template <typename F, typename... A>
void callHook(const F& hook, A... args) {
    if (hook) hook(args...);
}

}  // namespace

int HistoryDisplay::historyMax() const {
    return std::clamp<int>(state_.version.lngHistoryMax, 0,
                           std::min(kHistorySlots - 1, surface_.optHistory.size()));
}

void HistoryDisplay::connect() {
    for (auto& opt : surface_.optHistory) {
        const int index = opt.Index();
        opt.Click.connect([this, index] { optHistory_Click(index); });
    }
    for (auto& box : surface_.chkOverWrite) {
        const int index = box.Index();
        box.Click.connect([this, index] { chkOverWrite_Click(index); });
    }
    surface_.txtComment.Change.connect([this] { txtComment_Change(); });
    surface_.txtComment.GotFocus.connect([this] { txtComment_GotFocus(); });
}

void HistoryDisplay::optHistory_Click(int index) {
    if (index < 0 || index >= kHistorySlots - 1) return;
    HISTORYSTATE& history = state_.graphInfo.udtHistoryState;
    history.lngCurrentGraph = index + 1;
    callHook(hooks_.drawSlot, index + 1, kDisplayed);

    if (history.lngOverWriteState >= 1) {
        int overlaid = 0;
        for (int i = 0; i < historyMax(); ++i) {
            if ((history.lngOverWriteState >> i) & 1) {
                overlaid = i + 1;
                break;
            }
        }
        callHook(hooks_.drawSlot, overlaid, kOverlay);
    }
    if (surface_.chkCursor.value() == ui::kChecked &&
        state_.graphInfo.udtCursorState.intCursorState == 1)
        callHook(hooks_.redrawCursorReadouts);

    refresh();
    if (history.lngGraphTotal >= 1) {
        surface_.txtComment.Enabled = true;
        surface_.txtComment.BackColor = ui::kColorWindow;
    }
}

void HistoryDisplay::chkOverWrite_Click(int index) {
    if (index < 0 || index >= kHistorySlots - 1) return;
    HISTORYSTATE& history = state_.graphInfo.udtHistoryState;
    callHook(hooks_.clearOverlay);
    if (surface_.chkOverWrite[index].value() == ui::kChecked) {
        history.lngOverWriteState |= 1 << index;
        for (int i = 0; i < historyMax(); ++i) {
            if (i == index) continue;
            // Unticking raises this handler for the other box, which clears its bit.
            if (surface_.chkOverWrite[i].value() != ui::kUnchecked)
                surface_.chkOverWrite[i].setValue(ui::kUnchecked);
        }
        callHook(hooks_.drawSlot, index + 1, kOverlay);
    } else {
        history.lngOverWriteState &= ~(1 << index);
    }
}

void HistoryDisplay::refreshLabels() {
    const int32_t current = state_.graphInfo.udtHistoryState.lngCurrentGraph;
    const std::string caption =
        current < 1 ? host_.text(msg::kNoValue) : std::to_string(current - 1);
    for (auto& label : surface_.lblHistValue)
        label.Caption = caption;
}

void HistoryDisplay::refreshCommentBox() {
    const int32_t current = state_.graphInfo.udtHistoryState.lngCurrentGraph;
    if (current > 0 && current < kHistorySlots) {
        surface_.txtComment.setText(state_.history.strComments[static_cast<std::size_t>(current)]);
        return;
    }
    surface_.txtComment.setText({});
    surface_.txtComment.Enabled = false;
    surface_.txtComment.BackColor = ui::kColorButtonFace;
}

void HistoryDisplay::txtComment_Change() {
    if (restoring_) return;
    const int32_t current = state_.graphInfo.udtHistoryState.lngCurrentGraph;
    // With no history graph selected the box is empty and disabled; nothing is stored.
    if (current < 1 || current >= kHistorySlots) return;
    std::string& stored = state_.history.strComments[static_cast<std::size_t>(current)];
    ui::TextBox& box = surface_.txtComment;
    if (text::ansiByteCount(box.text(), codePage_) <= kCommentBytes) {
        stored = box.text();
        return;
    }
    // Too long: the edit is refused and the caret goes back by what the edit added.
    const int added = static_cast<int>(text::characterCount(box.text())) -
                      static_cast<int>(text::characterCount(stored));
    const int caret = box.SelStart() - added;
    restoring_ = true;
    box.setText(stored);
    restoring_ = false;
    box.setSelStart(std::clamp(caret, 0, static_cast<int>(text::characterCount(stored))));
}

void HistoryDisplay::txtComment_GotFocus() {
    ui::TextBox& box = surface_.txtComment;
    box.setSelStart(0);
    box.setSelLength(static_cast<int>(text::characterCount(box.text())));
}

void HistoryDisplay::afterNewGraph(NewGraphOutcome outcome) {
    switch (outcome) {
        case NewGraphOutcome::Entered:
            refreshCommentBox();
            break;
        case NewGraphOutcome::NotTriggered:
            surface_.optHistory[0].setValue(false);
            surface_.txtComment.setText({});
            surface_.txtComment.Enabled = false;
            surface_.txtComment.BackColor = ui::kColorButtonFace;
            for (auto& label : surface_.lblHistValue)
                label.Caption = host_.text(msg::kNoValue);
            state_.graphInfo.udtHistoryState.lngCurrentGraph = 0;
            break;
        case NewGraphOutcome::NoChannels:
            break;
    }
}

void HistoryDisplay::refreshToolTips() {
    const int max = std::clamp<int>(state_.version.lngHistoryMax, 0, kHistorySlots - 1);
    for (auto& box : surface_.chkOverWrite) {
        const int i = box.Index();
        if (i >= 0 && i < max)
            box.ToolTipText = state_.history.strComments[static_cast<std::size_t>(i + 1)];
    }
}

void HistoryDisplay::applyLoadedState() {
    HISTORYSTATE& history = state_.graphInfo.udtHistoryState;
    // Unticking the boxes left from before must not change the loaded mask.
    const int32_t mask = history.lngOverWriteState;
    for (auto& box : surface_.chkOverWrite)
        if (box.value() != ui::kUnchecked) box.setValue(ui::kUnchecked);
    history.lngOverWriteState = mask;
    for (auto& opt : surface_.optHistory)
        opt.setValue(false);

    const int32_t current = history.lngCurrentGraph;
    if (current >= 1 && current < kHistorySlots && surface_.optHistory.contains(current - 1)) {
        surface_.optHistory[current - 1].setValue(true);
        for (int i = 0; i < historyMax(); ++i) {
            if ((mask >> i) & 1) {
                surface_.chkOverWrite[i].setValue(ui::kChecked);
                break;
            }
        }
    }
    refresh();
}

}  // namespace zt
