// The chart's start-up appearance and the layout switches that the scales rely on.
#pragma once

#include <cstdint>
#include <optional>

#include "core/chart_refs.h"
#include "core/settings_model.h"
#include "platform/font.h"

namespace zt {

// Start-up configuration: background, width, grid, time-base series and area, the channel
// series and areas, the axes, the cursors and edge lines, the trigger state label and the
// channel colours (taken from the default table into `chSetting`). With `axisFont` every
// vertical axis and the time axis take its name and size for their labels.
void configureChart(const ChartRefs& refs, ChannelSettings& chSetting,
                    const std::optional<Font>& axisFont);

// Every vertical axis and the time axis label their ticks in `font`'s name and size.
void setAxisFont(const ChartRefs& refs, const Font& font);

// Left margin of the areas, the time-base area, the grid and the time axis: 80 pixels while
// one channel's scale is shown (`intChNumber` not 0), 320 while all are. The time axis runs
// from the margin to the chart's width.
void setScaleMargin(const ChartRefs& refs, int16_t intChNumber);

// Every vertical axis gets minimum and maximum 0 and is hidden; each scale back takes its
// channel's default colour.
void resetVerticalAxes(const ChartRefs& refs);

// The edge lines run from the grid's top to its bottom at the grid's left edge.
void placeEdgeLines(const ChartRefs& refs);

}  // namespace zt
