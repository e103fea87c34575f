// Conversions between twips and screen pixels.
#pragma once

#include <cmath>

namespace zt::text {

// Twips per pixel at 96 dpi; used when the given scale is not a positive number.
inline constexpr double kDefaultTwipsPerPixel = 15.0;

inline double usableTwipsPerPixel(double twipsPerPixel) {
    return std::isfinite(twipsPerPixel) && twipsPerPixel > 0 ? twipsPerPixel
                                                             : kDefaultTwipsPerPixel;
}

inline double twipsToPixels(double twips, double twipsPerPixel) {
    return twips / usableTwipsPerPixel(twipsPerPixel);
}

inline double pixelsToTwips(double pixels, double twipsPerPixel) {
    return pixels * usableTwipsPerPixel(twipsPerPixel);
}

}  // namespace zt::text
