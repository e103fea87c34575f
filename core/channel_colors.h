// Default colour of each channel's graph (0x00BBGGRR), indexed by channel number 1 to 8.
#pragma once

#include <array>
#include <cstdint>

namespace zt {

inline constexpr std::array<int32_t, 9> kDefaultChannelColor = {
    0,
    0xFFFF00,  // 1 cyan
    0xFF00FF,  // 2 magenta
    0x00FFFF,  // 3 yellow
    0x80FF80,  // 4 light green
    0xFF0000,  // 5 blue
    0x0000FF,  // 6 red
    0x0080FF,  // 7 orange
    0xC0C0C0,  // 8 silver
};

}  // namespace zt
