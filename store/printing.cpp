#include "store/printing.h"

#include "platform/zt_common.h"

namespace zt {

namespace {

constexpr int32_t kTypeMismatch = static_cast<int32_t>(0x80020005);

}  // namespace

void printOut(PrinterObject* printer) {
    if (printer == nullptr) throw AutomationError(kTypeMismatch, "PrintOut: Type mismatch");
    printer->AddRef();
    PrinterObject* asPrinter = printer->QueryInterface(kPrinterInterfaceId);
    if (asPrinter == nullptr) {
        printer->Release();
        throw AutomationError(kTypeMismatch, "PrintOut: Type mismatch");
    }
    // Nothing is drawn: no page is started or ended.
    asPrinter->Release();
    printer->Release();
}

}  // namespace zt
