// Reading a graph text file back: every keyed value checked on its own and replaced by its
// default when missing, not a number or out of range, then the sample tables in one
// sequential pass over the file. Nothing in the file makes the reading fail.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/graph_state.h"
#include "platform/host_locale.h"

namespace zt {

// Reads one key; true when it was found (and is not empty) with its value in `value`.
using ProfileReader =
    std::function<bool(const std::string& section, const std::string& key, std::string& value)>;

struct GraphTextReadHooks {
    // After the channel sections were read, before "TriggerTarget": the channel sheet shows
    // the loaded channels.
    std::function<void()> channelsRead;
};

// What the keyed reading found besides the state.
struct GraphTextKeys {
    int32_t scrollMax = 0;  // maximum of the horizontal scroll bar for the loaded scales
};

// Reads the header, COMMON, CHANNEL and DATA comment keys into `state` (which the caller has
// reset). The history version becomes "1.00" with five slots.
GraphTextKeys readGraphTextKeys(GraphState& state, const HostLocale& locale, int codePage,
                                const ProfileReader& readKey, const GraphTextReadHooks& hooks);

// Zeroes history slots 1 to 5 and fills them from the sample tables of `fileName`. A file that
// cannot be opened leaves every slot zero.
void readSampleTables(GraphState& state, const std::string& fileName);

// The same over the file's bytes.
void readSampleTablesFromText(GraphState& state, std::string_view text);

}  // namespace zt
