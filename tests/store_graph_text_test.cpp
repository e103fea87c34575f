// The graph text file: the layout written by the export, the reading rules of the import,
// round trips on hand-picked and random states, and files that must never break the reader.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "control/graph_control.h"
#include "core/channel_colors.h"
#include "core/ini_file_access.h"
#include "platform/text/code_page.h"
#include "sim/sim_common_library.h"
#include "store/graph_text_export.h"
#include "store/graph_text_import.h"
#include "store/state_reset.h"
#include "tests/file_bytes.h"

namespace zt {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t pos = 0;
    while (pos < text.size()) {
        std::size_t end = text.find("\r\n", pos);
        if (end == std::string::npos) end = text.size();
        lines.push_back(text.substr(pos, end - pos));
        pos = end + 2;
    }
    return lines;
}

class GraphTextTest : public ::testing::Test {
  protected:
    GraphTextTest() {
        dir =
            fs::temp_directory_path() /
            ("zt_graph_text_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(dir);
        fs::create_directories(dir);
    }
    ~GraphTextTest() override { fs::remove_all(dir); }

    // Writes the file as the export does, with the header step of the simulated library.
    int16_t exportState(const GraphState& state, const std::string& file,
                        const HostLocale& locale) {
        sim::SimCommonLibrary lib(sim::SimLink::standard(), locale);
        const int32_t header = lib.common().WriteGraphFileHeader(file, "1.00", 0);
        return writeGraphTextFile(
            state, file, header, std::string(msg::kDataHeader.defaultText), locale,
            [&](const std::string& s, const std::string& k, const std::string& v) {
                return SetInifileString(file, s, k, v, locale.codePage);
            });
    }
    void importState(GraphState& state, const std::string& file, const HostLocale& locale) {
        resetWholeState(state);
        readGraphTextKeys(state, locale, locale.codePage,
                          [&](const std::string& s, const std::string& k, std::string& v) {
                              return GetInifileString(file, s, k, v, locale.codePage);
                          },
                          {});
        readSampleTables(state, file);
    }

    fs::path dir;
};

// A state the reading rules give back unchanged.
void fillReadableState(GraphState& s, std::mt19937& rng, bool random) {
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
    s.sampSetting = SAMPSETTING{};
    s.sampSetting.intSamplingSpeed = 0;
    s.sampSetting.intSamplingMode = static_cast<int16_t>(random ? pick(0, 1) : 1);
    s.sampSetting.dblSamplingInterval = random ? pick(1, 50) * 0.5 + 1 : 2.5;
    s.sampSetting.dblMask = random ? pick(1, 40) : 3;
    s.sampSetting.dblSamplingTime =
        s.sampSetting.dblSamplingInterval * (random ? pick(100, 10000) : 4000);
    s.sampSetting.intTriggerType = static_cast<int16_t>(random ? pick(0, 1) : 1);
    s.sampSetting.intTriggerBoot = static_cast<int16_t>(random ? pick(0, 1) : 1);
    s.sampSetting.dblTriggerLevel = random ? pick(-99999, 99999) / 100.0 : -12.25;
    s.sampSetting.sngTriggerPosition = static_cast<float>(random ? pick(1, 9) * 10 : 30);
    s.sampSetting.lngTriggerPoint = random ? pick(-1, 10000) : 1200;
    s.sampSetting.intTriggerTarget = static_cast<int16_t>(random ? pick(0, 255) : 3);
    GRAPHINFO& g = s.graphInfo;
    g.udtCursorState.intCursorState = static_cast<int16_t>(random ? pick(0, 2) : 1);
    g.udtCursorState.sngHorzCursorApos = random ? pick(0, 499) / 1000.0f : 0.125f;
    g.udtCursorState.sngHorzCursorBpos = random ? pick(500, 1000) / 1000.0f : 0.75f;
    g.udtCursorState.sngVertCursorApos = random ? pick(0, 499) / 1000.0f : 0.3f;
    g.udtCursorState.sngVertCursorBpos = random ? pick(500, 1000) / 1000.0f : 0.9f;
    g.intChNumber = static_cast<int16_t>(random ? pick(0, 8) : 2);
    const double span = s.sampSetting.dblSamplingTime / 10;
    const int lowScale = static_cast<int>(std::ceil(s.sampSetting.dblSamplingInterval * 10));
    g.udtHorzScale.sngHorzScale = static_cast<float>(
        random ? pick(lowScale, std::max(lowScale, static_cast<int>(span))) : 500);
    if (g.udtHorzScale.sngHorzScale > span) g.udtHorzScale.sngHorzScale = static_cast<float>(span);
    const int scrollMax = static_cast<int>(
        std::floor(s.sampSetting.dblSamplingTime / g.udtHorzScale.sngHorzScale - 10));
    g.udtHorzScale.lngHScrollPos =
        random ? pick(0, std::max(0, scrollMax)) : std::min(3, std::max(0, scrollMax));
    g.udtHistoryState.lngGraphTotal = random ? pick(0, 5) : 4;
    g.udtHistoryState.lngCurrentGraph = random ? pick(0, g.udtHistoryState.lngGraphTotal) : 2;
    g.udtHistoryState.lngOverWriteState = random ? pick(0, 31) : 8;
    for (int ch = 1; ch <= 8; ++ch) {
        CHSETTING& c = s.chSetting[ch];
        c.intChNo = static_cast<int16_t>(ch);
        c.intAD = static_cast<int16_t>(ch > 4);
        c.lngTargetNo = random ? pick(0, 32) : (ch <= 2 ? 1 : 32);
        c.lngSamplingItem = random ? pick(0, 40000) : (ch <= 2 ? 0x100 + ch : 32768);
        c.lngGraphColor = random ? pick(1, 0xFFFFFF) : 0x0000FF * ch;
        s.sampData[ch].sngUnit = static_cast<float>(random ? pick(-1000, 1000) : 10);
        s.sampData[ch].sngBaseValue = static_cast<float>(random ? pick(-100000, 100000) : 600);
        s.sampData[ch].intDecPoint = static_cast<int16_t>(random ? pick(0, 3) : 2);
        g.udtVertScale[ch].dblVertScale = ch <= 4 ? (random ? pick(1, 1000000) / 10.0 : 12.5) : 0;
        g.udtVertScale[ch].intZeroPos = static_cast<int16_t>(random ? pick(-32700, 32700) : -2);
    }
    const std::vector<std::string> comments = {"", "first run", "Motor 3 \xC3\xA9t\xC3\xA9", "x",
                                               "12/1/2026 3:04:05 PM"};
    for (int slot = 1; slot <= 5; ++slot) {
        s.history.strComments[slot] = comments[static_cast<std::size_t>(slot - 1)];
        auto& samples = s.history.udtGraphResultInfo[slot].udtSample;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            SampleRecord& r = samples[i];
            if (random) {
                r.lngDiffTime = static_cast<int32_t>(rng());
                r.intFaultData = static_cast<int16_t>(rng());
                r.intDigitalData = static_cast<int16_t>(rng());
                for (auto& a : r.lngAnalogData)
                    a = static_cast<int32_t>(rng());
            } else {
                r = SampleRecord{static_cast<int32_t>(slot * 10),
                                 0,
                                 static_cast<int16_t>(i % 16),
                                 {static_cast<int32_t>(i) - 5000, 4000, 0, -1}};
            }
        }
    }
}

