#include "sim/drive_catalogue.h"

#include <algorithm>
#include <array>
#include <string>

namespace zt::sim {
namespace {

// Flag combinations of the tables below.
constexpr int32_t kMon = kFlagMonitor | kFlagMonitorList;
constexpr int32_t kMonHs = kMon | kFlagHighSpeedList;  // analog: plus a high-speed group
constexpr int32_t kHsOnly = kFlagHighSpeedList;        // analog: plus a high-speed group
constexpr int32_t kOnOffHs = kMon | kFlagHighSpeed | kFlagHighSpeedList;

constexpr int16_t kSigned = kAttrSigned;
constexpr int16_t kEffective = kAttrEffective;

constexpr std::array kUnits{
    UnitDef{kUnitNone, ""}, UnitDef{kUnitHz, "Hz"},       UnitDef{kUnitA, "A"},
    UnitDef{kUnitV, "V"},   UnitDef{kUnitPercent, "%"},   UnitDef{kUnitRpm, "r/min"},
    UnitDef{kUnitKw, "kW"}, UnitDef{kUnitPulse, "pulse"},
};

// code, name, unit, full scale, attribute, flags, decimal places
constexpr std::array kAnalogItems{
    AnalogItemDef{201, "*Output frequency", kUnitHz, 120, kSigned, kMonHs | kGroupBasic, 2},
    AnalogItemDef{202, "*Output current", kUnitA, 200, kEffective, kMonHs | kGroupBasic, 2},
    AnalogItemDef{203, "*Output voltage", kUnitV, 500, kEffective, kMonHs | kGroupBasic, 1},
    AnalogItemDef{204, "Input power", kUnitKw, 30, 0, kMon, 2},
    AnalogItemDef{206, "*Torque current", kUnitA, 200, kSigned, kMonHs | kGroupVector, 2},
    AnalogItemDef{207, "*Torque", kUnitPercent, 200, kSigned, kMonHs | kGroupVector, 0},
    AnalogItemDef{208, "*Torque command", kUnitPercent, 200, kSigned, kMonHs | kGroupVector, 0},
    AnalogItemDef{209, "*Motor speed", kUnitRpm, 1800, kSigned, kMonHs | kGroupVector, 0},
    AnalogItemDef{210, "*Speed command", kUnitRpm, 1800, kSigned, kMonHs | kGroupVector, 0},
    AnalogItemDef{211, "Speed detection", kUnitRpm, 1800, kSigned, kMon, 0},
    AnalogItemDef{212, "DC link bus voltage", kUnitV, 800, 0, kMon, 0},
    AnalogItemDef{213, "Output power", kUnitKw, 30, kSigned, kMon, 2},
    AnalogItemDef{222, "*Position Command [before the electronic gear]", kUnitPulse, 65536, kSigned,
                  kHsOnly | kGroupServo, 0},
    AnalogItemDef{224, "*Current Position [before the electronic gear]", kUnitPulse, 65536, kSigned,
                  kHsOnly | kGroupServo, 0},
    AnalogItemDef{226, "*Droop Pulse [after the electronic gear]", kUnitPulse, 65536, kSigned,
                  kHsOnly | kGroupServo, 0},
    AnalogItemDef{233, "*Torque bias", kUnitPercent, 200, kSigned, kHsOnly | kGroupVector, 0},
    AnalogItemDef{242, "PID feedback", kUnitPercent, 100, 0, kMon, 1},
};

using enum Direction;
constexpr std::array kOnOffItems{
    OnOffItemDef{1, "*FWD", kInput, kOnOffHs},
    OnOffItemDef{2, "*REV", kInput, kOnOffHs},
    OnOffItemDef{3, "X1", kInput, kMon},
    OnOffItemDef{4, "X2", kInput, kMon},
    OnOffItemDef{5, "X3", kInput, kMon},
    OnOffItemDef{33, "*RUN", kOutput, kOnOffHs},
    OnOffItemDef{34, "FWD/REV", kOutput, kMon},
    OnOffItemDef{35, "Up to frequency", kOutput, kMon},
    OnOffItemDef{36, "*Fault", kOutput, kOnOffHs},
    OnOffItemDef{37, "Alarm", kOutput, kMon},
    OnOffItemDef{38, "Brake signal", kOutput, kMon},
    OnOffItemDef{39, "*Positioning complete", kOutput, kOnOffHs},
};

// Item lists per model, in the order the host shows them.
constexpr std::array<int32_t, 7> kGeneralAnalog{201, 202, 203, 204, 212, 213, 242};
constexpr std::array<int32_t, 10> kGeneralOnOff{1, 2, 3, 4, 5, 33, 34, 35, 36, 37};
constexpr std::array<int32_t, 14> kVectorAnalog{201, 202, 203, 204, 206, 207, 208,
                                                209, 210, 211, 212, 213, 233, 242};
constexpr std::array<int32_t, 11> kVectorOnOff{1, 2, 3, 4, 5, 33, 34, 35, 36, 37, 38};
constexpr std::array<int32_t, 8> kServoAnalog{201, 202, 207, 209, 210, 222, 224, 226};
constexpr std::array<int32_t, 7> kServoOnOff{1, 2, 3, 33, 36, 37, 39};
constexpr std::array<int32_t, 6> kCompactAnalog{201, 202, 203, 204, 212, 242};
constexpr std::array<int32_t, 7> kCompactOnOff{3, 4, 5, 34, 35, 37, 38};

// key, model code, series, model text, high-speed mask, ability word, capacity, region,
// sp-model, station attribute, items
constexpr std::array kModels{
    DriveModel{"general", 0x01700215, "A", "A7-G", kGroupBasic, kAbilityHighSpeed | 0x1, 37, 1, 0,
               0, kGeneralAnalog, kGeneralOnOff},
    DriveModel{"vector", 0x05700522, "E", "E8-V", kGroupBasic | kGroupVector,
               kAbilityHighSpeed | 0x3, 75, 2, 1, 0, kVectorAnalog, kVectorOnOff},
    DriveModel{"servo", 0x0C100901, "S", "901", kGroupBasic | kGroupVector | kGroupServo,
               kAbilityHighSpeed, 15, 1, 0, 0x100, kServoAnalog, kServoOnOff},
    DriveModel{"compact", 0x01700110, "A", "A7-C", 0, 0x1, 7, 1, 0, 0, kCompactAnalog,
               kCompactOnOff},
};

constexpr std::array kCommErrors{
    CommErrorDef{kErrTimeout, "Time-out error.\\nCheck the cable."},
    CommErrorDef{kErrChecksum, "Checksum error.\\nCheck the communication settings."},
    CommErrorDef{kErrParity, "Parity error.\\nCheck the baud rate and parity settings."},
    CommErrorDef{kErrFraming, "Framing error.\\nCheck the baud rate setting."},
    CommErrorDef{kErrNoResponse,
                 "The station does not respond.\\nCheck the station number and the power of "
                 "the inverter."},
    CommErrorDef{kErrBusy, "The inverter is busy.\\nWait a moment and try again."},
};

template <typename Table, typename Pred>
auto findIn(const Table& table, Pred pred) -> const typename Table::value_type* {
    const auto it = std::find_if(table.begin(), table.end(), pred);
    return it == table.end() ? nullptr : &*it;
}

}  // namespace

std::span<const DriveModel> driveModels() {
    return kModels;
}
std::span<const AnalogItemDef> analogItemDefs() {
    return kAnalogItems;
}
std::span<const OnOffItemDef> onOffItemDefs() {
    return kOnOffItems;
}
std::span<const UnitDef> unitDefs() {
    return kUnits;
}
std::span<const CommErrorDef> commErrorDefs() {
    return kCommErrors;
}

const DriveModel* findModel(int32_t modelCode) {
    return findIn(kModels, [&](const DriveModel& m) { return m.modelCode == modelCode; });
}

const DriveModel* findModelByKey(std::string_view key) {
    return findIn(kModels, [&](const DriveModel& m) { return m.key == key; });
}

const AnalogItemDef* findAnalogItem(int32_t code) {
    return findIn(kAnalogItems, [&](const AnalogItemDef& d) { return d.code == code; });
}

const OnOffItemDef* findOnOffItem(int32_t code) {
    return findIn(kOnOffItems, [&](const OnOffItemDef& d) { return d.code == code; });
}

std::optional<std::string_view> unitText(int32_t unitCode) {
    const auto* u = findIn(kUnits, [&](const UnitDef& d) { return d.code == unitCode; });
    if (u == nullptr) return std::nullopt;
    return u->text;
}

std::optional<std::string_view> commErrorText(int32_t code) {
    const auto* e = findIn(kCommErrors, [&](const CommErrorDef& d) { return d.code == code; });
    if (e == nullptr) return std::nullopt;
    return e->text;
}

ITEM_INFO toItemInfo(const AnalogItemDef& def) {
    ITEM_INFO item;
    item.lngItemCode = def.code;
    item.strAnalogName = std::string(def.name);
    item.lngUnitCode = def.unitCode;
    item.lngFullScale = def.fullScale;
    item.intAttribute = def.attribute;
    item.lngFlags = def.flags;
    const int32_t lower = (def.attribute & kAttrSigned) != 0 ? -def.fullScale : 0;
    item.lngValue = {def.decimals, lower, def.fullScale, 0, 0, 0, 0, 0, 0, 0, 0};
    return item;
}

ITEM_INFO toItemInfo(const OnOffItemDef& def) {
    ITEM_INFO item;
    item.lngItemCode = def.code;
    item.strInOutName = std::string(def.name);
    item.lngFlags = def.flags;
    item.lngValue = {0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0};
    return item;
}

std::vector<ITEM_INFO> modelItems(const DriveModel& model, int listSelector) {
    std::vector<ITEM_INFO> items;
    if (listSelector == 0) {
        for (const int32_t code : model.analogItems) {
            if (const auto* def = findAnalogItem(code)) items.push_back(toItemInfo(*def));
        }
    } else if (listSelector == 1) {
        for (const int32_t code : model.onOffItems) {
            if (const auto* def = findOnOffItem(code)) items.push_back(toItemInfo(*def));
        }
    }
    return items;
}

}  // namespace zt::sim
