// Tab strip with 1-based tabs. One tab is selected whenever there are tabs: the first tab
// added is selected, and removing the selected tab selects the first one, without Click.
//
// As on the host's common control: selecting another tab in code raises Click; a person's
// click on a tab raises Click every time, also on the tab already selected. MouseMove reports
// the pointer over the strip (button, shift state, x and y in twips) while it is usable.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

struct Tab {
    std::string Caption;
    std::string Key;
    std::string ToolTipText;
};

class TabStrip : public ControlBase {
  public:
    static constexpr std::string_view kKind = "TabStrip";
    using ControlBase::ControlBase;

    // The strip's tabs, numbered from 1. A bad index is refused with "Index out of bounds".
    class TabCollection {
      public:
        explicit TabCollection(TabStrip& strip) : strip_(strip) {}
        // Appends, or inserts at `index` (1 .. Count + 1), and returns the new tab.
        Tab& Add(std::string caption, int index = 0);
        void Remove(int index);
        void Clear();
        int Count() const { return static_cast<int>(strip_.tabs_.size()); }
        Tab& operator()(int index);
        const Tab& operator()(int index) const;

      private:
        TabStrip& strip_;
    };

    TabCollection Tabs{*this};
    float TabFixedWidth = 0;
    float TabFixedHeight = 0;
    Event<> Click;
    Event<int16_t /*button*/, int16_t /*shift*/, float /*x twips*/, float /*y twips*/> MouseMove;

    // 1-based index of the selected tab; 0 when there are no tabs.
    int SelectedIndex() const { return selected_; }
    // Selects a tab in code, raising Click when the selection changes.
    void select(int index);

    // A person clicks tab `index`; false when the strip is hidden or disabled or there is no
    // such tab.
    bool click(int index);
    // The pointer moves over the strip; false when the strip is hidden or disabled.
    bool moveMouse(int16_t button, int16_t shift, float x, float y);

  private:
    size_t checked(int index) const;

    std::vector<Tab> tabs_;
    int selected_ = 0;
};

}  // namespace zt::ui