void expectSameState(const GraphState& a, const GraphState& b) {
    EXPECT_EQ(a.sampSetting, b.sampSetting);
    for (int ch = 1; ch <= 8; ++ch) {
        EXPECT_EQ(a.chSetting[ch], b.chSetting[ch]) << "channel " << ch;
        EXPECT_EQ(a.sampData[ch].sngUnit, b.sampData[ch].sngUnit);
        EXPECT_EQ(a.sampData[ch].sngBaseValue, b.sampData[ch].sngBaseValue);
        EXPECT_EQ(a.sampData[ch].intDecPoint, b.sampData[ch].intDecPoint);
    }
    EXPECT_EQ(a.graphInfo, b.graphInfo);
    for (int slot = 1; slot <= 5; ++slot) {
        EXPECT_EQ(a.history.strComments[slot], b.history.strComments[slot]) << "slot " << slot;
        EXPECT_TRUE(a.history.udtGraphResultInfo[slot].udtSample ==
                    b.history.udtGraphResultInfo[slot].udtSample)
            << "slot " << slot;
    }
}

TEST_F(GraphTextTest, FileLayoutHasTheKeysInOrderAndTenThousandLinesPerSlot) {
    auto state = std::make_unique<GraphState>();
    std::mt19937 rng(1);
    fillReadableState(*state, rng, false);
    const std::string file = (dir / "g.gp3").string();
    ASSERT_EQ(exportState(*state, file, HostLocale{}), 0);
    const std::vector<std::string> lines = linesOf(readAll(file));

    auto at = std::find(lines.begin(), lines.end(), "[COMMON]");
    ASSERT_NE(at, lines.end());
    const std::vector<std::string> common = {
        "SamplingSpeed=0",      "SamplingMode=1",      "SamplingInterval=2.5",
        "SamplingMask=3",       "SamplingTime=10000",  "TriggerType=1",
        "TriggerBoot=1",        "TriggerLevel=-12.25", "TriggerPosition=30",
        "TriggerTarget=3",      "TriggerPoint=1200",   "CursorState=1",
        "HorzCursorApos=0.125", "HorzCursorBpos=0.75", "VertCursorApos=0.3",
        "VertCursorBpos=0.9",   "ChNumber=2",          "HorzScale=500",
        "HScrollPos=3",         "CurrentGraph=2",      "GraphTotal=4",
        "OverWriteState=8"};
    for (const std::string& expected : common)
        EXPECT_EQ(*++at, expected);
    EXPECT_EQ(*++at, "[CHANNEL_01]");
    for (const char* expected :
         {"TargetNo=1", "SamplingItem=257", "GraphColor=255", "AD=0", "Unit=10", "Base=600",
          "VertScale=12.5", "ZeroPos=-2", "DecPoint=2"})
        EXPECT_EQ(*++at, expected);

    for (int slot = 1; slot <= 5; ++slot) {
        at = std::find(lines.begin(), lines.end(), "[" + dataSectionName(slot) + "]");
        ASSERT_NE(at, lines.end());
        EXPECT_EQ(*++at, "Comment=" + text::toAnsi(state->history.strComments[slot], 1252) + " ");
        EXPECT_EQ(*++at, msg::kDataHeader.defaultText);
        EXPECT_EQ(*++at, std::to_string(slot * 10) + ",0,0,-5000,4000,0,-1");
        EXPECT_EQ(*(at + 9999), std::to_string(slot * 10) + ",0,15,4999,4000,0,-1");
        if (slot < 5) {
            EXPECT_TRUE((at + 10000)->empty() || (at + 10000)->front() == '[');
        }
    }
    EXPECT_EQ(lines.back(), "50,0,15,4999,4000,0,-1");
}

