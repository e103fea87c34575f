// The project data block: the 4.00 layout byte for byte, reading every older version with its
// conversions, and damaged or missing blocks.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <string>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"
#include "sim/sim_project_file.h"
#include "store/project_block.h"
#include "store/state_reset.h"
#include "tests/file_bytes.h"

namespace zt {
namespace {

namespace fs = std::filesystem;

template <typename T>
T at(const std::string& bytes, std::size_t offset) {
    T v;
    std::memcpy(&v, bytes.data() + offset, sizeof v);
    return v;
}

void fillState(GraphState& s, uint32_t seed) {
    std::mt19937 rng(seed);
    auto f = [&] { return static_cast<float>(rng() % 100000) / 7.0f; };
    s.sampSetting = SAMPSETTING{2.5, 4000, 3, 1, 0, -1.25, 30, 1200, 1, 0, 3};
    for (int ch = 1; ch <= 8; ++ch) {
        s.chSetting[ch] =
            CHSETTING{static_cast<int16_t>(ch), static_cast<int16_t>(ch > 4),
                      static_cast<int32_t>(rng() % 40000), static_cast<int32_t>(rng() % 33),
                      static_cast<int32_t>(rng() & 0xFFFFFF)};
        s.graphInfo.udtVertScale[ch] = VERTSCALE{f(), static_cast<int16_t>(rng())};
        SAMPDATA& d = s.sampData[ch];
        for (std::size_t i = 0; i < d.sngSamplingData.size(); ++i) {
            d.sngSamplingData[i] = f();
            d.sngSamplingTimeByInv[i] = static_cast<double>(i) * 0.1;
        }
        d.sngUnit = f();
        d.sngBaseValue = f();
        d.intDecPoint = static_cast<int16_t>(ch % 4);
    }
    s.graphInfo.udtHorzScale = HORZSCALE{f(), static_cast<int32_t>(rng())};
    s.graphInfo.udtCursorState = CURSORSTATE{0.1f, 0.9f, 0.2f, 0.8f, 2, 0.5f, 0.25f};
    s.graphInfo.intChNumber = 3;
    s.graphInfo.udtHistoryState = HISTORYSTATE{2, 4, 8};
    for (int slot = 1; slot <= 5; ++slot) {
        s.history.strComments[slot] = "comment " + std::to_string(slot);
        for (SampleRecord& r : s.history.udtGraphResultInfo[slot].udtSample) {
            r.lngDiffTime = static_cast<int32_t>(rng());
            r.intFaultData = static_cast<int16_t>(rng());
            r.intDigitalData = static_cast<int16_t>(rng());
            for (auto& a : r.lngAnalogData)
                a = static_cast<int32_t>(rng());
        }
    }
}

class ProjectBlockTest : public ::testing::Test {
  protected:
    ProjectBlockTest() {
        dir = fs::temp_directory_path() /
              ("zt_project_" +
               std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(dir);
        fs::create_directories(dir);
        file = (dir / "p.prj").string();
    }
    ~ProjectBlockTest() override { fs::remove_all(dir); }
    fs::path dir;
    std::string file;
};

TEST_F(ProjectBlockTest, Version4BlockHasTheLayoutAndReadsBack) {
    auto written = std::make_unique<GraphState>();
    fillState(*written, 5);
    ASSERT_TRUE(writeProjectBlock(*written, file, 11, 1252));
    const std::string bytes = readAll(file);
    ASSERT_EQ(bytes.size(), 10u + static_cast<std::size_t>(kProjectBlockBytes));
    const std::string block = bytes.substr(10);
    EXPECT_EQ(at<int16_t>(block, 0), 4);
    EXPECT_EQ(block.substr(2, 4), "4.00");
    EXPECT_EQ(at<int32_t>(block, 6), 5);
    EXPECT_EQ(at<double>(block, 10), 2.5);
    EXPECT_EQ(at<int32_t>(block, 10 + 40), 1200);         // lngTriggerPoint
    EXPECT_EQ(at<int16_t>(block, 10 + 48), 3);            // intTriggerTarget
    EXPECT_EQ(at<int16_t>(block, 60), 1);                 // channel 1 intChNo
    EXPECT_EQ(at<int32_t>(block, 184 + 4 + 128 - 4), 8);  // lngOverWriteState
    EXPECT_EQ(at<int16_t>(block, 316), 1);                // array header: one dimension
    EXPECT_EQ(at<int32_t>(block, 318), 10000);
    EXPECT_EQ(at<int32_t>(block, 322), 0);
    EXPECT_EQ(at<double>(block, 326), written->sampData[1].sngSamplingData[0]);
    EXPECT_EQ(at<int32_t>(block, 1280556 + 2), 10000);
    EXPECT_EQ(block.substr(2480606, 128), "comment 1" + std::string(119, ' '));

    auto read = std::make_unique<GraphState>();
    resetWholeState(*read);
    ASSERT_TRUE(readProjectBlock(*read, file, 11, false, 1252));
    EXPECT_EQ(read->sampSetting, written->sampSetting);
    EXPECT_EQ(read->graphInfo, written->graphInfo);
    for (int ch = 1; ch <= 8; ++ch) {
        EXPECT_EQ(read->chSetting[ch], written->chSetting[ch]);
        EXPECT_EQ(read->sampData[ch].sngSamplingData, written->sampData[ch].sngSamplingData);
        EXPECT_EQ(read->sampData[ch].sngSamplingTimeByInv,
                  written->sampData[ch].sngSamplingTimeByInv);
        EXPECT_EQ(read->sampData[ch].sngUnit, written->sampData[ch].sngUnit);
    }
    for (int slot = 1; slot <= 5; ++slot) {
        EXPECT_TRUE(read->history.udtGraphResultInfo[slot].udtSample ==
                    written->history.udtGraphResultInfo[slot].udtSample);
        EXPECT_EQ(read->history.strComments[slot],
                  "comment " + std::to_string(slot) + std::string(119, ' '));
    }
}

TEST_F(ProjectBlockTest, Cp932CommentsFillExactly128Bytes) {
    auto s = std::make_unique<GraphState>();
    std::string wide;
    for (int i = 0; i < 70; ++i)
        wide += "\xE3\x81\x82";
    s->history.strComments[1] = wide;
    s->history.strComments[2] =
        "\xE3\x81\x82"
        "a";
    ASSERT_TRUE(writeProjectBlock(*s, file, 1, 932));
    const std::string bytes = readAll(file);
    ASSERT_EQ(bytes.size(), static_cast<std::size_t>(kProjectBlockBytes));
    std::string expected;
    for (int i = 0; i < 64; ++i)
        expected += "\x82\xA0";
    EXPECT_EQ(bytes.substr(2480606, 128), expected);
    EXPECT_EQ(bytes.substr(2480606 + 128, 128),
              "\x82\xA0"
              "a" +
                  std::string(125, ' '));
}

// Older blocks written field by field as their layouts say.
std::string olderBlock(const std::string& version, bool wide, int32_t historyMax) {
    std::string b;
    auto put = [&](auto v) { b.append(reinterpret_cast<const char*>(&v), sizeof v); };
    put(static_cast<int16_t>(version.size()));
    b += version;
    put(historyMax);
    const bool withPoint = version == "3.00" || version == "4.00";
    put(2.0);     // interval
    put(5000.0);  // time
    put(1.0);     // mask
    put(int16_t{1});
    put(int16_t{0});
    put(3.5);
    put(40.0f);  // position
    if (withPoint) put(int32_t{777});
    put(int16_t{0});
    put(int16_t{0});
    put(int16_t{2});
    for (int ch = 1; ch <= 8; ++ch) {
        put(static_cast<int16_t>(ch));
        put(int16_t{0});
        put(int32_t{100 + ch});
        put(int32_t{1});
        put(int32_t{0xFF});
    }
    for (int ch = 1; ch <= 8; ++ch) {
        put(10.0);
        put(int16_t{-1});
    }
    put(100.0f);
    put(int32_t{4});
    for (float f : {0.1f, 0.9f, 0.2f, 0.8f})
        put(f);
    put(int16_t{1});
    put(0.0f);
    put(0.0f);
    put(int16_t{0});
    put(int32_t{1});
    put(int32_t{2});
    if (version != "1.00") put(int32_t{16});
    for (int ch = 1; ch <= 8; ++ch) {
        for (int a = 0; a < 2; ++a) {
            put(int16_t{1});
            put(int32_t{10000});
            put(int32_t{0});
            for (int i = 0; i < 10000; ++i) {
                if (wide)
                    put(static_cast<double>(i) + 0.5);
                else
                    put(static_cast<float>(i) + 0.5f);
            }
        }
        put(1.5f);
        put(2.5f);
        put(int16_t{1});
    }
    const int slots = historyMax >= 1 && historyMax <= 5 ? historyMax : 5;
    for (int slot = 1; slot <= slots; ++slot) {
        put(int16_t{1});
        put(int32_t{10000});
        put(int32_t{0});
        for (int i = 0; i < 10000; ++i) {
            put(int32_t{slot});
            put(int16_t{0});
            put(int16_t{0});
            for (int a = 0; a < 4; ++a)
                put(int32_t{i});
        }
    }
    for (int slot = 1; slot <= slots; ++slot)
        b += std::string(128, 'a' + static_cast<char>(slot));
    return b;
}

struct OlderCase {
    const char* version;
    bool wideInFile;
    bool hostIs520;
    int32_t historyMax;
};

class OlderBlockTest : public ProjectBlockTest, public ::testing::WithParamInterface<OlderCase> {};

TEST_P(OlderBlockTest, ReadsAndConverts) {
    const OlderCase c = GetParam();
    std::ofstream(file, std::ios::binary) << olderBlock(c.version, c.wideInFile, c.historyMax);
    auto s = std::make_unique<GraphState>();
    resetWholeState(*s);
    ASSERT_TRUE(readProjectBlock(*s, file, 1, c.hostIs520, 1252));
    EXPECT_EQ(s->version.lngHistoryMax, 5);
    EXPECT_EQ(s->sampSetting.intTriggerTarget, 2);
    const bool older = std::string(c.version) == "1.00" || std::string(c.version) == "2.00";
    // 40 / 100 x 5000 / 2
    EXPECT_EQ(s->sampSetting.lngTriggerPoint, older ? 1000 : 777);
    EXPECT_EQ(s->graphInfo.udtHistoryState.lngOverWriteState,
              std::string(c.version) == "1.00" ? 0 : 16);
    EXPECT_EQ(s->graphInfo.udtHistoryState.lngGraphTotal, 2);
    EXPECT_EQ(s->sampData[8].sngSamplingData[9999], 9999.5);
    EXPECT_EQ(s->sampData[8].sngBaseValue, 2.5f);
    EXPECT_EQ(s->history.udtGraphResultInfo[5].udtSample[9999].lngAnalogData[3], 9999);
    EXPECT_EQ(s->history.strComments[5], std::string(128, 'f'));
}

INSTANTIATE_TEST_SUITE_P(Versions, OlderBlockTest,
                         ::testing::Values(OlderCase{"1.00", false, false, 5},
                                           OlderCase{"2.00", false, true, 0},
                                           OlderCase{"3.00", false, false, -3},
                                           OlderCase{"3.00", true, true, 9},
                                           OlderCase{"4.00", true, false, 5}));

// Through the control on the simulated common library, whose project file keeps the block
// after a header of its own.
class ProjectFileTest : public ProjectBlockTest {
  protected:
    sim::SimCommonLibrary lib;
    std::unique_ptr<ztGraphControl> control = std::make_unique<ztGraphControl>(lib);
    VERSION_INFO version;
    PROGRAM_VERSION program;
};

TEST_F(ProjectFileTest, SaveAndLoadReproduceTheState) {
    fillState(control->state(), 9);
    for (int ch = 1; ch <= 8; ++ch) {
        control->state().chSetting[ch].lngTargetNo = 32;
        control->state().chSetting[ch].lngSamplingItem = 32768;
    }
    auto saved = std::make_unique<GraphState>();
    ASSERT_EQ(control->SaveKivFile(file, version), 0);
    saved->history = control->state().history;
    saved->graphInfo = control->state().graphInfo;
    auto other = std::make_unique<ztGraphControl>(lib);
    ASSERT_EQ(other->LoadKivFile(file, version, program), 0);
    EXPECT_EQ(other->state().version.strMainVersion, "4.00");
    EXPECT_EQ(other->state().graphInfo.udtHistoryState, saved->graphInfo.udtHistoryState);
    for (int slot = 1; slot <= 5; ++slot)
        EXPECT_TRUE(other->state().history.udtGraphResultInfo[slot].udtSample ==
                    saved->history.udtGraphResultInfo[slot].udtSample);
    EXPECT_EQ(other->surface().lblHistValue[0].Caption, "1");
    EXPECT_EQ(other->surface().chkOverWrite[3].value(), ui::kChecked);
}

TEST_F(ProjectFileTest, DamagedBlocksGiveMinusOneAndLeaveTheStateReset) {
    ASSERT_EQ(control->SaveKivFile(file, version), 0);
    const std::string good = readAll(file);
    struct Damage {
        const char* name;
        std::string bytes;
    };
    std::string badVersion = good;
    badVersion[sim::kFirstBlockPosition - 1 + 2] = '9';
    const std::vector<Damage> damages = {
        {"unknown version", badVersion},
        {"truncated", good.substr(0, good.size() - 1000)},
        {"header only", good.substr(0, sim::kFirstBlockPosition - 1)},
    };
    for (const Damage& d : damages) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << d.bytes;
        control->state().sampSetting.dblSamplingTime = 1234;
        EXPECT_EQ(control->LoadKivFile(file, version, program), -1) << d.name;
        EXPECT_EQ(control->state().sampSetting.dblSamplingTime, 0) << d.name;
        EXPECT_EQ(control->state().chSetting[1].lngTargetNo, 0) << d.name;
        EXPECT_EQ(readAll(file), d.bytes) << d.name;
    }
    EXPECT_EQ(control->LoadKivFile((dir / "none.prj").string(), version, program), -1);
}

TEST_F(ProjectFileTest, NoBlockPositionLeavesTheFileUntouched) {
    EXPECT_EQ(control->SaveKivFile("", version), -1);
    auto s = std::make_unique<GraphState>();
    EXPECT_FALSE(writeProjectBlock(*s, file, -1, 1252));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_FALSE(readProjectBlock(*s, file, 1, false, 1252));
}

}  // namespace
}  // namespace zt

