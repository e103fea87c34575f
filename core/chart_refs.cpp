#include "core/chart_refs.h"

#include "platform/chart/chart_design.h"

namespace zt {

ChartRefs lookupChartObjects(chart::ChartRoot& root) {
    namespace d = chart::design;
    ChartRefs r;
    r.root = &root;
    for (size_t c = 0; c < 8; ++c)
        r.area[c + 1] = &root.Areas[d::kChannelAreas[c]];
    r.timeBaseArea = &root.Areas[d::kTimeBaseArea];
    for (size_t s = 0; s < 8; ++s)
        r.plotData[s + 1] = &root.PlotDataCollection[d::kPlotSeriesNames[s]];
    for (size_t s = 0; s < 8; ++s)
        r.pulseData[s + 1] = &root.PulseDataCollection[d::kPulseSeriesNames[s]];
    r.timeBase = &root.PlotDataCollection[d::kTimeBaseSeries];
    for (size_t c = 0; c < 8; ++c)
        r.vertAxis[c + 1] = &root.Axes[d::kChannelAxes[c]];
    r.vertAxis[9] = &root.Axes[d::kTimeBaseAxis];
    r.timeAxis = &root.Axes[d::kTimeAxis];
    for (size_t c = 0; c < 8; ++c)
        r.scaleBack[c + 1] = &root.Shapes[d::kScaleBacks[c]];
    r.cursorA = &root.Cursors[d::kCursorA];
    r.cursorB = &root.Cursors[d::kCursorB];
    r.triggerCursor = &root.Cursors[d::kTriggerCursor];
    r.grid = &root.Grids[d::kGrid];
    r.valueCursorA = &root.Lines[d::kValueCursorA];
    r.valueCursorB = &root.Lines[d::kValueCursorB];
    r.edgeLineB = &root.Lines[d::kEdgeLineB];
    r.edgeLineA = &root.Lines[d::kEdgeLineA];
    r.triggerStateLabel = &root.Labels[d::kTriggerStateLabel];
    return r;
}

}  // namespace zt
