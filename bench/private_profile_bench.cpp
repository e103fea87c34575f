// Lookups and a keyed write on a graph text file of full size: COMMON_HEADER, COMMON with its
// 22 keys, eight CHANNEL sections and five DATA sections of 10,000 data lines (about 2.5 MB).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "platform/profile/private_profile.h"

namespace {

namespace fs = std::filesystem;
using namespace zt::profile;

// A graph file in a folder of its own, removed when the benchmark ends.
class GraphFile {
  public:
    GraphFile() {
        std::random_device random;
        dir_ = fs::temp_directory_path() / ("zt_profile_bench_" + std::to_string(random()));
        fs::create_directories(dir_);
        path_ = (dir_ / "graph.gp3").string();
        writeProfileString("COMMON_HEADER", "DecPoint", ".", path_);
        for (const char* key :
             {"SamplingSpeed",   "SamplingMode",   "SamplingInterval", "SamplingMask",
              "SamplingTime",    "TriggerType",    "TriggerBoot",      "TriggerLevel",
              "TriggerPosition", "TriggerTarget",  "TriggerPoint",     "CursorState",
              "HorzCursorApos",  "HorzCursorBpos", "VertCursorApos",   "VertCursorBpos",
              "ChNumber",        "HorzScale",      "HScrollPos",       "CurrentGraph",
              "GraphTotal",      "OverWriteState"}) {
            writeProfileString("COMMON", key, "100", path_);
        }
        for (int ch = 1; ch <= 8; ++ch) {
            for (const char* key : {"TargetNo", "SamplingItem", "GraphColor", "AD", "Unit", "Base",
                                    "VertScale", "ZeroPos", "DecPoint"}) {
                writeProfileString("CHANNEL_0" + std::to_string(ch), key, "1", path_);
            }
        }
        for (int g = 1; g <= 5; ++g) {
            writeProfileString("DATA_0" + std::to_string(g), "Comment", "graph ", path_);
            std::string lines =
                "Difference time,Fault data,Digital data,Analog data1,Analog data2,Analog "
                "data3,Analog data4=\r\n";
            for (int i = 0; i < 10000; ++i) {
                // Typical widths: about 50 bytes a line, 2.5 MB for the whole file.
                lines += "120000," + std::to_string(i % 3) + ",15,-21474836," + std::to_string(i) +
                         ",12345678,-76543210\r\n";
            }
            std::ofstream(path_, std::ios::binary | std::ios::app) << lines;
        }
    }
    ~GraphFile() {
        std::error_code ec;
        fs::remove_all(dir_, ec);
    }
    GraphFile(const GraphFile&) = delete;
    GraphFile& operator=(const GraphFile&) = delete;

    const char* path() const { return path_.c_str(); }
    std::uintmax_t size() const { return fs::file_size(path_); }

  private:
    fs::path dir_;
    std::string path_;
};

void lookup(benchmark::State& state, const char* section, const char* key) {
    const GraphFile file;
    std::vector<char> buffer(12800);
    for (auto _ : state) {
        const uint32_t n = GetPrivateProfileStringA(section, key, "GetPrivateProfileReadError",
                                                    buffer.data(), 12800, file.path());
        benchmark::DoNotOptimize(n);
    }
    state.counters["file_bytes"] = static_cast<double>(file.size());
}

void BM_LookupCommonKey(benchmark::State& state) {
    lookup(state, "COMMON", "TriggerPoint");
}
BENCHMARK(BM_LookupCommonKey)->Unit(benchmark::kMicrosecond);

void BM_LookupLastDataComment(benchmark::State& state) {
    lookup(state, "DATA_05", "Comment");
}
BENCHMARK(BM_LookupLastDataComment)->Unit(benchmark::kMicrosecond);

void BM_WriteCommonKey(benchmark::State& state) {
    const GraphFile file;
    int i = 0;
    for (auto _ : state) {
        const bool ok = WritePrivateProfileStringA("COMMON", "SamplingMode",
                                                   (i++ & 1) != 0 ? "1" : "0", file.path());
        benchmark::DoNotOptimize(ok);
    }
    state.counters["file_bytes"] = static_cast<double>(file.size());
}
BENCHMARK(BM_WriteCommonKey)->Unit(benchmark::kMicrosecond);

}  // namespace
