// The component's event interface as the host implements it: one method, ReqCommand, raised
// synchronously on the host's user-interface thread; the host's handler, with its calls back
// into the component, completes before the component goes on.
#pragma once

#include <cstdint>
#include <string>

namespace zt {

// Dispatch id of ReqCommand on the event interface.
inline constexpr int32_t kReqCommandDispId = 1;

class GraphHostSink {
  public:
    virtual ~GraphHostSink() = default;
    // 77 start sampling with the current request, 78 stop.
    virtual void ReqCommand(int32_t command) = 0;
};

// Interface identifier of the platform's printer object.
inline constexpr const char* kPrinterInterfaceId = "{33AD4F31-6699-11CF-B70C-00AA0060D393}";

// An object handed to PrintOut as the host's printer: reference counted, and asked for the
// printer interface by its identifier.
class PrinterObject {
  public:
    virtual ~PrinterObject() = default;
    virtual void AddRef() = 0;
    virtual void Release() = 0;
    // The object's interface `iid` with a reference taken, or nullptr when it has none.
    virtual PrinterObject* QueryInterface(const std::string& iid) = 0;
};

}  // namespace zt
