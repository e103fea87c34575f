// Where the component gets its common-library objects from. The host installs one provider;
// the component asks it for the objects on first use and keeps them.
#pragma once

#include "platform/zt_common.h"

namespace zt {

class CommonLibrary {
  public:
    virtual ~CommonLibrary() = default;
    virtual ztCommon& common() = 0;
    virtual ztMessageBox& messageBox() = 0;
};

}  // namespace zt
