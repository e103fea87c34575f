// The component's block in the host's project file: its whole state in one binary record.
// Version "4.00" is written; "1.00" to "4.00" are read and converted.
#pragma once

#include <cstdint>
#include <string>

#include "core/graph_state.h"

namespace zt {

// Bytes of a version 4.00 block.
inline constexpr int64_t kProjectBlockBytes = 2481246;

// Writes the state as a 4.00 block at `position` (the file's first byte is position 1).
// Sets the version record to "4.00" with five history slots. False when the file could not
// be opened, the position is before the file or a write failed.
bool writeProjectBlock(GraphState& state, const std::string& fileName, int64_t position,
                       int codePage);

// Reads a block of any known version at `position` into `state`, converting older versions.
// `wideSamples3` selects double sample arrays for a 3.00 block. False on an unknown version,
// a position outside the file or a block cut short; `state` may then hold part of the block.
bool readProjectBlock(GraphState& state, const std::string& fileName, int64_t position,
                      bool wideSamples3, int codePage);

}  // namespace zt
