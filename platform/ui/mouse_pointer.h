// Mouse pointer shapes of the host platform, by their numbers.
#pragma once

#include <cstdint>

namespace zt::ui {

enum class MousePointer : int16_t {
    Default = 0,
    Arrow = 1,
    SizeNS = 7,  // north-south sizing arrow
    SizeWE = 9,  // west-east sizing arrow
    Hourglass = 11,
};

}  // namespace zt::ui
