// The request record of a sampling run: built from the settings for the host, and taken back
// with the host's units, decimal places and base values.
#pragma once

#include <array>
#include <cstdint>

#include "core/graph_state.h"
#include "core/settings_model.h"
#include "platform/host_records.h"
#include "platform/zt_common.h"

namespace zt {

// Channels 1 to 8 that are set (element 0 unused).
using ChannelsSet = std::array<bool, kChannelCount + 1>;

// Rebuilds `request` from the settings: counts, items and targets of the set channels, the
// trigger and sampling fields; the host's fields and offsets 84, 92 and 96 are cleared,
// offset 88 is kept.
void buildGraphRequest(GRAPH_REQUEST& request, const SAMPSETTING& setting,
                       const ChannelSettings& channels, const ChannelsSet& set);

// Base value of an analog item as the plot uses it. `model057`: the station's model code has
// 0x057 in its top 12 bits.
int32_t convertedBaseValue(int32_t itemCode, int32_t value, int16_t unit, bool model057,
                           bool directValue);

// Takes the host's completed record back: direct-value flags of the eight channels, units,
// decimal places and converted base values of the four analog channels, offset 42.
void takeGraphRequest(GraphState& state, ztCommon& common, const GRAPH_REQUEST& completed);

}  // namespace zt
