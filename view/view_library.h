// The common library of the window: the simulated library's services and message boxes that
// a person sees and answers.
#pragma once

#include "platform/common_library.h"
#include "sim/sim_common_library.h"
#include "view/qt_message_box.h"

namespace zt::view {

class ViewLibrary : public CommonLibrary {
  public:
    ztCommon& common() override { return sim.sim(); }
    ztMessageBox& messageBox() override { return boxes; }

    sim::SimCommonLibrary sim;
    QtMessageBox boxes;
};

}  // namespace zt::view
