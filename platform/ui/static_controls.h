// Controls a person reads but does not operate: labels, frames and picture-box panels.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/ui/control_base.h"

namespace zt::ui {

inline constexpr int16_t kAlignLeft = 0;
inline constexpr int16_t kAlignRight = 1;
inline constexpr int16_t kAlignCenter = 2;

class Label : public ControlBase {
  public:
    static constexpr std::string_view kKind = "Label";
    Label(std::string name, int index = -1) : ControlBase(std::move(name), index) {
        TabStop = false;
    }

    Observed<std::string> Caption{*this, ControlProperty::Caption};
    int16_t Alignment = kAlignLeft;
};

// A captioned border grouping other controls.
class Frame : public ControlBase {
  public:
    static constexpr std::string_view kKind = "Frame";
    Frame(std::string name, int index = -1) : ControlBase(std::move(name), index) {
        TabStop = false;
    }

    Observed<std::string> Caption{*this, ControlProperty::Caption};
};

// A panel; the controls placed in it are ordinary controls of the surface.
class PictureBox : public ControlBase {
  public:
    static constexpr std::string_view kKind = "PictureBox";
    using ControlBase::ControlBase;
};

}  // namespace zt::ui
