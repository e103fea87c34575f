// One control for a whole fuzzing process, as a host keeps one for its session: offline on the
// simulated link, with a scratch file in a folder of its own. Each input starts by loading a
// file, which resets the control's state; `checkState` holds the bounds the display relies on.
#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::fuzz {

// Stops the run with the broken condition's line, so that a crash report says what failed.
#define ZT_FUZZ_CHECK(condition)                                                               \
    ((condition) ? void()                                                                      \
                 : (std::fprintf(stderr, "check failed: line %d: %s\n", __LINE__, #condition), \
                    std::abort()))

struct ControlSession {
    ControlSession(const std::string& name, const std::string& fileName) {
        const char* tmp = std::getenv("TMPDIR");
        folder = std::filesystem::path(tmp && *tmp ? tmp : "/tmp") /
                 ("ztgraph-" + name + "-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder);
        file = (folder / fileName).string();
        SYS_INFO stations = library.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control->SetSysInfo(1, stations, parameter);
        control->ChgLineStatus(0);
    }
    sim::SimCommonLibrary library;
    std::unique_ptr<ztGraphControl> control = std::make_unique<ztGraphControl>(library);
    std::filesystem::path folder;
    std::string file;
};

inline void checkState(const ztGraphControl& control) {
    const auto& s = control.state();
    ZT_FUZZ_CHECK(s.runState >= 0 && s.runState <= 6);
    const auto& h = s.graphInfo.udtHistoryState;
    ZT_FUZZ_CHECK(h.lngCurrentGraph >= 0 && h.lngCurrentGraph <= 5);
    ZT_FUZZ_CHECK(h.lngGraphTotal >= 0 && h.lngGraphTotal <= 5);
    ZT_FUZZ_CHECK(s.version.lngHistoryMax >= 0 && s.version.lngHistoryMax <= 5);
    for (const auto& slot : s.history.udtGraphResultInfo)
        ZT_FUZZ_CHECK(slot.udtSample.size() <= 10000);
}

}  // namespace zt::fuzz
