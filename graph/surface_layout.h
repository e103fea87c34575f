// Placement and captions of the component's surface: the start-up layout, the operation
// panel's tab switching, the sheet tab switching and the rules applied on every resize.
#pragma once

#include "core/graph_surface.h"
#include "core/host_services.h"
#include "platform/host_locale.h"

namespace zt {

// Top of the chart, twips.
inline constexpr float kChartTop = 3250;
// Height of the operation panel's tab strip, twips.
inline constexpr float kOperationPanelHeight = 1800;

// Places and captions the run buttons (the Start button starts disabled).
void placeRunButtons(GraphSurface& s, HostServices& host);
// Empties, disables and captions the scale controls.
void setUpScaleControls(GraphSurface& s, HostServices& host);
// Captions the cursor controls and selects their start state.
void setUpCursorControls(GraphSurface& s, HostServices& host);
// Builds the sheet tabs "CH" and "Trigger/Sampling".
void buildSheetTabs(GraphSurface& s, HostServices& host);
// Sizes and captions the cursor, history and comment panels, builds the operation panel's
// tabs and sets the tab order.
void buildOperationPanel(GraphSurface& s, HostServices& host, int historyMax);

// Shows the panel of the operation panel's selected tab and moves the others out of sight.
void showSelectedPanel(GraphSurface& s);
// Shows the sheet(s) of the selected sheet tab and hides the others.
void showSelectedSheets(GraphSurface& s);

// Lays the surface out for the control's inner size (already at least 7500 x 7500).
void resizeSurface(GraphSurface& s, float innerWidth, float innerHeight,
                   const HostEnvironment& env);

}  // namespace zt
