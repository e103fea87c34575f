// Members of the public interface whose subsystems are wired into the control separately.
// Until then they accept their arguments and change nothing; file methods answer -1.
#include "control/graph_control.h"

namespace zt {

void ztGraphControl::PrintOut(PrinterObject*) {}

int16_t ztGraphControl::ImportFile(const std::string&, SYS_INFO&) {
    return -1;
}

int16_t ztGraphControl::ExportFile(const std::string&) {
    return -1;
}

int16_t ztGraphControl::SaveKivFile(const std::string&, VERSION_INFO&) {
    return -1;
}

int16_t ztGraphControl::LoadKivFile(const std::string&, VERSION_INFO&, PROGRAM_VERSION&) {
    return -1;
}

}  // namespace zt
