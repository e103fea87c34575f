#include "core/graph_surface.h"

namespace zt {

GraphSurface::GraphSurface() {
    for (ui::ControlBase* control : std::initializer_list<ui::ControlBase*>{
             &cmdStart,   &cmdStop,         &cmdClear,      &lblHighSampItem, &tabSpread,
             &sprChannel, &sprTrigger,      &sprSampling,   &tbsGraphOp,      &picScale,
             &picCursor,  &picHistory,      &fraVertScale,  &cboVertScale,    &updZero,
             &lblZeroPos, &lblVertScale,    &lblUnit,       &lblCh,           &fraScaleChange,
             &cmdOptVert, &cmdVertA,        &cmdVertB,      &fraHorzScale,    &cboHorzScale,
             &hsbGraph,   &lblHorzUnit,     &cmdHorzA,      &cmdHorzB,        &chkCursor,
             &fraCursor,  &lblCurrentGraph, &lblOtherGraph, &lblNew,          &lblOld,
             &txtComment, &lblComment}) {
        registry.add(*control);
    }
    registry.add(optScale);
    registry.add(optCursor);
    registry.add(lblCursor);
    registry.add(lblCursorTime);
    registry.add(lblms);
    registry.add(optHistory);
    registry.add(chkOverWrite);
    registry.add(lblHistory);
    registry.add(lblHistValue);
    registry.add(lblHistoryCount);
}

}  // namespace zt
