// The graph text file and the project block at full size (five slots of 10,000 records), each
// measured against a plain baseline in the same run: one fwrite of the same bytes for the
// export, one pass over the file's lines for the import, a file-to-file copy of the block's
// bytes for save and load.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <string>

#include "core/ini_file_access.h"
#include "core/message_catalogue.h"
#include "sim/sim_common.h"
#include "store/graph_text_export.h"
#include "store/graph_text_import.h"
#include "store/project_block.h"
#include "store/state_reset.h"

namespace {

namespace fs = std::filesystem;
using namespace zt;

class Folder {
  public:
    Folder() {
        std::random_device random;
        dir_ = fs::temp_directory_path() / ("zt_files_bench_" + std::to_string(random()));
        fs::create_directories(dir_);
    }
    ~Folder() {
        std::error_code ec;
        fs::remove_all(dir_, ec);
    }
    std::string path(const std::string& name) const { return (dir_ / name).string(); }

  private:
    fs::path dir_;
};

std::unique_ptr<GraphState> fullState() {
    auto s = std::make_unique<GraphState>();
    std::mt19937 rng(42);
    for (int slot = 1; slot <= 5; ++slot) {
        s->history.strComments[static_cast<std::size_t>(slot)] = "11/23/2026 5:20:57 PM";
        for (SampleRecord& r :
             s->history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample) {
            r.lngDiffTime = 1000;
            r.intFaultData = 0;
            r.intDigitalData = static_cast<int16_t>(rng() & 15);
            for (auto& a : r.lngAnalogData)
                a = static_cast<int32_t>(rng() % 20000) - 10000;
        }
    }
    return s;
}

// The export as the control makes it: keyed writes and tables on the file's bytes in memory.
int16_t exportTo(const GraphState& s, const std::string& file) {
    sim::SimCommon common;
    const int32_t header = common.WriteGraphFileHeader(file, "1.00", 0);
    return exportGraphTextFile(s, file, header, std::string(msg::kDataHeader.defaultText),
                               HostLocale{}, 1252);
}

// The same writes made one by one on the file.
int16_t exportKeyByKey(const GraphState& s, const std::string& file) {
    sim::SimCommon common;
    const int32_t header = common.WriteGraphFileHeader(file, "1.00", 0);
    return writeGraphTextFile(
        s, file, header, std::string(msg::kDataHeader.defaultText), HostLocale{},
        [&](const std::string& sec, const std::string& k, const std::string& v) {
            return SetInifileString(file, sec, k, v, 1252);
        });
}

std::string readAll(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void BM_ExportGraphFile(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("g.gp3");
    for (auto _ : st)
        benchmark::DoNotOptimize(exportTo(*s, file));
    st.SetBytesProcessed(static_cast<int64_t>(st.iterations()) *
                         static_cast<int64_t>(fs::file_size(file)));
}
BENCHMARK(BM_ExportGraphFile)->Unit(benchmark::kMillisecond);

void BM_ExportKeyByKey(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("g.gp3");
    for (auto _ : st)
        benchmark::DoNotOptimize(exportKeyByKey(*s, file));
}
BENCHMARK(BM_ExportKeyByKey)->Unit(benchmark::kMillisecond);

void BM_ExportBaselineOneFwrite(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("g.gp3");
    exportTo(*s, file);
    const std::string bytes = readAll(file);
    const std::string copy = folder.path("c.gp3");
    for (auto _ : st) {
        std::FILE* f = std::fopen(copy.c_str(), "wb");
        benchmark::DoNotOptimize(std::fwrite(bytes.data(), 1, bytes.size(), f));
        std::fclose(f);
    }
    st.SetBytesProcessed(static_cast<int64_t>(st.iterations()) *
                         static_cast<int64_t>(bytes.size()));
}
BENCHMARK(BM_ExportBaselineOneFwrite)->Unit(benchmark::kMillisecond);

void BM_ImportGraphFile(benchmark::State& st) {
    Folder folder;
    const std::string file = folder.path("g.gp3");
    exportTo(*fullState(), file);
    auto s = std::make_unique<GraphState>();
    for (auto _ : st) {
        resetWholeState(*s);
        readGraphTextKeys(*s, HostLocale{}, 1252,
                          [&](const std::string& sec, const std::string& k, std::string& v) {
                              return GetInifileString(file, sec, k, v, 1252);
                          },
                          {});
        readSampleTables(*s, file);
        benchmark::DoNotOptimize(s->history.udtGraphResultInfo[5].udtSample[9999]);
    }
}
BENCHMARK(BM_ImportGraphFile)->Unit(benchmark::kMillisecond);

void BM_ImportBaselineReadLines(benchmark::State& st) {
    Folder folder;
    const std::string file = folder.path("g.gp3");
    exportTo(*fullState(), file);
    for (auto _ : st) {
        std::ifstream in(file, std::ios::binary);
        std::string line;
        std::size_t lines = 0;
        while (std::getline(in, line))
            ++lines;
        benchmark::DoNotOptimize(lines);
    }
}
BENCHMARK(BM_ImportBaselineReadLines)->Unit(benchmark::kMillisecond);

void BM_SaveProjectBlock(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("p.prj");
    for (auto _ : st)
        benchmark::DoNotOptimize(writeProjectBlock(*s, file, 257, 1252));
}
BENCHMARK(BM_SaveProjectBlock)->Unit(benchmark::kMillisecond);

void BM_LoadProjectBlock(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("p.prj");
    writeProjectBlock(*s, file, 257, 1252);
    for (auto _ : st)
        benchmark::DoNotOptimize(readProjectBlock(*s, file, 257, false, 1252));
}
BENCHMARK(BM_LoadProjectBlock)->Unit(benchmark::kMillisecond);

void BM_BlockBaselineCopy(benchmark::State& st) {
    Folder folder;
    auto s = fullState();
    const std::string file = folder.path("p.prj");
    writeProjectBlock(*s, file, 1, 1252);
    const std::string copy = folder.path("c.prj");
    std::string buffer(static_cast<std::size_t>(kProjectBlockBytes), '\0');
    for (auto _ : st) {
        std::FILE* in = std::fopen(file.c_str(), "rb");
        std::FILE* out = std::fopen(copy.c_str(), "r+b");
        if (out == nullptr) out = std::fopen(copy.c_str(), "w+b");
        benchmark::DoNotOptimize(std::fread(buffer.data(), 1, buffer.size(), in));
        benchmark::DoNotOptimize(std::fwrite(buffer.data(), 1, buffer.size(), out));
        std::fclose(in);
        std::fclose(out);
    }
}
BENCHMARK(BM_BlockBaselineCopy)->Unit(benchmark::kMillisecond);

}  // namespace
