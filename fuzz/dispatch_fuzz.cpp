// A host that calls the control's public members by dispatch id in any order, with argument
// lists of any length and type, raises the user's run buttons, and terminates the control in
// the middle. Nothing may crash, leak or trip a sanitizer; the run state stays 0 to 6.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "fuzz/fuzz_input.h"
#include "sim/sim_common_library.h"

namespace {

using zt::DispatchValue;
using zt::fuzz::FuzzInput;

// A text argument: never a path outside the scratch folder the fuzzer runs in.
std::string text(FuzzInput& in) {
    std::string s = in.text(24);
    for (char& c : s) {
        if (c == '/' || c == '\0') c = '_';
    }
    return s;
}

zt::SYS_INFO sysInfo(FuzzInput& in, zt::sim::SimCommonLibrary& library) {
    zt::SYS_INFO info = library.sim().link().sysInfo();
    const int changes = in.byte() % 4;
    for (int i = 0; i < changes && !info.udtStation.empty(); ++i) {
        auto& st = info.udtStation[in.byte() % info.udtStation.size()];
        st.intStationNo = in.value<int16_t>();
        st.lngModelCode = in.value<int32_t>();
        st.lngAttribute = in.value<int32_t>();
    }
    if (in.byte() % 8 == 0) info.udtStation.resize(in.byte() % 40);
    return info;
}

zt::MONI_ITEM moniItem(FuzzInput& in) {
    zt::MONI_ITEM m;
    for (auto* list : {&m.udtAnalog, &m.udtInput, &m.udtOutput}) {
        const int n = in.byte() % 6;
        for (int i = 0; i < n; ++i) {
            zt::ITEM_INFO item;
            item.lngItemCode = in.value<int16_t>();
            item.strAnalogName = text(in);
            item.strInOutName = text(in);
            item.lngUnitCode = in.byte();
            item.lngFullScale = in.value<int32_t>();
            item.intAttribute = in.value<int16_t>();
            item.lngFlags = in.byte() % 4;
            item.lngValue.resize(in.byte() % 13);
            for (auto& v : item.lngValue)
                v = in.value<int32_t>();
            list->push_back(item);
        }
    }
    return m;
}

zt::GRAPH_RESULT_INFO samples(FuzzInput& in) {
    zt::GRAPH_RESULT_INFO r;
    const std::size_t n = in.value<uint16_t>() % 1200;
    r.udtSample.resize(n);
    const bool plain = in.byte() % 2 == 0;
    for (auto& s : r.udtSample) {
        if (plain) {
            // Ordinary records: steady interval, values that move.
            s.lngDiffTime = 1000;
            s.intDigitalData = static_cast<int16_t>(in.byte() % 16);
            s.lngAnalogData = {in.value<int16_t>(), in.value<int16_t>(), 0, 0};
        } else {
            s.lngDiffTime = in.value<int32_t>();
            s.intFaultData = in.value<int16_t>();
            s.intDigitalData = in.value<int16_t>();
            for (auto& a : s.lngAnalogData)
                a = in.value<int32_t>();
        }
        if (in.empty()) break;
    }
    return r;
}

DispatchValue argument(FuzzInput& in, zt::sim::SimCommonLibrary& library) {
    switch (in.byte() % 20) {
        case 0:
            return std::monostate{};
        case 1:
            return in.byte() % 2 == 1;
        case 2:
            return in.value<int16_t>();
        case 3:
            return static_cast<int16_t>(in.byte() % 40 - 4);
        case 4:
            return in.value<int32_t>();
        case 5:
            return in.value<float>();
        case 6:
            return text(in);
        case 7: {
            std::vector<zt::MSG_ITEM> msgs(in.byte() % 4);
            for (auto& m : msgs)
                m = {10000 + in.byte() % 120, text(in)};
            return msgs;
        }
        case 8:
            return moniItem(in);
        case 9: {
            zt::INIFILE_ITEM item;
            for (auto& v : item.lngData)
                v = in.byte() % 3 == 0 ? in.value<int32_t>() : 0;
            item.lngData[1] = in.byte() % 2 ? 9600 : 115200;
            return item;
        }
        case 10:
            return sysInfo(in, library);
        case 11:
            return samples(in);
        case 12: {
            zt::GRAPH_REQUEST r;
            r.intUnit = {in.value<int16_t>(), in.value<int16_t>(), 0, 0};
            r.intDecPoint = {in.value<int16_t>(), in.value<int16_t>(), 1, 2};
            r.lngBaseValue = {in.value<int32_t>(), in.value<int32_t>(), 1, 0};
            return r;
        }
        case 13:
            return zt::PARAMETER_INFO{};
        case 14:
            return zt::INV_STATUS{};
        case 15:
            return zt::Font{text(in), in.value<float>(), false, false};
        case 16:
            return static_cast<zt::ztCommon*>(nullptr);
        case 17:
            return static_cast<zt::PrinterObject*>(nullptr);
        case 18:
            return zt::PROGRAM_VERSION{};
        default:
            return zt::VERSION_INFO{};
    }
}

// The host's event sink: records the commands and, when the input says so, calls back into
// the control from inside ReqCommand.
struct Sink : zt::GraphHostSink {
    zt::ztGraphControl* control = nullptr;
    FuzzInput* in = nullptr;
    zt::sim::SimCommonLibrary* library = nullptr;
    int depth = 0;
    void ReqCommand(int32_t) override;
};

void call(zt::ztGraphControl& control, FuzzInput& in, zt::sim::SimCommonLibrary& library) {
    const auto& members = zt::kGraphControlMembers;
    const auto& member = members[in.byte() % members.size()];
    const auto kind = static_cast<zt::DispatchKind>(in.byte() % 3);
    std::vector<DispatchValue> args(in.byte() % 5);
    for (auto& a : args)
        a = argument(in, library);
    (void)zt::dispatch(control, member.dispId, kind, args);
}

void Sink::ReqCommand(int32_t) {
    if (depth > 2 || in->byte() % 3 != 0) return;
    ++depth;
    call(*control, *in, *library);
    --depth;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // File members write where they are pointed: keep that inside a scratch folder.
    const auto dir = std::filesystem::temp_directory_path() /
                     ("ztgraph-dispatch-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    std::filesystem::current_path(dir);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    FuzzInput in(data, size);
    zt::sim::SimCommonLibrary library;
    auto control = std::make_unique<zt::ztGraphControl>(library);
    Sink sink;
    sink.control = control.get();
    sink.in = &in;
    sink.library = &library;
    control->advise(&sink);

    for (int step = 0; step < 64 && !in.empty(); ++step) {
        const uint8_t what = in.byte();
        switch (what % 8) {
            case 0:
                control->surface().cmdStart.click();
                break;
            case 1:
                control->surface().cmdStop.click();
                break;
            case 2:
                control->surface().cmdClear.click();
                break;
            case 3:
                if (what == 3) control->Terminate();  // now and then, in the middle
                break;
            default:
                call(*control, in, library);
                break;
        }
        const int state = control->runState();
        if (state < 0 || state > 6) {
            std::fprintf(stderr, "run state %d out of range\n", state);
            std::abort();
        }
    }
    control->Terminate();
    return 0;
}
