#include "sim/sim_common.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "sim/drive_catalogue.h"

namespace zt::sim {
namespace {

std::filesystem::path tempDir() {
    const char* env = std::getenv("ZT_TEST_TMP");
    std::filesystem::path dir =
        env != nullptr ? std::filesystem::path(env) : std::filesystem::temp_directory_path();
    dir /= "sim_common";
    std::filesystem::create_directories(dir);
    return dir;
}

std::string readAll(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

int32_t modelCodeOf(std::string_view key) {
    return findModelByKey(key)->modelCode;
}

TEST(SimCommonMessages, TableOverridesDefaultOnlyForItsNumbers) {
    SimCommon common;
    EXPECT_EQ(common.GetMessageText(10000, "Graph"), "Graph");
    common.setMessage(10000, "Graphe");
    EXPECT_EQ(common.GetMessageText(10000, "Graph"), "Graphe");
    EXPECT_EQ(common.GetMessageText(10001, "Start"), "Start");
    common.setMessage(10060, "");
    EXPECT_EQ(common.GetMessageText(10060, "None"), "");
    common.clearMessages();
    EXPECT_EQ(common.GetMessageText(10000, "Graph"), "Graph");
}

TEST(SimCommonErrors, KnownCodeKeepsBackslashNUnknownCodeIsFlagged) {
    SimCommon common;
    std::string known = "stale";
    bool knownUnknown = true;
    EXPECT_EQ(common.GetCommErrorText(static_cast<int32_t>(0x80040001), known, knownUnknown), 0);
    EXPECT_FALSE(knownUnknown);
    EXPECT_EQ(known, std::string("Time-out error.") + '\\' + 'n' + "Check the cable.");
    for (const int32_t code : {0, 5, -1, static_cast<int32_t>(0x8004FFFF)}) {
        std::string text = "stale";
        bool unknown = false;
        EXPECT_EQ(common.GetCommErrorText(code, text, unknown), 0);
        EXPECT_TRUE(unknown) << code;
        EXPECT_EQ(text, "");
    }
}

TEST(SimCommonStations, FillCopiesEveryRecordOfTheStandardLink) {
    SimCommon common;
    StationTable table{};
    int32_t value = -7;
    int32_t count = 0;
    EXPECT_EQ(common.FillStationTable(table, common.link().sysInfo(), value, count), 0);
    EXPECT_EQ(count, 32);
    EXPECT_EQ(value, 0);
    for (int s = 0; s < kStationCount; ++s) {
        EXPECT_EQ(table[s].intStationNo, s);
        EXPECT_EQ(table[s].present(), s == 1 || s == 2 || s == 3 || s == 5) << s;
    }
    EXPECT_EQ(table[0].lngModelCode, kStationNotPresent);
    EXPECT_EQ(table[2].lngModelCode, modelCodeOf("vector"));
    EXPECT_EQ(table[3].lngAttribute & 0x100, 0x100);
    EXPECT_EQ(table[1].lngCapacity, findModelByKey("general")->capacity);
}

TEST(SimCommonStations, ShortListFillsTheRestAsNotPresent) {
    SimCommon common;
    StationTable table{};
    SYS_INFO info = common.link().sysInfo();
    info.udtStation.resize(3);
    int32_t value = 0;
    int32_t count = 0;
    common.FillStationTable(table, info, value, count);
    EXPECT_EQ(count, 3);
    EXPECT_TRUE(table[2].present());
    EXPECT_FALSE(table[3].present());
    EXPECT_EQ(table[31].intStationNo, 31);

    info.udtStation.resize(40, table[1]);
    common.FillStationTable(table, info, value, count);
    EXPECT_EQ(count, 32);
}

TEST(SimCommonStations, InjectedFaultsShowInStateAndCommQueries) {
    SimCommon common;
    common.link().setOffline(3);
    common.link().setCommError(2, kErrTimeout);

    STATION_STATE state;
    STATION_COMM comm;
    int32_t value = 0;
    ASSERT_EQ(common.GetStationState(1, state, value), 0);
    EXPECT_EQ(state.lngLinkState, 1);
    ASSERT_EQ(common.GetStationComm(1, comm, value), 0);
    EXPECT_EQ(comm.lngErrorCode, 0);

    common.GetStationState(3, state, value);
    EXPECT_EQ(state.lngLinkState, 0);
    common.GetStationComm(3, comm, value);
    EXPECT_EQ(comm.lngErrorCode, kErrNoResponse);

    common.GetStationState(2, state, value);
    EXPECT_EQ(state.lngLinkState, 1);
    common.GetStationComm(2, comm, value);
    EXPECT_EQ(comm.lngErrorCode, static_cast<int32_t>(0x80040001));

    common.GetStationState(4, state, value);  // absent
    EXPECT_EQ(state.lngLinkState, 0);

    common.link().setOnline(3);
    common.GetStationState(3, state, value);
    EXPECT_EQ(state.lngLinkState, 1);
}

TEST(SimCommonStations, OutOfRangeStationsAreRefusedNotCrashed) {
    SimCommon common;
    STATION_STATE state;
    STATION_COMM comm;
    int32_t value = 0;
    for (const int16_t s : {int16_t{-1}, int16_t{32}, int16_t{32767}}) {
        EXPECT_NE(common.GetStationState(s, state, value), 0);
        EXPECT_EQ(state.lngLinkState, 0);
        EXPECT_NE(common.GetStationComm(s, comm, value), 0);
        int32_t ability = -1;
        int32_t op = -1;
        EXPECT_NE(common.QueryDriveAbility(s, ability, op), 0);
        EXPECT_EQ(common.CheckHighSpeedSampling(s), kHighSpeedNoStation);
    }
    common.link().setCommError(99, 1);  // ignored
    EXPECT_EQ(common.link().station(99), nullptr);
}

TEST(SimCommonStations, LookupAnswersPresentStationsOnly) {
    SimCommon common;
    STATION_RECORD record;
    int32_t error = -1;
    EXPECT_EQ(common.LookupStation(3, record, error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(record.lngModelCode, modelCodeOf("servo"));
    EXPECT_EQ(record.lngAttribute & 0x100, 0x100);

    common.LookupStation(4, record, error);
    EXPECT_NE(error, 0);
    EXPECT_FALSE(record.present());
    common.LookupStation(-5, record, error);
    EXPECT_NE(error, 0);
}

TEST(SimCommonModel, ModelTextFollowsTheSelectedStation) {
    SimCommon common;
    std::string text;
    EXPECT_EQ(common.GetModelText(text), 0);
    EXPECT_EQ(text, "A7-G");  // lowest present station of the standard link
    common.selectStation(3);
    common.GetModelText(text);
    EXPECT_EQ(text, "901");
    common.selectStation(kNoStation);
    common.GetModelText(text);
    EXPECT_EQ(text, "");
    common.setModelText("901");
    common.GetModelText(text);
    EXPECT_EQ(text, "901");
}

TEST(SimCommonAbility, DriveAnswersAbilityWordAndOperatingState) {
    SimCommon common;
    int32_t ability = 0;
    int32_t op = -1;
    EXPECT_EQ(common.QueryDriveAbility(1, ability, op), 0);
    EXPECT_NE(ability & kAbilityHighSpeed, 0);
    EXPECT_EQ(op, 0);
    EXPECT_EQ(common.CheckHighSpeedSampling(1), kHighSpeedPossible);

    EXPECT_EQ(common.QueryDriveAbility(5, ability, op), 0);
    EXPECT_EQ(ability & kAbilityHighSpeed, 0);
    EXPECT_EQ(common.CheckHighSpeedSampling(5), kHighSpeedNotSupported);

    common.link().setOperatingState(1, 5);
    common.QueryDriveAbility(1, ability, op);
    EXPECT_EQ(op, 5);

    common.link().setCommError(1, kErrParity);
    EXPECT_EQ(common.QueryDriveAbility(1, ability, op), kErrParity);
    EXPECT_EQ(common.QueryDriveAbility(0, ability, op), kErrNoResponse);
    EXPECT_EQ(common.CheckHighSpeedSampling(0), kHighSpeedNoStation);
}

TEST(SimCommonItems, AssembleSplitsOnOffItemsIntoInputsAndOutputs) {
    SimCommon common;
    const int32_t code = modelCodeOf("general");
    const auto analog = common.GetStationItems(code, 0, kMonitorFilter);
    auto inOut = common.GetStationItems(code, 1, kMonitorFilter);
    ITEM_INFO none;
    none.lngItemCode = kNoneItem;
    inOut.push_back(none);
    const MONI_ITEM moni = common.AssembleMonitorItem(analog, inOut, 37, 1, 0);
    EXPECT_EQ(moni.udtAnalog, analog);
    ASSERT_FALSE(moni.udtInput.empty());
    ASSERT_FALSE(moni.udtOutput.empty());
    EXPECT_EQ(moni.udtInput.front().strInOutName, "*FWD");
    EXPECT_EQ(moni.udtInput.back().lngItemCode, kNoneItem);  // unknown codes count as inputs
    EXPECT_EQ(moni.udtOutput.front().strInOutName, "*RUN");
    EXPECT_EQ(moni.udtInput.size() + moni.udtOutput.size(), inOut.size());
    EXPECT_EQ(moni.lngCapacity, 37);
    EXPECT_EQ(moni.lngRegion, 1);
    EXPECT_EQ(moni.lngSpModel, 0);
}

TEST(SimCommonGraphFile, HeaderIsWrittenAnewWithCrLf) {
    const auto path = tempDir() / "header.gp3";
    {
        std::ofstream old(path, std::ios::binary);
        old << std::string(5000, 'x');
    }
    SimCommon common;
    EXPECT_EQ(common.WriteGraphFileHeader(path.string(), "1.00", 3), 0);
    EXPECT_EQ(readAll(path),
              "[COMMON_HEADER]\r\nDecPoint=.\r\nFileType=GraphFile\r\nVersion=1.00\r\nNode=3\r\n");
}

TEST(SimCommonGraphFile, DecPointIsTheLocaleSeparator) {
    const auto path = tempDir() / "comma.gp3";
    HostLocale locale;
    locale.decimalSeparator = ",";
    SimCommon common(SimLink::standard(), locale);
    EXPECT_EQ(common.WriteGraphFileHeader(path.string(), "1.00", 0), 0);
    EXPECT_NE(readAll(path).find("\r\nDecPoint=,\r\n"), std::string::npos);
}

TEST(SimCommonGraphFile, UnwritablePathFails) {
    SimCommon common;
    EXPECT_EQ(common.WriteGraphFileHeader("", "1.00", 0), -1);
    EXPECT_EQ(
        common.WriteGraphFileHeader((tempDir() / "no-such-dir" / "x.gp3").string(), "1.00", 0), -1);
}

TEST(SimCommonProject, BlockFollowsAFixedHeader) {
    SimCommon common;
    const std::string block = common.GetProjectBlockName();
    EXPECT_EQ(block, "ztGraph");
    const auto path = tempDir() / "project.prj";
    std::filesystem::remove(path);

    EXPECT_EQ(common.GetBlockWritePosition(path.string(), block), kProjectHeaderBytes + 1);
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), -1);  // missing file

    {
        std::ofstream out(path, std::ios::binary);
        out << std::string(kProjectHeaderBytes, '\0');
    }
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), -1);  // header only
    {
        std::ofstream out(path, std::ios::binary | std::ios::app);
        out << "block";
    }
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), kProjectHeaderBytes + 1);

    EXPECT_EQ(common.GetBlockWritePosition(path.string(), "Other"), -1);
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), "Other"), -1);
    EXPECT_EQ(common.GetBlockWritePosition("", block), -1);
}

TEST(SimCommonMisc, TabMovesAreRecordedLastOneKept) {
    SimCommon common;
    EXPECT_FALSE(common.lastTabMouseMove().has_value());
    common.TabMouseMove("tabSpread", 1, 10.5f, 3.0f);
    common.TabMouseMove("tbsGraphOp", 0, 20.0f, 4.0f);
    ASSERT_TRUE(common.lastTabMouseMove().has_value());
    EXPECT_EQ(common.lastTabMouseMove()->tabStripName, "tbsGraphOp");
    EXPECT_EQ(common.lastTabMouseMove()->xPixels, 20.0f);
}

}  // namespace
}  // namespace zt::sim