namespace zt {
namespace {

TEST_F(ProjectFileTest, ARandomVersion4BlockLoadsWithoutFailing) {
    std::mt19937 rng(99);
    for (int round = 0; round < 3; ++round) {
        std::string bytes =
            sim::projectFileHeader({{sim::kProjectBlockName, sim::kFirstBlockPosition}});
        bytes += std::string("\x04\x00", 2) + "4.00" + std::string("\x05\x00\x00\x00", 4);
        std::string rest(static_cast<std::size_t>(kProjectBlockBytes - 10), '\0');
        for (char& c : rest)
            c = static_cast<char>(rng());
        // Array headers as written, so that the block reads to its end.
        auto header = [&](std::size_t at) {
            const int16_t dims = 1;
            const int32_t count = 10000, lower = 0;
            std::memcpy(rest.data() + at, &dims, 2);
            std::memcpy(rest.data() + at + 2, &count, 4);
            std::memcpy(rest.data() + at + 6, &lower, 4);
        };
        for (int ch = 0; ch < 8; ++ch) {
            header(306 + static_cast<std::size_t>(ch) * 160030);
            header(306 + static_cast<std::size_t>(ch) * 160030 + 80010);
        }
        for (int slot = 0; slot < 5; ++slot)
            header(1280546 + static_cast<std::size_t>(slot) * 240010);
        std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes + rest;
        const int16_t result = control->LoadKivFile(file, version, program);
        EXPECT_TRUE(result == 0 || result == -1);
    }
}

}  // namespace
}  // namespace zt
