// What the scales show: the scale columns left of the plot (all channels side by side, or the
// selected channel alone) and the scale labels of the scale panel.
#pragma once

#include <array>
#include <string>

#include "core/chart_refs.h"
#include "core/graph_info.h"
#include "core/graph_surface.h"
#include "core/plot_inputs.h"
#include "platform/host_locale.h"

namespace zt {

// Per channel 1 to 8 (element 0 unused): the unit text of the channel's item.
using ChannelTexts = std::array<std::string, 9>;

// Places the scale columns. With one channel selected (`info.intChNumber`), only its scale is
// shown, in the single 80-pixel column. With all channels, analog channel n has column n - 1
// over the whole grid height; a digital channel's band scale takes the first column that no
// analog channel in use holds and where it overlaps no other band's scale, and is left out
// when there is none, so no scale is ever drawn over another. Each column carries its
// channel's unit.
void placeScaleColumns(const ChartRefs& refs, const GRAPHINFO& info, const PlotInputs& inputs,
                       const ChannelTexts& units);

// The scale panel's labels for the selected channel: "CH" and its number, the unit, the scale
// per division and the zero position; empty with no channel selected.
void showScaleLabels(GraphSurface& s, const GRAPHINFO& info, const ChannelTexts& units,
                     const HostLocale& locale);

}  // namespace zt
