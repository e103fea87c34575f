// The display state of the graph: per-channel vertical scales, the time scale and scroll
// position, the cursors, the channel whose scale alone is shown, and the history selection.
#pragma once

#include <array>
#include <cstdint>

namespace zt {

struct VERTSCALE {
    double dblVertScale = 0;  // engineering units per division
    int16_t intZeroPos = 0;   // zero line, divisions counted up from the bottom

    friend bool operator==(const VERTSCALE&, const VERTSCALE&) = default;
};

struct HORZSCALE {
    float sngHorzScale = 0;     // ms per division
    int32_t lngHScrollPos = 0;  // scroll position in divisions from the start

    friend bool operator==(const HORZSCALE&, const HORZSCALE&) = default;
};

// Cursors start with A at the top or left edge and B at the bottom or right edge.
struct CURSORSTATE {
    float sngHorzCursorApos = 0;  // value cursor A, fraction of the grid height from the top
    float sngHorzCursorBpos = 1;  // value cursor B
    float sngVertCursorApos = 0;  // time cursor A, fraction of the grid width from the left
    float sngVertCursorBpos = 1;  // time cursor B
    int16_t intCursorState = 0;   // 0 off, 1 time cursors, 2 value cursors
    float sngHorzDiffPosAB = 0;   // value-cursor distance taken when a drag starts
    float sngVertDiffPosAB = 0;   // time-cursor distance taken when a drag starts

    friend bool operator==(const CURSORSTATE&, const CURSORSTATE&) = default;
};

struct HISTORYSTATE {
    int32_t lngCurrentGraph = 0;    // history slot on display, 0 = newest result
    int32_t lngGraphTotal = 0;      // history slots holding a graph
    int32_t lngOverWriteState = 0;  // bit i set: slot i + 1 laid over the display

    friend bool operator==(const HISTORYSTATE&, const HISTORYSTATE&) = default;
};

struct GRAPHINFO {
    // Indexed by channel number 1 to 8 (element 0 is unused).
    std::array<VERTSCALE, 9> udtVertScale{};
    HORZSCALE udtHorzScale{};
    CURSORSTATE udtCursorState{};
    int16_t intChNumber = 0;  // channel whose scale alone is shown, 0 = all
    HISTORYSTATE udtHistoryState{};

    friend bool operator==(const GRAPHINFO&, const GRAPHINFO&) = default;
};

}  // namespace zt
