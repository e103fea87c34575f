// The channel sheet: one column per channel, the station and item of each, the two-channel
// items and the high-speed station rule.
#include <string>
#include <vector>

#include "config/channel_rules.h"
#include "config/setting_sheets.h"
#include "core/item_tables.h"
#include "core/setting_limits.h"

namespace zt {

namespace {

constexpr float kHeaderColumnWidth = 950;
constexpr float kRowHeight = 250;
constexpr int32_t kColorPink = 0xFFC0FF;
constexpr int32_t kColorGrey = 0xA0A0A0;
constexpr double kPartnerScale = 0.1;
constexpr int16_t kPartnerZeroPos = 5;

}  // namespace

void SettingSheets::buildChannelSheet() {
    ui::SpreadSheet& s = sprChannel_;
    s.SetMaxCols(kChannelCount);
    s.SetMaxRows(kLastReadoutRow);
    s.SetColWidth(0, kHeaderColumnWidth);
    const msg::Message labels[] = {msg::kColor,   msg::kStationNo, msg::kName,     msg::kCursorA,
                                   msg::kCursorB, msg::kEffValue,  msg::kMaxValue, msg::kMinValue};
    for (int r = 1; r <= kLastReadoutRow; ++r) {
        s.SetRowHeight(r, kRowHeight);
        s.setText(0, r, host_.text(labels[r - 1]));
    }
    for (int c = 1; c <= kChannelCount; ++c) {
        s.setText(c, 0, "CH" + std::to_string(c));
        s.setCellType(c, kRowColor, ui::CellType::StaticText);
        s.setText(c, kRowColor, "CH" + std::to_string(c));
        s.setHAlign(c, kRowColor, ui::HAlign::Center);
        s.setVAlign(c, kRowColor, ui::VAlign::Center);
        s.setBackColor(c, kRowColor, state_.chSetting[static_cast<size_t>(c)].lngGraphColor);

        s.setCellType(c, kRowStation, ui::CellType::ComboBox);
        s.setHAlign(c, kRowStation, ui::HAlign::Center);
        fillStationList(c);
        s.setText(c, kRowStation, none());

        s.setCellType(c, kRowName, ui::CellType::ComboBox);
        s.setBackColor(c, kRowName, ui::kColorWhite);

        for (int r = kFirstReadoutRow; r <= kLastReadoutRow; ++r) {
            s.setCellType(c, r, ui::CellType::StaticText);
            s.setHAlign(c, r, ui::HAlign::Right);
            s.setText(c, r, noValue());
        }
    }

    s.ComboSelChange.connect([this](int col, int row) { onChannelListChanged(col, row); });
    s.KeyDown.connect([this](int& key, int) { onChannelKeyDown(key); });
    s.Click.connect([this](int col, int) {
        if (!state_.terminated && state_.runState >= 0 && state_.runState <= 5 && col >= 1 &&
            col <= kChannelCount) {
            makeCurrent(col);
        }
    });
    s.TextTipFetch.connect([](int col, int, std::string&, bool& show) {
        if (col == 0) show = false;
    });
}

void SettingSheets::fillStationList(int channel) {
    std::vector<std::string> items{none()};
    for (int st = 0; st < kStationCount; ++st) {
        if (state_.stations[static_cast<size_t>(st)].present()) {
            items.push_back(stationText(st, none()));
        }
    }
    sprChannel_.setListItems(channel, kRowStation, std::move(items));
}

void SettingSheets::refreshItems(int channel) {
    const int32_t station = state_.chSetting[static_cast<size_t>(channel)].lngTargetNo;
    MONI_ITEM moni = stationMonitorItem(station, state_.sampSetting.intSamplingSpeed,
                                        state_.stations, host_.common());
    setMonitorItem(state_.tableItem, moni, channel, station, state_.stations, host_.common(),
                   none());
    refillNameList(channel);
}

void SettingSheets::refillNameList(int channel) {
    const std::vector<ITEM_INFO>& list =
        channelItemList(state_.tableItem, channel, state_.sampSetting.intSamplingSpeed);
    std::vector<std::string> names;
    names.reserve(list.size());
    std::string shown = none();
    const int32_t current = state_.chSetting[static_cast<size_t>(channel)].lngSamplingItem;
    for (const ITEM_INFO& item : list) {
        names.push_back(itemName(item, channel));
        if (item.lngItemCode == current && shown == none()) shown = names.back();
    }
    const bool held = state_.twoChannel[static_cast<size_t>(channel)].held;
    if (held) shown = sprChannel_.text(channel - 1, kRowName);
    sprChannel_.setListItems(channel, kRowName, std::move(names));
    sprChannel_.setText(channel, kRowName, shown);
    sprChannel_.setBackColor(channel, kRowName, held ? kColorGrey : ui::kColorWhite);
    // While a run or a graph holds the sheets locked, a refresh unlocks nothing.
    if (editable()) sprChannel_.setLocked(channel, kRowName, held);
}

void SettingSheets::markPartner(int channel) {
    if ((channel != 2 && channel != 4) || sprChannel_.locked(channel, kRowName)) return;
    const bool builtIn = isBuiltInName(sprChannel_.text(channel, kRowName));
    sprChannel_.setBackColor(channel, kRowName, builtIn ? kColorPink : ui::kColorWhite);
}

bool SettingSheets::channelCellDiffers(int col, int row) const {
    const CHSETTING& ch = state_.chSetting[static_cast<size_t>(col)];
    if (row == kRowStation) {
        return stationFromText(sprChannel_.text(col, row), none()) != ch.lngTargetNo;
    }
    const int index = sprChannel_.selectedIndex(col, row);
    const auto& list = channelItemList(state_.tableItem, col, state_.sampSetting.intSamplingSpeed);
    if (index < 0 || static_cast<size_t>(index) >= list.size()) return false;
    return list[static_cast<size_t>(index)].lngItemCode != ch.lngSamplingItem;
}

void SettingSheets::onChannelListChanged(int col, int row) {
    if (col < 1 || col > kChannelCount || (row != kRowStation && row != kRowName)) return;
    if (!editable()) return;
    channelChange(col, row);
}

void SettingSheets::channelChange(int col, int row) {
    if (channelCellDiffers(col, row)) {
        markPartner(col);
        takeChannelSheet();
        if (row != kRowName) {
            for (int c = 1; c <= kChannelCount; ++c)
                refreshItems(c);
        }
        recomputeDependents();
    }
    const int16_t count = ReturnChCount();
    if (count >= 1 && (state_.runState == 0 || state_.runState == 3)) {
        hooks.runEvent(kEventChannelSet);
    } else if (count == 0) {
        hooks.runEvent(kEventChannelsCleared);
    }
    if ((col == 1 || col == 3) && row == kRowName) {
        twoChannelProcedure(col);
        channelChange(col + 1, kRowName);
        sprChannel_.SetActiveCell(col + 1, kRowName);
        makeCurrent(col + 1);
    }
}

void SettingSheets::takeChannelSheet() {
    const int16_t speed = state_.sampSetting.intSamplingSpeed;
    for (int c = 1; c <= kChannelCount; ++c) {
        CHSETTING& ch = state_.chSetting[static_cast<size_t>(c)];
        ch.lngTargetNo = speed == kSpeedHighSpeed && c > 1
                             ? state_.chSetting[1].lngTargetNo
                             : stationFromText(sprChannel_.text(c, kRowStation), none());
        sprChannel_.setText(c, kRowStation, stationText(ch.lngTargetNo, none()));
        const int index = sprChannel_.selectedIndex(c, kRowName);
        const auto& list = channelItemList(state_.tableItem, c, speed);
        if (index >= 0 && static_cast<size_t>(index) < list.size()) {
            ch.lngSamplingItem = list[static_cast<size_t>(index)].lngItemCode;
            ch.intAD = isAnalogChannel(c) ? 0 : 1;
        }
    }
}

void SettingSheets::recomputeDependents() {
    retakeSampling();
    refreshTriggerTargets();
    reevaluateLevel();
    hooks.refreshScaleDisplay();
    hooks.redrawGraph();
}

void SettingSheets::twoChannelProcedure(int channel) {
    const int partner = channel + 1;
    PartnerMemory& memory = state_.twoChannel[static_cast<size_t>(partner)];
    VERTSCALE& scale = state_.graphInfo.udtVertScale[static_cast<size_t>(partner)];
    const std::string name = sprChannel_.text(channel, kRowName);
    if (!isBuiltInName(name)) {
        if (!sprChannel_.locked(partner, kRowName)) return;
        sprChannel_.setLocked(partner, kRowName, false);
        const std::string restored = memory.name.empty() ? none() : memory.name;
        sprChannel_.setText(partner, kRowName, restored);
        sprChannel_.setBackColor(partner, kRowName,
                                 isBuiltInName(restored) ? kColorPink : ui::kColorWhite);
        scale.dblVertScale = memory.vertScale;
        scale.intZeroPos = memory.zeroPos;
        memory = PartnerMemory{};
        return;
    }
    if (!sprChannel_.locked(partner, kRowName)) {
        memory.name = sprChannel_.text(partner, kRowName);
        memory.vertScale = scale.dblVertScale;
        memory.zeroPos = scale.intZeroPos;
    }
    memory.held = true;
    sprChannel_.setLocked(partner, kRowName, true);
    sprChannel_.setBackColor(partner, kRowName, kColorGrey);
    sprChannel_.setText(partner, kRowName, name);
    scale.intZeroPos = kPartnerZeroPos;
    scale.dblVertScale = kPartnerScale;
}

void SettingSheets::highSpeedStationRule() {
    const bool high = state_.sampSetting.intSamplingSpeed == kSpeedHighSpeed;
    const int32_t first = state_.chSetting[1].lngTargetNo;
    for (int c = 2; c <= kChannelCount; ++c) {
        if (high) {
            sprChannel_.setText(c, kRowStation, stationText(first, none()));
            state_.chSetting[static_cast<size_t>(c)].lngTargetNo = first;
        }
        sprChannel_.setLocked(c, kRowStation, high);
    }
    // Channel 1 is refreshed as well: its lists were asked for with the other speed's filter.
    for (int c = 1; c <= kChannelCount; ++c)
        refreshItems(c);
}

void SettingSheets::applyChannelLocks() {
    const bool high = state_.sampSetting.intSamplingSpeed == kSpeedHighSpeed;
    for (int c = 1; c <= kChannelCount; ++c) {
        sprChannel_.setLocked(c, kRowStation, high && c > 1);
        sprChannel_.setLocked(c, kRowName, state_.twoChannel[static_cast<size_t>(c)].held);
    }
}

void SettingSheets::onChannelKeyDown(int key) {
    if (key == ui::kKeyEscape && editable()) {
        takeChannelSheet();
        for (int c = 1; c <= kChannelCount; ++c)
            refreshItems(c);
        recomputeDependents();
    } else if ((key == ui::kKeyLeft || key == ui::kKeyRight) && !state_.terminated &&
               state_.runState >= 0 && state_.runState <= 5) {
        const int col = sprChannel_.ActiveCol();
        makeCurrent(col >= 1 && col <= kChannelCount ? col : 0);
    }
}

void SettingSheets::makeCurrent(int channel) {
    hooks.currentChannelChanged(channel);
    if (channel != 0 && editable()) retakeSampling();
}

}  // namespace zt