TEST_F(GraphTextTest, HandPickedStateSurvivesExportAndImportInACommaLocale) {
    HostLocale comma;
    comma.decimalSeparator = ",";
    comma.thousandsSeparator = ".";
    auto written = std::make_unique<GraphState>();
    std::mt19937 rng(2);
    fillReadableState(*written, rng, false);
    const std::string file = (dir / "comma.gp3").string();
    ASSERT_EQ(exportState(*written, file, comma), 0);
    EXPECT_NE(readAll(file).find("TriggerLevel=-12,25\r\n"), std::string::npos);

    // "DecPoint" maps the decimal-mapped keys; the others follow the locale's numeric test.
    auto read = std::make_unique<GraphState>();
    importState(*read, file, comma);
    expectSameState(*written, *read);
}

TEST_F(GraphTextTest, RandomStatesSurviveExportAndImport) {
    for (uint32_t seed = 10; seed < 14; ++seed) {
        std::mt19937 rng(seed);
        auto written = std::make_unique<GraphState>();
        fillReadableState(*written, rng, true);
        const std::string file = (dir / ("r" + std::to_string(seed) + ".gp3")).string();
        ASSERT_EQ(exportState(*written, file, HostLocale{}), 0);
        auto read = std::make_unique<GraphState>();
        importState(*read, file, HostLocale{});
        SCOPED_TRACE(seed);
        expectSameState(*written, *read);
    }
}

