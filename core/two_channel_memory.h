// What the channel sheet remembers of the partner channel (2 or 4) while a two-channel item on
// channel 1 or 3 occupies it: its shown name, vertical scale and zero position before.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zt {

struct PartnerMemory {
    bool held = false;  // the partner's Name cell is taken over (locked)
    std::string name;   // empty when nothing was remembered
    double vertScale = 0;
    int16_t zeroPos = 0;

    friend bool operator==(const PartnerMemory&, const PartnerMemory&) = default;
};

// Indexed by channel number; only channels 2 and 4 are used.
using TwoChannelMemory = std::array<PartnerMemory, 9>;

}  // namespace zt
