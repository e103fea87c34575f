// PrintOut: a printer object is taken, asked for the printer interface and released; any
// other object is refused with the type-mismatch status.
#include <gtest/gtest.h>

#include <vector>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

class FakePrinter : public PrinterObject {
  public:
    explicit FakePrinter(bool isPrinter) : isPrinter_(isPrinter) {}
    void AddRef() override { ++refs; }
    void Release() override { --refs; }
    PrinterObject* QueryInterface(const std::string& iid) override {
        asked.push_back(iid);
        if (!isPrinter_ || iid != kPrinterInterfaceId) return nullptr;
        AddRef();
        return this;
    }
    int refs = 0;
    std::vector<std::string> asked;

  private:
    bool isPrinter_;
};

TEST(PrintOut, TakesAndReleasesAPrinterWithoutDrawing) {
    sim::SimCommonLibrary lib;
    ztGraphControl control(lib);
    FakePrinter printer(true);
    for (int i = 0; i < 2; ++i) {
        std::vector<DispatchValue> args{static_cast<PrinterObject*>(&printer)};
        const DispatchResult r = dispatch(control, 0x60030068, DispatchKind::Method, args);
        EXPECT_EQ(r.status, 0);
    }
    EXPECT_EQ(printer.refs, 0);
    EXPECT_EQ(printer.asked, std::vector<std::string>(2, "{33AD4F31-6699-11CF-B70C-00AA0060D393}"));
    EXPECT_EQ(control.runState(), 0);
}

TEST(PrintOut, AnObjectThatIsNoPrinterIsATypeMismatch) {
    sim::SimCommonLibrary lib;
    ztGraphControl control(lib);
    FakePrinter other(false);
    std::vector<DispatchValue> args{static_cast<PrinterObject*>(&other)};
    const DispatchResult r = dispatch(control, 0x60030068, DispatchKind::Method, args);
    EXPECT_EQ(r.status, kDispTypeMismatch);
    EXPECT_EQ(other.refs, 0);
    std::vector<DispatchValue> none{static_cast<PrinterObject*>(nullptr)};
    EXPECT_EQ(dispatch(control, 0x60030068, DispatchKind::Method, none).status, kDispTypeMismatch);
}

}  // namespace
}  // namespace zt
