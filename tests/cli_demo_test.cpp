// The main job end to end: each demo capture configures, runs to completion on the simulated
// host and leaves its pictures behind.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/commands.h"

namespace zt::cli {
namespace {

namespace fs = std::filesystem;

struct DemoCase {
    const char* scenario;
    const char* graphLine;    // the summary line of the finished graph
    const char* triggerLine;  // empty when the capture has no trigger
};

class DemoTest : public ::testing::TestWithParam<DemoCase> {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() /
              ("zt_demo_" + std::string(GetParam().scenario) + "_" +
               std::to_string(::testing::UnitTest::GetInstance()->random_seed()));
    }
    void TearDown() override { fs::remove_all(dir); }
    fs::path dir;
};

std::string firstBytes(const fs::path& path, std::size_t n) {
    std::ifstream in(path, std::ios::binary);
    std::string bytes(n, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(n));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

TEST_P(DemoTest, CaptureCompletesAndWritesThePictures) {
    std::ostringstream out, err;
    const int status =
        runDemo({"--scenario", GetParam().scenario, "--out", dir.string()}, out, err);
    ASSERT_EQ(status, 0) << err.str();
    EXPECT_EQ(err.str(), "");
    const std::string text = out.str();
    EXPECT_NE(text.find("Run state 2"), std::string::npos) << text;
    EXPECT_NE(text.find(GetParam().graphLine), std::string::npos) << text;
    if (*GetParam().triggerLine) {
        EXPECT_NE(text.find(GetParam().triggerLine), std::string::npos) << text;
    }
    EXPECT_EQ(firstBytes(dir / "graph.png", 8), "\x89PNG\r\n\x1a\n");
    EXPECT_NE(firstBytes(dir / "graph.svg", 200).find("<svg"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, DemoTest,
    ::testing::Values(
        DemoCase{"typical", "Graph:    602 samples over 60100.0 ms", "trigger at sample 118"},
        DemoCase{"fault", "Graph:    602 samples", "trigger at sample 298"},
        DemoCase{"high-speed", "Graph:    4002 samples over 4001.0 ms", "trigger at sample 798"},
        DemoCase{"continuous", "Graph:    196 samples", ""}),
    [](const auto& param) {
        std::string name = param.param.scenario;
        std::erase(name, '-');
        return name;
    });

struct BadOptions {
    std::vector<std::string> args;
    const char* complaint;
};

class DemoOptionsTest : public ::testing::TestWithParam<BadOptions> {};

TEST_P(DemoOptionsTest, AreRefusedWithUsage) {
    std::ostringstream out, err;
    EXPECT_EQ(runDemo(GetParam().args, out, err), 2);
    EXPECT_NE(err.str().find(GetParam().complaint), std::string::npos) << err.str();
    EXPECT_NE(err.str().find("usage: ztgraph demo"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Options, DemoOptionsTest,
    ::testing::Values(BadOptions{{"--scenario", "servo"}, "unknown scenario 'servo'"},
                      BadOptions{{"--sweeps", "0"}, "--sweeps takes a number"},
                      BadOptions{{"--width", "abc"}, "--width takes a size"},
                      BadOptions{{"--out"}, "--out needs a value"},
                      BadOptions{{"--colour", "red"}, "unknown option '--colour'"}));

}  // namespace
}  // namespace zt::cli
