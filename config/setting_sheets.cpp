// The sheets together: construction, showing the held settings, locking, initialize, the host
// members and the channel rules that read the channel sheet.
#include "config/setting_sheets.h"

#include <algorithm>

#include "config/channel_rules.h"
#include "config/item_attribute.h"
#include "core/channel_colors.h"
#include "core/item_tables.h"
#include "core/setting_limits.h"

namespace zt {

SettingSheets::SettingSheets(GraphState& state, HostServices& host, ui::SpreadSheet& sprChannel,
                             ui::SpreadSheet& sprTrigger, ui::SpreadSheet& sprSampling,
                             ui::Label& lblHighSampItem, const HostLocale& locale)
    : state_(state),
      host_(host),
      sprChannel_(sprChannel),
      sprTrigger_(sprTrigger),
      sprSampling_(sprSampling),
      lblHighSampItem_(lblHighSampItem),
      locale_(locale) {}

std::string SettingSheets::none() const {
    return host_.text(msg::kNone);
}

std::string SettingSheets::noValue() const {
    return host_.text(msg::kNoValue);
}

bool SettingSheets::editable() const {
    if (state_.terminated) return false;
    const int16_t s = state_.runState;
    return s == 0 || s == 1 || s == 3 || s == 4;
}

bool SettingSheets::isBuiltInName(const std::string& name) const {
    const auto& names = state_.twoChannelItemNames;
    return std::find(names.begin(), names.end(), name) != names.end();
}

void SettingSheets::build() {
    for (int c = 1; c <= kChannelCount; ++c)
        state_.chSetting[static_cast<size_t>(c)].lngTargetNo = kNoStation;
    buildChannelSheet();
    buildTriggerSheet();
    buildSamplingSheet();
    for (int c = 1; c <= kChannelCount; ++c)
        refreshItems(c);
    for (ui::SpreadSheet* sheet : {&sprChannel_, &sprTrigger_, &sprSampling_})
        sheet->SetReDraw(true);
}

void SettingSheets::showSettings(bool keepPartnerMemory) {
    for (int c = 1; c <= kChannelCount; ++c) {
        CHSETTING& ch = state_.chSetting[static_cast<size_t>(c)];
        sprChannel_.setBackColor(c, kRowColor, ch.lngGraphColor);
        sprChannel_.setText(c, kRowStation, stationText(ch.lngTargetNo, none()));
        if (!keepPartnerMemory) state_.twoChannel[static_cast<size_t>(c)] = PartnerMemory{};
    }
    for (int c = 1; c <= kChannelCount; ++c)
        refreshItems(c);
    // A two-channel item held by the settings takes its partner over (again).
    bool released = false;
    for (int c : {1, 3}) {
        PartnerMemory& memory = state_.twoChannel[static_cast<size_t>(c + 1)];
        if (isBuiltInName(sprChannel_.text(c, kRowName))) {
            memory.held = true;
            refillNameList(c + 1);
        } else if (memory.held) {
            // The item left channel c with its station: the partner gets back what it showed.
            sprChannel_.setLocked(c + 1, kRowName, true);
            twoChannelProcedure(c);
            released = true;
        }
    }
    if (released) takeChannelSheet();
    applyChannelLocks();
    showTriggerSettings();
    showSamplingSettings();
    showHighSpeedNote();
}

void SettingSheets::setSheetsLocked(bool locked) {
    if (locked) {
        for (ui::SpreadSheet* sheet : {&sprChannel_, &sprTrigger_, &sprSampling_})
            sheet->lockAll(true);
        return;
    }
    for (ui::SpreadSheet* sheet : {&sprChannel_, &sprTrigger_, &sprSampling_})
        sheet->lockAll(false);
    applyChannelLocks();
    applyTriggerLocks();
}

void SettingSheets::refreshStationLists() {
    for (int c = 1; c <= kChannelCount; ++c) {
        CHSETTING& ch = state_.chSetting[static_cast<size_t>(c)];
        fillStationList(c);
        if (ch.lngTargetNo >= 0 && ch.lngTargetNo < kStationCount &&
            !state_.stations[static_cast<size_t>(ch.lngTargetNo)].present()) {
            ch.lngTargetNo = kNoStation;
        }
        sprChannel_.setText(c, kRowStation, stationText(ch.lngTargetNo, none()));
        refreshItems(c);
    }
}

bool SettingSheets::initializeSettings() {
    if (host_.showMessage(host_.text(msg::kSettingsInitialized), kStyleConfirm) != kResultOk) {
        return false;
    }
    state_.sampSetting = SAMPSETTING{};
    state_.sampSetting.intTriggerBoot = 0;
    for (int c = 1; c <= kChannelCount; ++c) {
        CHSETTING& ch = state_.chSetting[static_cast<size_t>(c)];
        ch.lngTargetNo = kNoStation;
        ch.lngSamplingItem = 0;
        ch.lngGraphColor = kDefaultChannelColor[static_cast<size_t>(c)];
        SAMPDATA& data = state_.sampData[static_cast<size_t>(c)];
        std::fill(data.sngSamplingData.begin(), data.sngSamplingData.end(), 0.0);
        std::fill(data.sngSamplingTimeByInv.begin(), data.sngSamplingTimeByInv.end(), 0.0);
        data.sngUnit = 0;
        data.sngBaseValue = 0;
        data.intDecPoint = 0;
        state_.graphInfo.udtVertScale[static_cast<size_t>(c)] = VERTSCALE{};
        state_.twoChannel[static_cast<size_t>(c)] = PartnerMemory{};
    }
    state_.graphInfo.udtCursorState = CURSORSTATE{};
    state_.graphInfo.udtHorzScale.sngHorzScale = 500;

    for (int c = 1; c <= kChannelCount; ++c) {
        sprChannel_.setBackColor(c, kRowColor,
                                 state_.chSetting[static_cast<size_t>(c)].lngGraphColor);
        sprChannel_.setText(c, kRowStation, none());
        for (int r = kFirstReadoutRow; r <= kLastReadoutRow; ++r)
            sprChannel_.setText(c, r, noValue());
        refreshItems(c);
    }
    applyChannelLocks();
    applyTriggerType(kTriggerNotUsed, false);
    showSamplingSettings();
    hooks.refreshScaleDisplay();
    hooks.resetDisplay();
    if (editable()) hooks.runEvent(kEventChannelsCleared);
    lblHighSampItem_.Visible = false;
    return true;
}

void SettingSheets::SetMonitorItem(MONI_ITEM& udtMoniItem, int32_t lngCh) {
    if (lngCh < 1 || lngCh > kChannelCount) return;
    setMonitorItem(state_.tableItem, udtMoniItem, lngCh,
                   state_.chSetting[static_cast<size_t>(lngCh)].lngTargetNo, state_.stations,
                   host_.common(), none());
}

void SettingSheets::SetMsgItem(std::vector<MSG_ITEM>& udtMsgItem) {
    state_.msgItems = udtMsgItem;
}

void SettingSheets::SetIniFileItem(INIFILE_ITEM& udtIniFileItem) {
    state_.iniFileItem = udtIniFileItem;
}

int16_t SettingSheets::ReturnChCount() const {
    return countChannels(sprChannel_, state_.chSetting, none());
}

int16_t SettingSheets::getChNode() const {
    return lowestChannelStation(sprChannel_, state_.chSetting, none());
}

bool SettingSheets::channelIsSet(int channel) const {
    return zt::channelIsSet(sprChannel_, channel, none());
}

int SettingSheets::orderTest(int channel) {
    markPartner(2);
    markPartner(4);
    return channelOutOfOrder(sprChannel_, channel, none());
}

bool SettingSheets::ascendingOrderCheck() {
    for (int c = 1; c <= kChannelCount; ++c) {
        if (channelIsSet(c) && orderTest(c) != 0) {
            host_.notify(msg::kAscendingOrder);
            return false;
        }
    }
    return true;
}

std::string SettingSheets::itemAttribute(int32_t itemCode, int16_t column, int16_t channel,
                                         const int16_t& selector) {
    return zt::itemAttribute(state_.tableItem, state_.chSetting, host_.common(), itemCode, column,
                             channel, selector, state_.loadingGraphFile);
}

double SettingSheets::minimumInterval() const {
    const SAMPSETTING& s = state_.sampSetting;
    return intervalLimits(s.intSamplingSpeed, ReturnChCount(), s.intTriggerType, s.intTriggerTarget,
                          state_.iniFileItem)
        .min;
}

double SettingSheets::maximumInterval() const {
    const SAMPSETTING& s = state_.sampSetting;
    return intervalLimits(s.intSamplingSpeed, ReturnChCount(), s.intTriggerType, s.intTriggerTarget,
                          state_.iniFileItem)
        .max;
}

}  // namespace zt
