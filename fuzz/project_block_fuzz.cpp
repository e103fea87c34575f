// The project block reader: blocks of every version built field by field from the fuzzer's
// bytes (any values, array headers of any count, cut short or damaged at the end), loaded by a
// control as a host would (`LoadKivFile`). Nothing may crash or trip a sanitizer; a failed load
// leaves the state reset, and the state after any load keeps the bounds the display relies on.
// One control serves every input, as a host keeps one for its whole session.
#include <cstdint>
#include <fstream>
#include <string>

#include "fuzz/control_session.h"
#include "fuzz/fuzz_input.h"
#include "sim/sim_common.h"
#include "sim/sim_project_file.h"

namespace {

using zt::fuzz::FuzzInput;

zt::fuzz::ControlSession& session() {
    static zt::fuzz::ControlSession s("project-block-fuzz", "project.ztp");
    return s;
}

class Block {
  public:
    explicit Block(FuzzInput& in) : in_(in) {}
    template <typename T>
    void field() {
        put(in_.value<T>());
    }
    template <typename T>
    void put(T v) {
        bytes.append(reinterpret_cast<const char*>(&v), sizeof v);
    }
    // An array header and its elements: mostly the component's own 10,000, sometimes fewer,
    // more or a damaged header; the elements repeat a short fuzzed pattern.
    template <typename T>
    void array() {
        int32_t count = 10000;
        switch (in_.byte() % 8) {
            case 0:
                count = in_.value<int32_t>();
                break;
            case 1:
                count = in_.byte();
                break;
            case 2:
                count = 10000 + in_.byte();
                break;
            default:
                break;
        }
        const int16_t dims = in_.byte() % 16 == 0 ? in_.value<int16_t>() : int16_t{1};
        put(dims);
        put(count);
        put(int32_t{0});
        if (count <= 0 || count > 12000) return;
        T pattern[4];
        for (T& p : pattern)
            p = in_.value<T>();
        for (int32_t i = 0; i < count; ++i)
            put(pattern[i % 4]);
    }
    void samples() {
        int32_t count = 10000;
        if (in_.byte() % 4 == 0) count = in_.value<uint16_t>() % 10100;
        put(int16_t{1});
        put(count);
        put(int32_t{0});
        uint8_t record[zt::kSampleRecordBytes];
        for (uint8_t& b : record)
            b = in_.byte();
        for (int32_t i = 0; i < count; ++i)
            bytes.append(reinterpret_cast<const char*>(record), sizeof record);
    }
    std::string bytes;

  private:
    FuzzInput& in_;
};

std::string block(FuzzInput& in, bool& wide3) {
    static const char* const kVersions[] = {"1.00", "2.00", "3.00", "4.00"};
    Block b(in);
    const uint8_t pick = in.byte();
    std::string version = kVersions[pick % 4];
    if (pick >= 250) version = in.text(8);  // an unknown version
    wide3 = in.byte() % 2 == 0;
    b.put(static_cast<int16_t>(version.size()));
    b.bytes += version;
    const int32_t historyMax = in.byte() % 4 == 0 ? in.value<int32_t>() : 5;
    b.put(historyMax);
    const bool v1 = version == "1.00", v3 = version == "3.00", v4 = version == "4.00";
    // Sampling settings.
    b.field<double>();
    b.field<double>();
    b.field<double>();
    b.field<int16_t>();
    b.field<int16_t>();
    b.field<double>();
    b.field<float>();
    if (v3 || v4) b.field<int32_t>();
    b.field<int16_t>();
    b.field<int16_t>();
    b.field<int16_t>();
    for (int ch = 0; ch < 8; ++ch) {
        b.field<int16_t>();
        b.field<int16_t>();
        b.field<int32_t>();
        b.field<int32_t>();
        b.field<int32_t>();
    }
    // Graph information.
    for (int ch = 0; ch < 8; ++ch) {
        b.field<double>();
        b.field<int16_t>();
    }
    b.field<float>();
    b.field<int32_t>();
    for (int i = 0; i < 4; ++i)
        b.field<float>();
    b.field<int16_t>();
    b.field<float>();
    b.field<float>();
    b.field<int16_t>();
    b.field<int32_t>();
    b.field<int32_t>();
    if (!v1) b.field<int32_t>();
    const bool wide = v4 || (v3 && wide3);
    for (int ch = 0; ch < 8; ++ch) {
        for (int a = 0; a < 2; ++a) {
            if (wide)
                b.array<double>();
            else
                b.array<float>();
        }
        b.field<float>();
        b.field<float>();
        b.field<int16_t>();
    }
    const int slots = historyMax >= 1 && historyMax <= 5 ? historyMax : 5;
    for (int slot = 0; slot < slots; ++slot)
        b.samples();
    for (int slot = 0; slot < slots; ++slot) {
        std::string comment = in.text(128);
        comment.resize(128, ' ');
        b.bytes += comment;
    }
    // Now and then the block is cut short.
    if (in.byte() % 8 == 0) b.bytes.resize(in.value<uint32_t>() % (b.bytes.size() + 1));
    return b.bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    zt::fuzz::ControlSession& s = session();
    FuzzInput in(data, size);
    bool wide3 = false;
    const std::string bytes = block(in, wide3);
    {
        std::ofstream out(s.file, std::ios::binary | std::ios::trunc);
        out << zt::sim::projectFileHeader(
                   {{zt::sim::kProjectBlockName, zt::sim::kFirstBlockPosition}})
            << bytes;
    }
    s.library.boxes().clear();  // the session keeps no record of earlier inputs
    zt::VERSION_INFO version;
    zt::PROGRAM_VERSION program;
    program.lngMajor = wide3 ? 5 : 6;
    program.lngMinor = wide3 ? 20 : 0;
    const int16_t result = s.control->LoadKivFile(s.file, version, program);
    ZT_FUZZ_CHECK(result == 0 || result == -1);
    zt::fuzz::checkState(*s.control);
    return 0;
}
