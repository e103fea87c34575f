#include "sim/sim_common.h"
#include "sim/sim_project_file.h"
#include "tests/file_bytes.h"

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

int32_t modelCodeOf(std::string_view key) {
    return findModelByKey(key)->modelCode;
}

TEST(SimCommonMessages, TableOverridesDefaultsAndUnknownErrorCodesAreFlagged) {
    SimCommon common;
    common.setMessage(10000, "Graphe");
    EXPECT_EQ(common.GetMessageText(10000, "Graph"), "Graphe");
    EXPECT_EQ(common.GetMessageText(10001, "Start"), "Start");
    common.clearMessages();
    EXPECT_EQ(common.GetMessageText(10000, "Graph"), "Graph");
    std::string text = "stale";
    bool unknown = true;
    EXPECT_EQ(common.GetCommErrorText(static_cast<int32_t>(0x80040001), text, unknown), 0);
    EXPECT_FALSE(unknown);
    EXPECT_EQ(text, std::string("Time-out error.") + '\\' + 'n' + "Check the cable.");
    for (const int32_t code : {0, -1, static_cast<int32_t>(0x8004FFFF)}) {
        EXPECT_EQ(common.GetCommErrorText(code, text, unknown), 0);
        EXPECT_TRUE(unknown) << code;
        EXPECT_EQ(text, "");
    }
}

TEST(SimCommonStations, FillCopiesTheLinkRecordsAndMarksTheRestNotPresent) {
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
    EXPECT_EQ(table[2].lngModelCode, modelCodeOf("vector"));
    EXPECT_EQ(table[3].lngAttribute & 0x100, 0x100);

    SYS_INFO info = common.link().sysInfo();
    info.udtStation.resize(3);
    common.FillStationTable(table, info, value, count);
    EXPECT_EQ(count, 3);
    EXPECT_FALSE(table[3].present());
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
    const auto link = [&](int16_t s) {
        return common.GetStationState(s, state, value), state.lngLinkState;
    };
    const auto error = [&](int16_t s) {
        return common.GetStationComm(s, comm, value), comm.lngErrorCode;
    };
    EXPECT_EQ(link(1), 1);
    EXPECT_EQ(error(1), 0);
    EXPECT_EQ(link(3), 0);
    EXPECT_EQ(error(3), kErrNoResponse);
    EXPECT_EQ(link(2), 1);
    EXPECT_EQ(error(2), static_cast<int32_t>(0x80040001));
    EXPECT_EQ(link(4), 0);  // absent
    common.link().setOnline(3);
    EXPECT_EQ(link(3), 1);
}

TEST(SimCommonStations, OutOfRangeStationsAreRefusedNotCrashed) {
    SimCommon common;
    STATION_STATE state;
    STATION_COMM comm;
    int32_t value = 0;
    for (const int16_t s : {int16_t{-1}, int16_t{32}, int16_t{32767}}) {
        EXPECT_NE(common.GetStationState(s, state, value), 0);
        EXPECT_NE(common.GetStationComm(s, comm, value), 0);
        EXPECT_NE(common.QueryDriveAbility(s, value, value), 0);
        EXPECT_EQ(common.CheckHighSpeedSampling(s), kHighSpeedNoStation);
    }
    common.link().setCommError(99, 1);  // ignored
}

TEST(SimCommonStations, LookupAndModelTextAnswerPresentStationsOnly) {
    SimCommon common;
    STATION_RECORD record;
    int32_t error = -1;
    EXPECT_EQ(common.LookupStation(3, record, error), 0);
    EXPECT_EQ(error, 0);
    EXPECT_EQ(record.lngModelCode, modelCodeOf("servo"));
    common.LookupStation(4, record, error);
    EXPECT_NE(error, 0);
    EXPECT_FALSE(record.present());

    std::string text;
    EXPECT_EQ(common.GetModelText(text), 0);
    EXPECT_EQ(text, "A7-G");  // lowest present station of the standard link
    common.selectStation(3);
    common.GetModelText(text);
    EXPECT_EQ(text, "901");
    common.selectStation(kNoStation);
    common.GetModelText(text);
    EXPECT_EQ(text, "");
}

TEST(SimCommonAbility, DriveAnswersAbilityWordAndOperatingState) {
    SimCommon common;
    int32_t ability = 0;
    int32_t op = -1;
    EXPECT_EQ(common.QueryDriveAbility(1, ability, op), 0);
    EXPECT_NE(ability & kAbilityHighSpeed, 0);
    EXPECT_EQ(common.CheckHighSpeedSampling(1), kHighSpeedPossible);
    EXPECT_EQ(common.CheckHighSpeedSampling(5), kHighSpeedNotSupported);
    common.link().setOperatingState(1, 5);
    common.QueryDriveAbility(1, ability, op);
    EXPECT_EQ(op, 5);
    common.link().setCommError(1, kErrParity);
    EXPECT_EQ(common.QueryDriveAbility(1, ability, op), kErrParity);
    EXPECT_EQ(common.QueryDriveAbility(0, ability, op), kErrNoResponse);
}

