// The host platform's best-fit conversion of characters an ANSI code page does not hold.
#pragma once

#include <cstdint>

namespace zt::text {

struct BestFit {
    char16_t character;
    uint8_t first;   // the byte written
    uint8_t second;  // a double-byte code's second byte, 0 for a single byte
};

// The best-fit entry of `character` in `codePage` (1252 or 932), or nullptr when the code page
// holds the character or has no best fit for it ("?").
const BestFit* bestFit(int codePage, char16_t character);

}  // namespace zt::text