TEST_F(GraphTextTest, Cp932CommentsComeBackCutTo128Bytes) {
    HostLocale jp;
    jp.codePage = 932;
    auto written = std::make_unique<GraphState>();
    std::mt19937 rng(3);
    fillReadableState(*written, rng, false);
    std::string wide;
    for (int i = 0; i < 70; ++i)
        wide += "\xE3\x81\x82";
    written->history.strComments[2] = wide;
    const std::string file = (dir / "jp.gp3").string();
    ASSERT_EQ(exportState(*written, file, jp), 0);
    auto read = std::make_unique<GraphState>();
    importState(*read, file, jp);
    EXPECT_EQ(read->history.strComments[2], wide.substr(0, 64 * 3));
    EXPECT_EQ(read->history.strComments[4], written->history.strComments[4]);
}

TEST_F(GraphTextTest, FailedWritesGiveMinusOneWithoutCrashing) {
    auto state = std::make_unique<GraphState>();
    EXPECT_EQ(exportState(*state, "/dev/full", HostLocale{}), -1);
    EXPECT_EQ(exportState(*state, (dir / "no" / "such" / "g.gp3").string(), HostLocale{}), -1);
    EXPECT_EQ(exportGraphTextFile(*state, "/dev/full", 0, "H=", HostLocale{}, 1252), -1);
    EXPECT_EQ(
        exportGraphTextFile(*state, (dir / "no" / "g.gp3").string(), 0, "H=", HostLocale{}, 1252),
        -1);
    EXPECT_EQ(exportGraphTextFile(*state, dir.string(), 0, "H=", HostLocale{}, 1252), -1);
}

TEST_F(GraphTextTest, InMemoryExportLeavesTheBytesOfWritesMadeOneByOne) {
    HostLocale jp;
    jp.codePage = 932;
    auto state = std::make_unique<GraphState>();
    std::mt19937 rng(8);
    fillReadableState(*state, rng, true);
    state->history.strComments[3] = "\xE3\x81\x82 a,b";
    const std::string direct = (dir / "direct.gp3").string();
    const std::string memory = (dir / "memory.gp3").string();
    ASSERT_EQ(exportState(*state, direct, jp), 0);
    sim::SimCommonLibrary lib(sim::SimLink::standard(), jp);
    const int32_t header = lib.common().WriteGraphFileHeader(memory, "1.00", 0);
    ASSERT_EQ(exportGraphTextFile(*state, memory, header, std::string(msg::kDataHeader.defaultText),
                                  jp, 932),
              0);
    EXPECT_TRUE(readAll(direct) == readAll(memory));
}

TEST_F(GraphTextTest, AFailedKeyedWriteStillWritesTheTables) {
    auto state = std::make_unique<GraphState>();
    const std::string file = (dir / "k.gp3").string();
    int writes = 0;
    const int16_t result =
        writeGraphTextFile(*state, file, 0, "H=", HostLocale{},
                           [&](const std::string& s, const std::string& k, const std::string& v) {
                               return ++writes != 3 && SetInifileString(file, s, k, v, 1252);
                           });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(writes, 22 + 72 + 5);
    const std::vector<std::string> lines = linesOf(readAll(file));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "0,0,0,0,0,0,0"), 5 * kDataLines);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "H="), 5);
}

