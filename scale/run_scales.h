// The scales a new graph starts with and how they set the chart's axes: each channel's value
// per division and zero position, the time per division and the scroll position.
#pragma once

#include <cstdint>

#include "core/chart_refs.h"
#include "core/graph_state.h"
#include "core/plot_inputs.h"

namespace zt {

// Scale of a channel that has just got its item: an analog channel one tenth of the item's
// full-scale value with its zero at the bottom; a digital channel 2, its band stacked under
// the band of the channel before it (channel 5 at division 3 ... channel 8 at division 0) so
// the on/off traces never overlap.
VERTSCALE defaultVertScale(int channel, int32_t fullScale);

// Axis range of every channel in use: an analog channel from -zero x scale to
// (10 - zero) x scale; a digital channel's band lies half a division above its zero line.
// Axes of channels not in use are hidden.
void applyVertScales(const ChartRefs& refs, const GRAPHINFO& info, const PlotInputs& inputs);

// Time scale bounds: the whole recording in ten divisions at most, ten samples per division at
// least (swapped when the recording is shorter than that).
struct HorzScaleBounds {
    double lower = 0;
    double upper = 0;
};
HorzScaleBounds horzScaleBounds(const SAMPSETTING& setting);

// A new graph shows the whole recording from its start.
void resetHorzScale(HORZSCALE& scale, const SAMPSETTING& setting);

// The time axis shows ten divisions from the scroll position.
void applyTimeAxis(const ChartRefs& refs, const HORZSCALE& scale);

}  // namespace zt
