#include "sim/sim_common_library.h"

#include <utility>

namespace zt::sim {

SimCommonLibrary::SimCommonLibrary(SimLink link, HostLocale locale)
    : link_(std::move(link)), locale_(std::move(locale)) {}

SimCommon& SimCommonLibrary::sim() {
    if (!common_) common_ = std::make_unique<SimCommon>(link_, locale_);
    return *common_;
}

SimMessageBox& SimCommonLibrary::boxes() {
    if (!messageBox_) messageBox_ = std::make_unique<SimMessageBox>();
    return *messageBox_;
}

}  // namespace zt::sim
