// Members of the public interface whose subsystems are wired into the control separately.
// Until then they accept their arguments and change nothing.
#include "control/graph_control.h"

namespace zt {

void ztGraphControl::SetGraphColor(int32_t) {}

}  // namespace zt
