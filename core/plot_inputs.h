// What a draw needs to know of the configuration, filled by the caller from the channel sheet,
// the item attributes, the station records and the common library, so that plotting does not
// depend on where those come from.
#pragma once

#include <array>
#include <string>

namespace zt {

struct PlotInputs {
    // Index = channel number 1 to 8 (element 0 unused): the channel's item cell holds an item
    // and not "None".
    std::array<bool, 9> inUse{};
    // Index = analog channel 1 to 4: the item's sign attribute is "1" (raw counts are signed
    // 16-bit numbers).
    std::array<bool, 5> signedItem{};
    // Index = channel number 1 to 8: the station's values are taken as they are (the station
    // flag that selects the full-scale count table).
    std::array<bool, 9> directValue{};
    // Model text the common library reports; "901" selects the 120-count scale.
    std::string modelText;
    // Text of the trigger mark (message 10062).
    std::string triggerText = "T";
};

}  // namespace zt
