// Units of the window: the component's surface is measured in twips, the screen in pixels, and
// the component's colours are 0x00BBGGRR values or system colours (0x80000000 | index).
#pragma once

#include <QColor>
#include <QPalette>

#include <cmath>
#include <cstdint>

namespace zt::view {

// Twips per screen pixel at 96 dpi; the component is given the same figure.
inline constexpr int kTwipsPerPixel = 15;

inline int toPixels(double twips) {
    return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}
inline float toTwips(double pixels) {
    return static_cast<float>(pixels * kTwipsPerPixel);
}

// The colour a person sees for a component colour; a system colour takes the palette's.
inline QColor toQColor(int32_t color, const QPalette& palette) {
    const auto bits = static_cast<uint32_t>(color);
    if (bits & 0x80000000u) {
        switch (bits & 0xFFu) {
            case 5:  // window
                return palette.color(QPalette::Active, QPalette::Base);
            case 8:  // window text
                return palette.color(QPalette::Active, QPalette::Text);
            case 15:  // button face
                return palette.color(QPalette::Active, QPalette::Button);
            case 18:  // button text
                return palette.color(QPalette::Active, QPalette::ButtonText);
            default:
                return palette.color(QPalette::Active, QPalette::Window);
        }
    }
    return QColor(static_cast<int>(bits & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
                  static_cast<int>((bits >> 16) & 0xFF));
}

}  // namespace zt::view
