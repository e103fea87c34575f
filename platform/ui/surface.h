// The controls placed on one component's surface, found by name (without regard to case, as
// the host platform names them) and index, so that a test or a tool can act on the component
// as a person would. The surface refers to controls it does not own; they must outlive it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/control_array.h"
#include "platform/ui/control_base.h"
#include "platform/ui/control_error.h"
#include "platform/ui/mouse_pointer.h"

namespace zt::ui {

class Surface {
  public:
    // A second control of the same name and index is refused with "Object already loaded".
    void add(ControlBase& control);
    template <typename T>
    void add(ControlArray<T>& array) {
        for (T& element : array)
            add(element);
    }

    // nullptr when there is no such control. Index -1 names a control outside any array.
    ControlBase* find(std::string_view name, int index = -1) const;

    // The control of that name and index as kind T. A missing control is refused with "Object
    // required", one of another kind with "Type mismatch"; both name the control.
    template <typename T>
    T& get(std::string_view name, int index = -1) const {
        ControlBase* control = find(name, index);
        if (!control) throwMissing(name, index);
        auto* typed = dynamic_cast<T*>(control);
        if (!typed) throwWrongKind(*control, T::kKind);
        return *typed;
    }

    // Every control in tab order (TabIndex, then the order of adding).
    std::vector<ControlBase*> inTabOrder() const;
    const std::vector<ControlBase*>& controls() const { return controls_; }

    // The pointer shape the component shows over its surface.
    MousePointer mousePointer = MousePointer::Default;

  private:
    [[noreturn]] static void throwMissing(std::string_view name, int index);
    [[noreturn]] static void throwWrongKind(const ControlBase& control, std::string_view kind);

    std::vector<ControlBase*> controls_;
};

// "name" or "name(index)".
std::string displayName(const ControlBase& control);
// The kind of a control ("CommandButton", "ComboBox", ...); "Control" for an unknown kind.
std::string_view kindOf(const ControlBase& control);

}  // namespace zt::ui