// Files other writers or damaged disks produce.
class GraphTextReaderTest : public GraphTextTest {
  protected:
    std::unique_ptr<GraphState> load(const std::string& text, HostLocale locale = {}) {
        const std::string file = (dir / "in.gp3").string();
        std::ofstream(file, std::ios::binary) << text;
        auto state = std::make_unique<GraphState>();
        importState(*state, file, locale);
        return state;
    }
    static std::string table(int rows, int first) {
        std::string t;
        for (int i = 0; i < rows; ++i)
            t += std::to_string(first + i) + ",1,2,3,4,5,6\r\n";
        return t;
    }
};

TEST_F(GraphTextReaderTest, MissingKeysTakeTheirDefaults) {
    auto s = load("");
    EXPECT_EQ(s->sampSetting.dblSamplingInterval, 100);
    EXPECT_EQ(s->sampSetting.dblSamplingTime, 1000000);  // 10,000 intervals
    EXPECT_EQ(s->sampSetting.sngTriggerPosition, 10);
    EXPECT_EQ(s->sampSetting.lngTriggerPoint, 1000);
    EXPECT_EQ(s->sampSetting.intTriggerTarget, 255);
    EXPECT_EQ(s->graphInfo.udtHorzScale.sngHorzScale, 100000);
    EXPECT_EQ(s->graphInfo.udtCursorState.sngHorzCursorBpos, 1);
    EXPECT_EQ(s->chSetting[1].lngTargetNo, 32);
    EXPECT_EQ(s->chSetting[1].lngSamplingItem, 32768);
    EXPECT_EQ(s->sampData[1].sngBaseValue, 1);
    EXPECT_EQ(s->graphInfo.udtVertScale[1].dblVertScale, 99999999.9);
    EXPECT_EQ(s->graphInfo.udtVertScale[5].dblVertScale, 0);
    EXPECT_EQ(s->version.strMainVersion, "1.00");
}

TEST_F(GraphTextReaderTest, ValuesOutsideTheirRangesTakeDefaults) {
    auto s = load(
        "[COMMON]\r\nSamplingSpeed=1\r\nSamplingMask=1\r\nSamplingTime=9000\r\n"
        "TriggerType=2\r\nTriggerBoot=1\r\nTriggerLevel=1.23456789\r\nCurrentGraph=4\r\n"
        "GraphTotal=3\r\nHorzScale=100\r\nhscrollpos=2\r\nTriggerPoint=20000\r\n"
        "[CHANNEL_01]\r\nUnit=2.75\r\nZeroPos=1e3\r\nGraphColor=0\r\nTargetNo=40\r\n"
        "[CHANNEL_02]\r\nZeroPos=40000\r\nVertScale=0.05\r\n");
    EXPECT_EQ(s->sampSetting.dblSamplingTime, 8000);  // above the high-speed bound
    EXPECT_EQ(s->sampSetting.intTriggerBoot, 0);
    EXPECT_DOUBLE_EQ(s->sampSetting.dblTriggerLevel, 1.23);
    EXPECT_EQ(s->sampSetting.lngTriggerPoint, 0);
    EXPECT_EQ(s->graphInfo.udtHistoryState.lngCurrentGraph, 0);
    EXPECT_EQ(s->graphInfo.udtHorzScale.lngHScrollPos, 2);
    EXPECT_EQ(s->sampData[1].sngUnit, 3);
    EXPECT_EQ(s->graphInfo.udtVertScale[1].intZeroPos, 0);
    EXPECT_EQ(s->chSetting[1].lngGraphColor, kDefaultChannelColor[1]);
    EXPECT_EQ(s->chSetting[1].lngTargetNo, 32);
    EXPECT_EQ(s->graphInfo.udtVertScale[2].intZeroPos, 32700);
    EXPECT_EQ(s->graphInfo.udtVertScale[2].dblVertScale, 99999999.9);
}

