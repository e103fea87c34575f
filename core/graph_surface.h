// The child controls placed on the component, as its design holds them, and the registry that
// finds them by name and index. The surface only holds controls; what they show and do is set
// by the subsystems that own them.
#pragma once

#include "platform/ui/check_box.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/control_array.h"
#include "platform/ui/option_button.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/spread_sheet.h"
#include "platform/ui/static_controls.h"
#include "platform/ui/surface.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"
#include "platform/ui/up_down.h"

namespace zt {

// Number of history entries a person can pick (history slots 1 to 5).
inline constexpr int kHistoryButtons = 5;

struct GraphSurface {
    GraphSurface();
    GraphSurface(const GraphSurface&) = delete;
    GraphSurface& operator=(const GraphSurface&) = delete;

    // Run buttons.
    ui::CommandButton cmdStart{"cmdStart"};
    ui::CommandButton cmdStop{"cmdStop"};
    ui::CommandButton cmdClear{"cmdClear"};
    ui::Label lblHighSampItem{"lblHighSampItem"};

    // Setting sheets and their tab strip.
    ui::TabStrip tabSpread{"tabSpread"};
    ui::SpreadSheet sprChannel{"sprChannel", 8, 8};
    ui::SpreadSheet sprTrigger{"sprTrigger", 1, 5};
    ui::SpreadSheet sprSampling{"sprSampling", 1, 4};

    // Operation panel.
    ui::TabStrip tbsGraphOp{"tbsGraphOp"};
    ui::PictureBox picScale{"picScale"};
    ui::PictureBox picCursor{"picCursor"};
    ui::PictureBox picHistory{"picHistory"};

    // Vertical scale.
    ui::Frame fraVertScale{"fraVertScale"};
    ui::ComboBox cboVertScale{"cboVertScale"};
    ui::UpDown updZero{"updZero"};
    ui::Label lblZeroPos{"lblZeroPos"};
    ui::Label lblVertScale{"lblVertScale"};
    ui::Label lblUnit{"lblUnit"};
    ui::Label lblCh{"lblCh"};
    ui::Frame fraScaleChange{"fraScaleChange"};
    ui::ControlArray<ui::OptionButton> optScale{"optScale", 2};
    ui::CommandButton cmdOptVert{"cmdOptVert"};
    ui::CommandButton cmdVertA{"cmdVertA"};
    ui::CommandButton cmdVertB{"cmdVertB"};

    // Horizontal scale.
    ui::Frame fraHorzScale{"fraHorzScale"};
    ui::ComboBox cboHorzScale{"cboHorzScale"};
    ui::HScrollBar hsbGraph{"hsbGraph"};
    ui::Label lblHorzUnit{"lblHorzUnit"};
    ui::CommandButton cmdHorzA{"cmdHorzA"};
    ui::CommandButton cmdHorzB{"cmdHorzB"};

    // Cursors.
    ui::CheckBox chkCursor{"chkCursor"};
    ui::ControlArray<ui::OptionButton> optCursor{"optCursor", 2};
    ui::Frame fraCursor{"fraCursor"};
    ui::ControlArray<ui::Label> lblCursor{"lblCursor", 3};
    ui::ControlArray<ui::Label> lblCursorTime{"lblCursorTime", 3};
    ui::ControlArray<ui::Label> lblms{"lblms", 3};

    // History.
    ui::ControlArray<ui::OptionButton> optHistory{"optHistory", kHistoryButtons};
    ui::ControlArray<ui::CheckBox> chkOverWrite{"chkOverWrite", kHistoryButtons};
    ui::ControlArray<ui::Label> lblHistory{"lblHistory", 2};
    ui::ControlArray<ui::Label> lblHistValue{"lblHistValue", 2};
    ui::ControlArray<ui::Label> lblHistoryCount{"lblHistoryCount", 2};
    ui::Label lblCurrentGraph{"lblCurrentGraph"};
    ui::Label lblOtherGraph{"lblOtherGraph"};
    ui::Label lblNew{"lblNew"};
    ui::Label lblOld{"lblOld"};
    ui::TextBox txtComment{"txtComment"};
    ui::Label lblComment{"lblComment"};

    // Every control above, by name and index.
    ui::Surface registry;
};

}  // namespace zt
