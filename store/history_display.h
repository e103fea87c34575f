// The history controls of the operation panel: the option row that picks a history graph, the
// check boxes that lay one history graph over the display, the "previous graph" labels and the
// comment box. Drawing a slot belongs to the plotting subsystem and is reached through hooks.
#pragma once

#include <functional>

#include "core/graph_state.h"
#include "core/graph_surface.h"
#include "core/host_services.h"
#include "store/new_graph.h"

namespace zt {

// Longest comment, in bytes of the host's ANSI code page.
inline constexpr std::size_t kCommentBytes = 128;

struct HistoryHooks {
    // Draws history slot 0-5 as the displayed graph (kind 0) or the overlay graph (kind 1).
    std::function<void(int slot, int kind)> drawSlot;
    // Empties the overlay series.
    std::function<void()> clearOverlay;
    // Redraws the readouts of the time cursors.
    std::function<void()> redrawCursorReadouts;
};

class HistoryDisplay {
  public:
    HistoryDisplay(GraphState& state, GraphSurface& surface, HostServices& host, int codePage)
        : state_(state), surface_(surface), host_(host), codePage_(codePage) {}
    HistoryDisplay(const HistoryDisplay&) = delete;
    HistoryDisplay& operator=(const HistoryDisplay&) = delete;

    HistoryHooks& hooks() { return hooks_; }
    // Connects the handlers to the option buttons, check boxes and comment box.
    void connect();

    void optHistory_Click(int index);
    void chkOverWrite_Click(int index);
    void txtComment_Change();
    void txtComment_GotFocus();

    // "previous graph" labels: the displayed slot counted back from the newest, or "---".
    void refreshLabels();
    // Comment box: the displayed slot's comment, or empty, disabled and grey.
    void refreshCommentBox();
    void refresh() {
        refreshLabels();
        refreshCommentBox();
    }
    // The display after a finished graph went through the new-graph entry.
    void afterNewGraph(NewGraphOutcome outcome);
    // Tool tips of the overwrite boxes: the time stamp (comment) of each history slot.
    void refreshToolTips();
    // After a file or project block was loaded: restores the selection, the overlay box of the
    // lowest set bit and the labels and comment box.
    void applyLoadedState();

  private:
    int historyMax() const;

    GraphState& state_;
    GraphSurface& surface_;
    HostServices& host_;
    int codePage_;
    HistoryHooks hooks_;
    bool restoring_ = false;  // the comment box is being given back its stored text
};

}  // namespace zt