TEST_F(GraphTextReaderTest, OldSingleDataSectionLoadsIntoSlotOne) {
    auto s = load("[COMMON]\r\n[DATA]\r\nDifference time,a,b,c,d,e,f=\r\n" + table(3, 7));
    EXPECT_EQ(s->history.udtGraphResultInfo[1].udtSample[0].lngDiffTime, 7);
    EXPECT_EQ(s->history.udtGraphResultInfo[1].udtSample[2].lngAnalogData[3], 6);
    EXPECT_EQ(s->history.udtGraphResultInfo[1].udtSample[3], SampleRecord{});
    EXPECT_EQ(s->history.udtGraphResultInfo[2].udtSample[0], SampleRecord{});
}

TEST_F(GraphTextReaderTest, SectionsOutOfOrderAreNotFound) {
    const std::string head = "Comment=x \r\nH,a,b,c,d,e,f=\r\n";
    auto s = load("[DATA_02]\r\n" + head + table(2, 20) + "[DATA_01]\r\n" + head + table(2, 10) +
                  "[DATA_03]\r\n" + head + table(2, 30));
    EXPECT_EQ(s->history.udtGraphResultInfo[1].udtSample[0].lngDiffTime, 10);
    EXPECT_EQ(s->history.udtGraphResultInfo[2].udtSample[0].lngDiffTime, 0);
    EXPECT_EQ(s->history.udtGraphResultInfo[3].udtSample[0].lngDiffTime, 0);
}

TEST_F(GraphTextReaderTest, MalformedFieldsAndCommentsWithCommasAreSkipped) {
    auto s = load(
        "[DATA_01]\r\nComment=a, \"b\", c \r\nH,a,b,c,d,e,f=\r\n"
        "1,x,2,3,4,5,6\r\n8,70000,2,3,4,5,6\r\n\r\n9,1,2,3,4,5,6\r\n"
        "[DATA_02]\r\nComment= \r\nH=\r\n" +
        table(1, 42));
    const auto& g = s->history.udtGraphResultInfo[1].udtSample;
    EXPECT_EQ(g[0].lngDiffTime, 1);
    EXPECT_EQ(g[0].intFaultData, 0);
    EXPECT_EQ(g[1].intFaultData, 0);  // beyond 16 bits
    EXPECT_EQ(g[1].intDigitalData, 2);
    EXPECT_EQ(g[2].lngDiffTime, 9);
    EXPECT_EQ(s->history.udtGraphResultInfo[2].udtSample[0].lngDiffTime, 42);
    EXPECT_EQ(s->history.strComments[1], "a, \"b\", c");
}

TEST_F(GraphTextReaderTest, AMissingFileLeavesEverySlotZero) {
    auto s = std::make_unique<GraphState>();
    s->history.udtGraphResultInfo[3].udtSample[5].lngDiffTime = 4;
    readSampleTables(*s, (dir / "gone.gp3").string());
    for (int slot = 1; slot <= 5; ++slot)
        for (const SampleRecord& r : s->history.udtGraphResultInfo[slot].udtSample)
            ASSERT_EQ(r, SampleRecord{});
}

TEST_F(GraphTextReaderTest, ArbitraryBytesNeverBreakTheReader) {
    std::mt19937 rng(77);
    const std::string alphabet = "[]DATA_0123456789,\"=\r\n -eE.";
    for (int round = 0; round < 20; ++round) {
        std::string text;
        const int n = std::uniform_int_distribution<int>(0, 4000)(rng);
        for (int i = 0; i < n; ++i)
            text += rng() % 3 == 0 ? static_cast<char>(rng()) : alphabet[rng() % alphabet.size()];
        auto s = load(text);
        EXPECT_EQ(s->version.lngHistoryMax, 5);
    }
}

}  // namespace
}  // namespace zt
