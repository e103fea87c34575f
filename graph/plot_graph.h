// Drawing of a stored graph into the chart: the displayed graph (kind 0) and the overlay graph
// (kind 1, grey, under the displayed one), the channel labels, the trigger mark and clearing.
#pragma once

#include <cstdint>
#include <vector>

#include "core/chart_refs.h"
#include "core/graph_state.h"
#include "core/plot_inputs.h"

namespace zt {

inline constexpr int kDisplayedGraph = 0;
inline constexpr int kOverlayGraph = 1;

// Draws history slot `slot` (0-5) as graph kind `kind`: rebuilds the channel arrays of
// `state.sampData`, fills the series of the channels in use, the time-base series (kind 0),
// places the channel labels and shows or hides the trigger mark. A slot or kind out of range,
// or released chart references, draw nothing.
void drawGraph(const ChartRefs& refs, GraphState& state, const PlotInputs& inputs, int slot,
               int kind);

// Draws records `first` … `last` - 1 of history slot 0, just added by a sampling reply, at the
// end of the displayed graph: only those records are converted and drawn, so a run delivered
// in small replies never redraws the whole graph. The time-base series follows the channel
// series (from `first` 0 on, a new sweep, it holds only the new sweep's points), and the
// channel labels and the trigger mark are placed again.
void drawNewRecords(const ChartRefs& refs, GraphState& state, const PlotInputs& inputs, int first,
                    int last);

// Shows each channel's label one division per channel number into the visible time span.
void placeChannelLabels(const ChartRefs& refs, const GraphState& state, const PlotInputs& inputs,
                        int kind);

// Binary search over channel 1's sample times for an index whose time lies in [from, to];
// 0 when the search finds none. Only the first `count` times are searched (a graph still
// being sampled).
int32_t findSampleInTimeRange(const std::vector<double>& times, double from, double to,
                              int32_t count = kGraphRecords);

// Empties every channel series and the time-base series, the comment of slot 0, and hides the
// trigger mark.
void clearDisplayedGraph(const ChartRefs& refs, GraphState& state);

// The same, and every record of every history slot becomes all zeros.
void clearAllGraphs(const ChartRefs& refs, GraphState& state);

}  // namespace zt
