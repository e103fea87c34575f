// The simulated common library: one SimCommon and one SimMessageBox, created on first use.
#pragma once

#include <memory>

#include "platform/common_library.h"
#include "sim/sim_common.h"
#include "sim/sim_message_box.h"

namespace zt::sim {

class SimCommonLibrary : public zt::CommonLibrary {
  public:
    explicit SimCommonLibrary(SimLink link = SimLink::standard(), HostLocale locale = {});

    zt::ztCommon& common() override { return sim(); }
    zt::ztMessageBox& messageBox() override { return boxes(); }

    // The same objects with their simulation controls.
    SimCommon& sim();
    SimMessageBox& boxes();

  private:
    SimLink link_;
    HostLocale locale_;
    std::unique_ptr<SimCommon> common_;
    std::unique_ptr<SimMessageBox> messageBox_;
};

}  // namespace zt::sim
