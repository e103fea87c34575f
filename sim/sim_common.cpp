#include "sim/sim_common.h"

#include "sim/sim_project_file.h"

#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "sim/drive_catalogue.h"

namespace zt::sim {
namespace {

int32_t firstPresentStation(const SimLink& link) {
    for (int s = 0; s < kStationCount; ++s) {
        if (link.station(s)->record.present()) return s;
    }
    return kNoStation;
}

}  // namespace

SimCommon::SimCommon(SimLink link, HostLocale locale)
    : link_(std::move(link)),
      locale_(std::move(locale)),
      selectedStation_(firstPresentStation(link_)) {}

std::string SimCommon::GetMessageText(int32_t number, const std::string& defaultText) {
    const auto it = messages_.find(number);
    return it == messages_.end() ? defaultText : it->second;
}

int32_t SimCommon::GetStationState(int16_t station, STATION_STATE& state, int32_t& value) {
    state = STATION_STATE{};
    value = 0;
    const SimStation* s = link_.station(station);
    if (s == nullptr) return -1;
    state.lngLinkState = s->ready ? 1 : 0;
    return 0;
}

int32_t SimCommon::GetStationComm(int16_t station, STATION_COMM& comm, int32_t& value) {
    comm = STATION_COMM{};
    value = 0;
    const SimStation* s = link_.station(station);
    if (s == nullptr) return -1;
    comm.lngErrorCode = s->commError;
    return 0;
}

int32_t SimCommon::GetCommErrorText(int32_t code, std::string& text, bool& unknown) {
    const auto found = commErrorText(code);
    unknown = !found.has_value();
    text = found ? std::string(*found) : std::string();
    return 0;
}

int32_t SimCommon::FillStationTable(StationTable& table, const SYS_INFO& sysInfo, int32_t& value,
                                    int32_t& count) {
    value = 0;
    count = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (i < sysInfo.udtStation.size()) {
            table[i] = sysInfo.udtStation[i];
            ++count;
        } else {
            table[i] = STATION_RECORD{};
            table[i].intStationNo = static_cast<int16_t>(i);
            table[i].lngModelCode = kStationNotPresent;
        }
    }
    return 0;
}

int32_t SimCommon::LookupStation(int32_t station, STATION_RECORD& record, int32_t& errorCode) {
    record = STATION_RECORD{};
    const SimStation* s = link_.station(station);
    if (s == nullptr) {
        record.lngModelCode = kStationNotPresent;
        errorCode = kErrNoResponse;
        return 0;
    }
    record = s->record;
    errorCode = s->record.present() ? 0 : kErrNoResponse;
    return 0;
}

int32_t SimCommon::GetModelText(std::string& text) {
    if (modelText_) {
        text = *modelText_;
        return 0;
    }
    const DriveModel* m = link_.model(selectedStation_);
    text = m != nullptr ? std::string(m->modelText) : std::string();
    return 0;
}

std::string SimCommon::GetModelSeries(int32_t modelCode) {
    const DriveModel* m = findModel(modelCode);
    return m != nullptr ? std::string(m->series) : std::string();
}

int32_t SimCommon::GetHighSpeedMask(int32_t modelCode) {
    const DriveModel* m = findModel(modelCode);
    return m != nullptr ? m->highSpeedMask : 0;
}

std::vector<ITEM_INFO> SimCommon::GetStationItems(int32_t modelCode, int16_t listSelector,
                                                  int32_t filterMask) {
    const DriveModel* m = findModel(modelCode);
    if (m == nullptr) return {};
    std::vector<ITEM_INFO> items = modelItems(*m, listSelector);
    std::erase_if(items, [&](const ITEM_INFO& i) { return (i.lngFlags & filterMask) == 0; });
    return items;
}

MONI_ITEM SimCommon::AssembleMonitorItem(const std::vector<ITEM_INFO>& analog,
                                         const std::vector<ITEM_INFO>& inOut, int32_t capacity,
                                         int32_t region, int32_t spModel) {
    MONI_ITEM moni;
    moni.udtAnalog = analog;
    for (const ITEM_INFO& item : inOut) {
        const OnOffItemDef* def = findOnOffItem(item.lngItemCode);
        const bool output = def != nullptr && def->direction == Direction::kOutput;
        (output ? moni.udtOutput : moni.udtInput).push_back(item);
    }
    moni.lngCapacity = capacity;
    moni.lngRegion = region;
    moni.lngSpModel = spModel;
    return moni;
}

std::string SimCommon::GetUnitText(int32_t unitCode) {
    const auto text = unitText(unitCode);
    return text ? std::string(*text) : std::string();
}

int32_t SimCommon::QueryDriveAbility(int16_t station, int32_t& abilityWord,
                                     int32_t& operatingState) {
    abilityWord = 0;
    operatingState = 0;
    const SimStation* s = link_.station(station);
    if (s == nullptr || !s->record.present()) return kErrNoResponse;
    if (s->commError != 0) return s->commError;
    if (!s->ready) return kErrNoResponse;
    const DriveModel* m = findModel(s->record.lngModelCode);
    abilityWord = m != nullptr ? m->abilityWord : 0;
    operatingState = s->operatingState;
    return 0;
}

int32_t SimCommon::CheckHighSpeedSampling(int16_t station) {
    const SimStation* s = link_.station(station);
    if (s == nullptr || !s->record.present() || !s->ready) return kHighSpeedNoStation;
    const DriveModel* m = findModel(s->record.lngModelCode);
    if (m == nullptr || m->highSpeedMask == 0 || (m->abilityWord & kAbilityHighSpeed) == 0) {
        return kHighSpeedNotSupported;
    }
    return kHighSpeedPossible;
}

int32_t SimCommon::WriteGraphFileHeader(const std::string& fileName, const std::string& version,
                                        int16_t node) {
    if (fileName.empty()) return -1;
    std::ofstream out(fileName, std::ios::binary | std::ios::trunc);
    if (!out) return -1;
    const std::string header =
        "[COMMON_HEADER]\r\n"
        "DecPoint=" +
        locale_.decimalSeparator +
        "\r\n"
        "FileType=GraphFile\r\n"
        "Version=" +
        version +
        "\r\n"
        "Node=" +
        std::to_string(node) + "\r\n";
    out.write(header.data(), static_cast<std::streamsize>(header.size()));
    out.close();
    return out ? 0 : -1;
}

std::string SimCommon::GetProjectBlockName() {
    return kProjectBlockName;
}

namespace {
// The common library answers positions in 32 bits: a block beyond that is none.
int32_t positionAnswer(int64_t position) {
    return position > std::numeric_limits<int32_t>::max() ? -1 : static_cast<int32_t>(position);
}
}  // namespace

int32_t SimCommon::GetBlockWritePosition(const std::string& fileName,
                                         const std::string& blockName) {
    if (fileName.empty() || blockName != kProjectBlockName) return -1;
    if (blockPosition_) return *blockPosition_;
    return positionAnswer(reserveProjectBlock(fileName, blockName));
}

int32_t SimCommon::GetBlockReadPosition(const std::string& fileName, const std::string& blockName) {
    if (fileName.empty() || blockName != kProjectBlockName) return -1;
    if (blockPosition_) return *blockPosition_;
    return positionAnswer(findProjectBlock(fileName, blockName));
}

void SimCommon::TabMouseMove(const std::string& tabStripName, int16_t button, float xPixels,
                             float yPixels) {
    lastTabMove_ = TabMouseMoveCall{tabStripName, button, xPixels, yPixels};
}

}  // namespace zt::sim
