// The graph text file reader: any bytes as a .gp3 file, imported by a control as a host would
// (`ImportFile`). Nothing may crash, hang or trip a sanitizer; the state after the import keeps
// the bounds the display relies on. (Export and import of whole files are round-tripped by the
// unit tests; a full file per input would cut the executions a hundredfold.) One control serves
// every input, as a host keeps one for its whole session; each import starts by resetting its
// state.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace {

#define check(condition)                                                                       \
    ((condition) ? void()                                                                      \
                 : (std::fprintf(stderr, "check failed: line %d: %s\n", __LINE__, #condition), \
                    std::abort()))

struct Session {
    Session() {
        const char* tmp = std::getenv("TMPDIR");
        folder = std::filesystem::path(tmp && *tmp ? tmp : "/tmp") /
                 ("ztgraph-graph-text-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder);
        file = (folder / "in.gp3").string();
        zt::SYS_INFO stations = library.sim().link().sysInfo();
        zt::PARAMETER_INFO parameter;
        control->SetSysInfo(1, stations, parameter);
        control->ChgLineStatus(0);
    }
    zt::sim::SimCommonLibrary library;
    std::unique_ptr<zt::ztGraphControl> control = std::make_unique<zt::ztGraphControl>(library);
    std::filesystem::path folder;
    std::string file;
};

Session& session() {
    static Session s;
    return s;
}

void checkState(const zt::ztGraphControl& control) {
    const auto& s = control.state();
    check(s.runState >= 0 && s.runState <= 6);
    const auto& h = s.graphInfo.udtHistoryState;
    check(h.lngCurrentGraph >= 0 && h.lngCurrentGraph <= 5);
    check(h.lngGraphTotal >= 0 && h.lngGraphTotal <= 5);
    for (const auto& slot : s.history.udtGraphResultInfo)
        check(slot.udtSample.size() <= 10000);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    Session& s = session();
    {
        std::ofstream out(s.file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    s.library.boxes().clear();  // the session keeps no record of earlier inputs
    zt::SYS_INFO sys;
    (void)s.control->ImportFile(s.file, sys);
    checkState(*s.control);
    return 0;
}
