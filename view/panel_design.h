// The window's design of the operation panel's three pages. The component places the panels
// themselves (a hidden page moves out of sight) but not the controls on them; like the form a
// designer draws, this table puts each of those controls on its page.
#pragma once

#include <optional>
#include <string_view>

namespace zt::view {

// A rectangle in twips.
struct DesignRect {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

struct DesignPlace {
    std::string_view panel;  // "picScale", "picCursor" or "picHistory"
    DesignRect rect;         // within the panel
};

// The place of a control on a panel; nullopt for a control placed on the surface itself.
std::optional<DesignPlace> designPlace(std::string_view name, int index);

}  // namespace zt::view