TEST(SimCommonItems, AssembleSplitsOnOffItemsIntoInputsAndOutputs) {
    SimCommon common;
    const int32_t code = modelCodeOf("general");
    const auto analog = common.GetStationItems(code, 0, kMonitorFilter);
    auto inOut = common.GetStationItems(code, 1, kMonitorFilter);
    inOut.push_back(ITEM_INFO{});
    inOut.back().lngItemCode = kNoneItem;
    const MONI_ITEM moni = common.AssembleMonitorItem(analog, inOut, 37, 1, 0);
    EXPECT_EQ(moni.udtAnalog, analog);
    ASSERT_FALSE(moni.udtOutput.empty());
    EXPECT_EQ(moni.udtInput.front().strInOutName, "*FWD");
    EXPECT_EQ(moni.udtInput.back().lngItemCode, kNoneItem);  // unknown codes count as inputs
    EXPECT_EQ(moni.udtOutput.front().strInOutName, "*RUN");
    EXPECT_EQ(moni.udtInput.size() + moni.udtOutput.size(), inOut.size());
    EXPECT_EQ(moni.lngCapacity, 37);
}

TEST(SimCommonGraphFile, HeaderIsWrittenAnewWithCrLfAndTheLocaleSeparator) {
    const auto path = tempDir() / "header.gp3";
    std::ofstream(path, std::ios::binary) << std::string(5000, 'x');
    SimCommon common;
    EXPECT_EQ(common.WriteGraphFileHeader(path.string(), "1.00", 3), 0);
    EXPECT_EQ(readAll(path),
              "[COMMON_HEADER]\r\nDecPoint=.\r\nFileType=GraphFile\r\nVersion=1.00\r\nNode=3\r\n");
    HostLocale locale;
    locale.decimalSeparator = ",";
    SimCommon comma(SimLink::standard(), locale);
    EXPECT_EQ(comma.WriteGraphFileHeader(path.string(), "1.00", 0), 0);
    EXPECT_NE(readAll(path).find("\r\nDecPoint=,\r\n"), std::string::npos);
    EXPECT_EQ(common.WriteGraphFileHeader("", "1.00", 0), -1);
    EXPECT_EQ(
        common.WriteGraphFileHeader((tempDir() / "no-such-dir" / "x.gp3").string(), "1.00", 0), -1);
}

TEST(SimCommonProject, BlocksAreFoundByNameInTheFilesTable) {
    SimCommon common;
    const std::string block = common.GetProjectBlockName();
    EXPECT_EQ(block, "ztGraph");
    const auto path = tempDir() / "project.prj";
    std::filesystem::remove(path);
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), -1);  // missing file
    EXPECT_EQ(common.GetBlockWritePosition(path.string(), block), kFirstBlockPosition);
    EXPECT_EQ(std::filesystem::file_size(path), static_cast<uintmax_t>(kProjectHeaderBytes));
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), -1);  // header only
    std::ofstream(path, std::ios::binary | std::ios::app) << "block";
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), kFirstBlockPosition);
    EXPECT_EQ(common.GetBlockWritePosition(path.string(), block), kFirstBlockPosition);
    // Another component's block goes after what the file holds.
    EXPECT_EQ(findProjectBlock(path.string(), "Other"), -1);
    EXPECT_EQ(reserveProjectBlock(path.string(), "Other"), kFirstBlockPosition + 5);
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), block), kFirstBlockPosition);
    EXPECT_EQ(common.GetBlockWritePosition(path.string(), "Other"), -1);  // not the component's
    EXPECT_EQ(common.GetBlockWritePosition("", block), -1);
}

TEST(SimCommonProject, AForeignFileIsNoProjectFile) {
    SimCommon common;
    const auto path = tempDir() / "foreign.prj";
    std::ofstream(path, std::ios::binary | std::ios::trunc) << std::string(400, 'x');
    EXPECT_EQ(common.GetBlockWritePosition(path.string(), kProjectBlockName), -1);
    EXPECT_EQ(common.GetBlockReadPosition(path.string(), kProjectBlockName), -1);
    EXPECT_EQ(std::filesystem::file_size(path), 400u);
}

TEST(SimCommonProject, AFullTableTakesNoMoreBlocks) {
    const auto path = (tempDir() / "full.prj").string();
    std::filesystem::remove(path);
    for (int i = 0; i < kProjectTableEntries; ++i)
        EXPECT_GT(reserveProjectBlock(path, "b" + std::to_string(i)), 0);
    EXPECT_EQ(reserveProjectBlock(path, "one more"), -1);
    EXPECT_EQ(reserveProjectBlock(path, std::string(32, 'n')), -1);  // name too long
}

}  // namespace
}  // namespace zt::sim
