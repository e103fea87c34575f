// The simulated drive family: models, their monitor items, unit texts and communication error
// texts, as plain tables. Everything the simulated common library answers about a model comes
// from here, so a new model or item is one table row.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/host_records.h"

namespace zt::sim {

// Item flag bits (ITEM_INFO::lngFlags) used throughout the catalogue.
inline constexpr int32_t kFlagMonitor = 0x1;    // can be sampled by monitor sampling
inline constexpr int32_t kFlagHighSpeed = 0x2;  // on/off item that can be sampled at high speed
// Listing bits: the monitor filter (0x13FFF) takes bit 16, the high-speed filter (0x21FFF)
// bit 17. An item sampled only at high speed carries bit 17 without bit 0, so it is absent from
// the monitor listing.
inline constexpr int32_t kFlagMonitorList = 0x10000;
inline constexpr int32_t kFlagHighSpeedList = 0x20000;
// High-speed groups of analog items. A model's high-speed mask names the groups it can sample
// at high speed; the bits lie outside both filters so that they only act through the mask.
inline constexpr int32_t kGroupBasic = 0x00100000;   // frequency, current, voltage
inline constexpr int32_t kGroupVector = 0x00200000;  // torque and speed control values
inline constexpr int32_t kGroupServo = 0x00400000;   // position values

// Filter masks of the item-list query: monitor sampling and high-speed sampling.
inline constexpr int32_t kMonitorFilter = 0x13FFF;
inline constexpr int32_t kHighSpeedFilter = 0x21FFF;

// ITEM_INFO::intAttribute bits.
inline constexpr int16_t kAttrSigned = 0x1;
inline constexpr int16_t kAttrEffective = 0x4;

// Drive ability word bit: high-speed sampling supported.
inline constexpr int32_t kAbilityHighSpeed = 0x20;

// Unit codes.
enum UnitCode : int32_t {
    kUnitNone = 0,
    kUnitHz = 1,
    kUnitA = 2,
    kUnitV = 3,
    kUnitPercent = 4,
    kUnitRpm = 5,
    kUnitKw = 6,
    kUnitPulse = 7,
};

struct UnitDef {
    int32_t code;
    std::string_view text;
};

struct AnalogItemDef {
    int32_t code;
    // A leading "*" marks an item of a high-speed group: sampled at high speed on every model
    // whose mask names that group.
    std::string_view name;
    int32_t unitCode;
    int32_t fullScale;
    int16_t attribute;
    int32_t flags;
    int32_t decimals;  // decimal places shown by the host (e0)
};

enum class Direction { kInput, kOutput };

struct OnOffItemDef {
    int32_t code;
    std::string_view name;
    Direction direction;
    int32_t flags;
};

struct DriveModel {
    std::string_view key;  // short name used by tests and the command line
    int32_t modelCode;     // station record byte 4
    std::string_view series;
    std::string_view modelText;
    int32_t highSpeedMask;
    int32_t abilityWord;
    int32_t capacity;
    int32_t region;
    int32_t spModel;
    int32_t attribute;  // station record byte 40
    std::span<const int32_t> analogItems;
    std::span<const int32_t> onOffItems;
};

struct CommErrorDef {
    int32_t code;
    std::string_view text;  // "\\n" (backslash, n) marks a line break
};

// Communication error codes the simulated link produces.
inline constexpr int32_t kErrTimeout = static_cast<int32_t>(0x80040001);
inline constexpr int32_t kErrChecksum = static_cast<int32_t>(0x80040002);
inline constexpr int32_t kErrParity = static_cast<int32_t>(0x80040003);
inline constexpr int32_t kErrFraming = static_cast<int32_t>(0x80040004);
inline constexpr int32_t kErrNoResponse = static_cast<int32_t>(0x80040005);
inline constexpr int32_t kErrBusy = static_cast<int32_t>(0x80040010);

// The whole tables.
std::span<const DriveModel> driveModels();
std::span<const AnalogItemDef> analogItemDefs();
std::span<const OnOffItemDef> onOffItemDefs();
std::span<const UnitDef> unitDefs();
std::span<const CommErrorDef> commErrorDefs();

// Lookups; nullptr when the catalogue has no such entry.
const DriveModel* findModel(int32_t modelCode);
const DriveModel* findModelByKey(std::string_view key);
const AnalogItemDef* findAnalogItem(int32_t code);
const OnOffItemDef* findOnOffItem(int32_t code);
std::optional<std::string_view> unitText(int32_t unitCode);
std::optional<std::string_view> commErrorText(int32_t code);

// Host item records of a catalogue item. The eleven values are: e0 decimal places, e1 lower
// and e2 upper display limit, e3 to e10 zero.
ITEM_INFO toItemInfo(const AnalogItemDef& def);
ITEM_INFO toItemInfo(const OnOffItemDef& def);

// All items of a model in catalogue order: selector 0 analog, 1 on/off, anything else none.
std::vector<ITEM_INFO> modelItems(const DriveModel& model, int listSelector);

}  // namespace zt::sim
