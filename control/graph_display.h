// The graph display's controls around the chart: the scale panel (vertical scale and zero
// position of the selected channel, the scale display option, the time scale and the scroll
// bar, the optimiser), the cursors with their handles and readouts, the colour schemes and
// the layout of the chart on a resize. Every person's action on these controls enters here.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "config/setting_sheets.h"
#include "core/chart_refs.h"
#include "core/graph_state.h"
#include "core/graph_surface.h"
#include "core/host_services.h"
#include "core/plot_inputs.h"
#include "platform/host_locale.h"
#include "scale/scale_display.h"

namespace zt {

class GraphDisplay {
  public:
    GraphDisplay(GraphState& state, GraphSurface& surface, ChartRefs& chart, SettingSheets& sheets,
                 HostServices& host, const HostEnvironment& env,
                 std::function<PlotInputs()> plotInputs);
    GraphDisplay(const GraphDisplay&) = delete;
    GraphDisplay& operator=(const GraphDisplay&) = delete;

    // Connects the handlers of the scale and cursor controls and of the chart's mouse.
    void connect();

    // Vertical scale.
    // The channel sheet's current channel (0 none) is handed to the scale panel.
    void currentChannelChanged(int channel);
    // Re-reads the selected channel and redraws its list, axes and labels.
    void refreshScaleDisplay();
    // The axes of the channels in use, the scale columns and the scale labels.
    void redrawVertScales();
    // Rebuilds the scale list of the selected channel and shows its scale in the box.
    void rebuildVertScaleList();

    // Time scale.
    void rebuildHorzScaleList();
    // Scroll bar range and enabling for the current scale, and the time axis.
    void configureScrollBar();

    // Cursors: shows the cursors of `kind` (1 time, 2 value) at their stored positions, or
    // turns every cursor off (`on` false).
    void showCursors(int kind, bool on);
    // Refreshes the readouts of the kind shown.
    void refreshReadouts();
    // Cursors again at their stored positions and readouts recomputed (after the chart moved).
    void refreshCursors();

    // A new run: cursor readouts reset.
    void resetForRun();

    // The host's colour scheme: 0 dark, 1 light; any other mode changes nothing.
    void setGraphColor(int32_t mode);

    // The chart's geometry for the control's inner size.
    void layoutChart(float innerWidth, float innerHeight);

  private:
    bool alive() const { return chart_.root != nullptr; }
    bool settingsOrGraph() const;
    bool graphShown() const;
    bool channelInUse(int channel) const;
    int firstChannelInUse() const;
    ChannelTexts unitTexts();
    std::string itemText(int channel, int16_t column);
    bool itemSigned(int channel);
    void enableVertScaleControls();
    // The channel labels of the displayed graph, and of the overlay when one is shown, in the
    // visible time span.
    void placeLabels();

    // Handlers.
    void optScaleClick(int index);
    void takeVertScaleEntry();
    void zeroStep(bool up);
    void takeHorzScaleEntry();
    void scrollChanged();
    void optimizeVertScale();
    void chkCursorClick();
    void optCursorClick(int index);
    // Chart mouse events, positions in twips from the chart's top left corner.
    void mouseDown(int16_t button, int16_t shift, float x, float y);
    void mouseMove(int16_t button, int16_t shift, float x, float y);
    void mouseUp(int16_t button, int16_t shift, float x, float y);
    std::pair<double, double> mousePixels(float x, float y) const;
    // Where the mouse puts the grabbed cursor of the shown kind: the kind, the cursor (0 none),
    // the position as a fraction of the field and the two cursors' distance. `clamp` keeps the
    // mouse inside the plot field first.
    struct CursorDrag {
        int kind = 0;
        int grabbed = 0;
        double fraction = 0;
        double distance = 0;
    };
    CursorDrag cursorDrag(double x, double y, bool clamp) const;

    // Cursors.
    void setCursorPosition(double fraction, int kind, int which);
    void timeReadouts();
    void valueReadouts();
    void clearReadouts();
    double fieldWidth() const;
    double fieldHeight() const;

    GraphState& state_;
    GraphSurface& s_;
    ChartRefs& chart_;
    SettingSheets& sheets_;
    HostServices& host_;
    const HostEnvironment& env_;
    std::function<PlotInputs()> plotInputs_;

    // Drag state: grabbed time and value cursor (0 none, 1 A, 2 B) and the Shift flag.
    int grabbedTime_ = 0;
    int grabbedValue_ = 0;
    bool both_ = false;
    // Chart extent on the surface, twips.
    float chartWidth_ = 0;
    float chartHeight_ = 0;
};

}  // namespace zt
