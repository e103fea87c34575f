// The graph text file reader: any bytes as a .gp3 file, imported by a control as a host would
// (`ImportFile`). Nothing may crash, hang or trip a sanitizer; the state after the import keeps
// the bounds the display relies on. (Export and import of whole files are round-tripped by the
// unit tests; a full file per input would cut the executions a hundredfold.) One control serves
// every input, as a host keeps one for its whole session; each import starts by resetting its
// state.
#include <cstdint>
#include <fstream>
#include <string>

#include "fuzz/control_session.h"

namespace {

zt::fuzz::ControlSession& session() {
    static zt::fuzz::ControlSession s("graph-text-fuzz", "in.gp3");
    return s;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    zt::fuzz::ControlSession& s = session();
    {
        std::ofstream out(s.file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    s.library.boxes().clear();  // the session keeps no record of earlier inputs
    zt::SYS_INFO sys;
    (void)s.control->ImportFile(s.file, sys);
    zt::fuzz::checkState(*s.control);
    return 0;
}
