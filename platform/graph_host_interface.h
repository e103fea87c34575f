// The component's event interface as the host implements it: one method, ReqCommand, raised
// synchronously on the host's user-interface thread; the host's handler, with its calls back
// into the component, completes before the component goes on.
#pragma once

#include <cstdint>

namespace zt {

// Dispatch id of ReqCommand on the event interface.
inline constexpr int32_t kReqCommandDispId = 1;

class GraphHostSink {
  public:
    virtual ~GraphHostSink() = default;
    // 77 start sampling with the current request, 78 stop.
    virtual void ReqCommand(int32_t command) = 0;
};

// The host's printer object as handed to PrintOut; its drawing surface is the printing
// subsystem's concern.
class PrinterObject;

}  // namespace zt
