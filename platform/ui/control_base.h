// Properties every hosted control on the component's surface has. Sizes are in twips, colours
// are 0x00BBGGRR values or system colours (0x80000000 | index).
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace zt::ui {

inline constexpr int32_t kColorButtonFace = static_cast<int32_t>(0x8000000F);
inline constexpr int32_t kColorWindow = static_cast<int32_t>(0x80000005);
inline constexpr int32_t kColorWindowText = static_cast<int32_t>(0x80000008);

class ControlBase {
  public:
    ControlBase(std::string name, int index = -1) : name_(std::move(name)), index_(index) {}
    virtual ~ControlBase() = default;
    ControlBase(const ControlBase&) = delete;
    ControlBase& operator=(const ControlBase&) = delete;

    const std::string& Name() const { return name_; }
    // Index within its control array, -1 for a control that is not in one.
    int Index() const { return index_; }

    bool Enabled = true;
    bool Visible = true;
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    int32_t BackColor = kColorButtonFace;
    int32_t ForeColor = kColorWindowText;
    std::string ToolTipText;
    int TabIndex = 0;
    bool TabStop = true;

    // A person can act on a control only while it is visible and enabled.
    bool usable() const { return Visible && Enabled; }

  private:
    std::string name_;
    int index_;
};

}  // namespace zt::ui
