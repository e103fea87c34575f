// The standard font object as the component uses it: a face name and a point size.
#pragma once

#include <string>

namespace zt {

struct Font {
    std::string name = "MS UI Gothic";
    float size = 9.0f;
    bool bold = false;
    bool italic = false;
};

}  // namespace zt
