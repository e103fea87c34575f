// The component's references to the chart's objects. They are taken once, by name, in a fixed
// order, and every later drawing, cursor and scale operation goes through them.
#pragma once

#include <array>

#include "platform/chart/chart_root.h"

namespace zt {

struct ChartRefs {
    chart::ChartRoot* root = nullptr;
    // Index = channel number 1 to 8 (element 0 unused): the strip the channel is drawn in.
    std::array<chart::Area*, 9> area{};
    chart::Area* timeBaseArea = nullptr;
    // Index 1-4: displayed graph of analog channel 1-4; 5-8: their overlay graphs.
    std::array<chart::Series*, 9> plotData{};
    // Index 1-4: displayed graph of digital channel 5-8; 5-8: their overlay graphs.
    std::array<chart::Series*, 9> pulseData{};
    chart::Series* timeBase = nullptr;
    // Index = channel number 1 to 8; index 9 is the time-base series' axis.
    std::array<chart::Axis*, 10> vertAxis{};
    chart::Axis* timeAxis = nullptr;
    // Index = channel number 1 to 8.
    std::array<chart::Shape*, 9> scaleBack{};
    chart::Cursor* cursorA = nullptr;
    chart::Cursor* cursorB = nullptr;
    chart::Cursor* triggerCursor = nullptr;
    chart::Grid* grid = nullptr;
    chart::Line* valueCursorA = nullptr;
    chart::Line* valueCursorB = nullptr;
    chart::Line* edgeLineB = nullptr;
    chart::Line* edgeLineA = nullptr;
    chart::Label* triggerStateLabel = nullptr;

    // The references are held: taken from a chart and not released by Terminate.
    bool held() const { return root != nullptr; }

    // The series of channel 1-8 in graph kind 0 (displayed) or 1 (overlay).
    chart::Series& series(int channel, int kind) const {
        return channel <= 4 ? *plotData[static_cast<size_t>(kind * 4 + channel)]
                            : *pulseData[static_cast<size_t>(kind * 4 + channel - 4)];
    }
};

// Looks every object up by collection and name: areas, time-base area, analog series 1-8,
// digital series 1-8, time-base series, vertical axes 1-8, time-base axis, time axis, scale
// backs 1-8, the three cursors, the grid, the two value cursors, edge lines B and A, the
// trigger state label. A missing object throws (an error of the chart's design).
ChartRefs lookupChartObjects(chart::ChartRoot& root);

}  // namespace zt
