// The file commands on the files the demo writes: info on the graph text file and on the
// project block, the CSV export and the picture of a saved graph.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "cli/commands.h"

namespace zt::cli {
namespace {

namespace fs = std::filesystem;

class CliFilesTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        // One folder per process: ctest runs the cases of this suite side by side.
        dir = fs::temp_directory_path() / ("zt_cli_files_" + std::to_string(::getpid()));
        fs::remove_all(dir);
        std::ostringstream out, err;
        ASSERT_EQ(runDemo({"--out", dir.string()}, out, err), 0) << err.str();
    }
    static void TearDownTestSuite() { fs::remove_all(dir); }
    static fs::path dir;
};
fs::path CliFilesTest::dir;

TEST_F(CliFilesTest, InfoPrintsTheImportedGraphAsJson) {
    std::ostringstream out, err;
    ASSERT_EQ(runInfo({(dir / "graph.gp3").string(), "--json", "--records", "0,9999"}, out, err), 0)
        << err.str();
    const std::string json = out.str();
    EXPECT_EQ(json.rfind("{\"result\": 0, \"runState\": 2, \"SAMPSETTING\": {", 0), 0u) << json;
    EXPECT_NE(json.find("\"strMainVersion\": \"1.00\""), std::string::npos);
    EXPECT_NE(json.find("\"HISTORYSTATE\": {\"lngCurrentGraph\": 1, \"lngGraphTotal\": 1"),
              std::string::npos);
    EXPECT_NE(json.find("\"9999\": [0, 0, 0, 0, 0, 0, 0]"), std::string::npos);
}

TEST_F(CliFilesTest, InfoReadsTheProjectBlockAtItsOffset) {
    std::ostringstream out, err;
    ASSERT_EQ(runInfo({(dir / "project.ztp").string(), "--offset", "336"}, out, err), 0)
        << err.str();
    EXPECT_NE(out.str().find("version \"4.00\""), std::string::npos) << out.str();
    std::ostringstream bad, badErr;
    EXPECT_EQ(runInfo({(dir / "project.ztp").string(), "--offset", "100"}, bad, badErr), 1);
    EXPECT_NE(bad.str().find("result -1"), std::string::npos);
}

TEST_F(CliFilesTest, CsvAndPictureOfASavedGraph) {
    std::ostringstream out, err;
    const fs::path csv = dir / "g.csv";
    ASSERT_EQ(runExportCsv({(dir / "graph.gp3").string(), "--out", csv.string()}, out, err), 0)
        << err.str();
    std::ifstream in(csv);
    std::string header, first;
    std::getline(in, header);
    std::getline(in, first);
    EXPECT_EQ(header.rfind("Time[ms],CH1 ", 0), 0u) << header;
    EXPECT_NE(header.find("[Hz]"), std::string::npos);
    EXPECT_EQ(first.rfind("0,", 0), 0u);

    const fs::path png = dir / "saved.png";
    ASSERT_EQ(runRender({"--from", (dir / "graph.gp3").string(), "--out", png.string()}, out, err),
              0)
        << err.str();
    EXPECT_GT(fs::file_size(png), 1000u);
}

}  // namespace
}  // namespace zt::cli
