// The trigger sheet: type, target, start condition, level and position of the trigger.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "config/channel_rules.h"
#include "config/setting_sheets.h"
#include "config/sheet_rows.h"
#include "core/setting_limits.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"

namespace zt {

namespace {

constexpr float kLabelWidth = 980;
constexpr float kValueWidth = 1600;
constexpr int kLevelDecimals = 2;

std::string positionText(float position) {
    return std::to_string(static_cast<int>(position));
}

}  // namespace

void SettingSheets::buildTriggerSheet() {
    ui::SpreadSheet& s = sprTrigger_;
    s.SetMaxCols(1);
    s.SetMaxRows(kTriggerRowPosition);
    s.SetColWidth(0, kLabelWidth);
    s.SetColWidth(1, kValueWidth);
    s.setText(1, 0, host_.text(msg::kTrigger));
    s.setText(0, kTriggerRowType, host_.text(msg::kTriggerType));
    s.setText(0, kTriggerRowTarget, host_.text(msg::kChannelTab));
    s.setText(0, kTriggerRowBoot, host_.text(msg::kStartAt));
    s.setText(0, kTriggerRowLevel, host_.text(msg::kLevel));
    s.setText(0, kTriggerRowPosition, host_.text(msg::kPosition));
    for (int r : {kTriggerRowType, kTriggerRowTarget, kTriggerRowBoot})
        s.setCellType(1, r, ui::CellType::ComboBox);
    s.setListItems(1, kTriggerRowType,
                   {host_.text(msg::kNotUsed), host_.text(msg::kInside), host_.text(msg::kFault)});
    s.setCellType(1, kTriggerRowLevel, ui::CellType::Number);
    s.setNumberFormat(1, kTriggerRowLevel, ui::NumberFormat{.decimals = kLevelDecimals});
    s.setCellType(1, kTriggerRowPosition, ui::CellType::Edit);
    showTriggerSettings();

    s.ComboSelChange.connect([this](int col, int row) { onTriggerListChanged(col, row); });
    s.KeyDown.connect([this](int& key, int) {
        if (key == ui::kKeyEscape && editable()) takeTriggerRow(sprTrigger_.ActiveRow());
    });
    s.KeyPress.connect([this](int& key) {
        if (key != ui::kKeyEnter || !editable()) return;
        if (sprTrigger_.ActiveRow() == kTriggerRowLevel) reevaluateLevel();
        if (sprTrigger_.ActiveRow() == kTriggerRowPosition) takePosition();
    });
    s.Leave.connect([this] {
        if (!editable()) return;
        reevaluateLevel();
        takePosition();
    });
    s.Click.connect([this](int col, int row) {
        if (!editable() || col != 1 || (row != kTriggerRowLevel && row != kTriggerRowPosition))
            return;
        sprTrigger_.SetActiveCell(col, row);
        sprTrigger_.SetEditMode(true);
    });
}

void SettingSheets::showTriggerSettings() {
    SAMPSETTING& set = state_.sampSetting;
    const int16_t type = std::clamp<int16_t>(set.intTriggerType, 0, kTriggerFault);
    if (type == kTriggerNotUsed) {
        const int32_t point = set.lngTriggerPoint;
        applyTriggerType(kTriggerNotUsed, true);
        set.lngTriggerPoint = point;
        return;
    }
    ui::SpreadSheet& s = sprTrigger_;
    s.setSelectedIndex(1, kTriggerRowType, type);
    s.setText(0, kTriggerRowTarget,
              host_.text(type == kTriggerFault ? msg::kStationNo : msg::kChannelTab));
    s.setListItems(1, kTriggerRowTarget, triggerTargets());
    s.setText(1, kTriggerRowTarget, triggerTargetText(type, set.intTriggerTarget, noValue()));
    if (type == kTriggerInside) {
        s.setListItems(1, kTriggerRowBoot, {host_.text(msg::kRise), host_.text(msg::kFall)});
    } else {
        s.setListItems(1, kTriggerRowBoot, {host_.text(msg::kRise)});
    }
    const int boot = set.intTriggerBoot;
    const bool bootShown =
        boot >= 0 && static_cast<size_t>(boot) < s.listItems(1, kTriggerRowBoot).size();
    s.setSelectedIndex(1, kTriggerRowBoot, bootShown ? boot : -1);
    s.setNumber(1, kTriggerRowLevel, set.dblTriggerLevel);
    s.setText(1, kTriggerRowPosition, positionText(set.sngTriggerPosition));
    applyTriggerLocks();
}

void SettingSheets::applyTriggerType(int16_t type, bool keepTriggerPoint) {
    ui::SpreadSheet& s = sprTrigger_;
    SAMPSETTING& set = state_.sampSetting;
    const std::string dash = noValue();
    set.intTriggerType = type;
    s.setSelectedIndex(1, kTriggerRowType, type);
    s.setText(0, kTriggerRowLevel, host_.text(msg::kLevel));
    switch (type) {
        case kTriggerNotUsed:
            s.setText(0, kTriggerRowTarget, host_.text(msg::kChannelTab));
            s.setListItems(1, kTriggerRowTarget, {dash});
            s.setText(1, kTriggerRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kTriggerRowBoot, {dash});
            s.setText(1, kTriggerRowBoot, dash);
            set.intTriggerBoot = kNoTriggerBoot;
            s.setText(1, kTriggerRowLevel, dash);
            set.dblTriggerLevel = 0;
            s.setText(1, kTriggerRowPosition, dash);
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = -1;
            break;
        case kTriggerInside:
            s.setText(0, kTriggerRowTarget, host_.text(msg::kChannelTab));
            s.setListItems(1, kTriggerRowTarget, triggerTargets());
            s.setText(1, kTriggerRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kTriggerRowBoot, {host_.text(msg::kRise), host_.text(msg::kFall)});
            s.setSelectedIndex(1, kTriggerRowBoot, 0);
            set.intTriggerBoot = 0;
            s.setNumber(1, kTriggerRowLevel, 0);
            set.dblTriggerLevel = 0;
            s.setText(1, kTriggerRowPosition, "10");
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = 0;
            break;
        default:
            s.setText(0, kTriggerRowTarget, host_.text(msg::kStationNo));
            s.setListItems(1, kTriggerRowTarget, triggerTargets());
            s.setText(1, kTriggerRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kTriggerRowBoot, {host_.text(msg::kRise)});
            s.setSelectedIndex(1, kTriggerRowBoot, 0);
            set.intTriggerBoot = 0;
            s.setNumber(1, kTriggerRowLevel, 0);
            set.dblTriggerLevel = 0;
            s.setText(1, kTriggerRowPosition, "10");
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = 0;
            break;
    }
    applyTriggerLocks();
}

void SettingSheets::applyTriggerLocks() {
    ui::SpreadSheet& s = sprTrigger_;
    const SAMPSETTING& set = state_.sampSetting;
    s.setLocked(1, kTriggerRowType, false);
    switch (set.intTriggerType) {
        case kTriggerInside: {
            s.lockRange(1, kTriggerRowTarget, 1, kTriggerRowPosition, false);
            s.setLocked(1, kTriggerRowTarget, s.listItems(1, kTriggerRowTarget).size() <= 1);
            const int target = set.intTriggerTarget;
            const bool levelApplies = target >= 1 && target <= kChannelCount &&
                                      channelIsSet(target) &&
                                      state_.chSetting[static_cast<size_t>(target)].intAD == 0;
            s.setLocked(1, kTriggerRowLevel, !levelApplies);
            break;
        }
        case kTriggerFault:
            s.lockRange(1, kTriggerRowTarget, 1, kTriggerRowPosition, false);
            s.setLocked(1, kTriggerRowLevel, true);
            break;
        default:
            s.lockRange(1, kTriggerRowTarget, 1, kTriggerRowPosition, true);
            break;
    }
}

std::vector<std::string> SettingSheets::triggerTargets() const {
    std::vector<std::string> targets{noValue()};
    const int16_t type = state_.sampSetting.intTriggerType;
    if (type == kTriggerInside) {
        for (int c = 1; c <= kChannelCount; ++c) {
            if (channelIsSet(c))
                targets.push_back(triggerTargetText(type, static_cast<int16_t>(c), ""));
        }
    } else if (type == kTriggerFault) {
        std::set<int32_t> stations;
        for (int c = 1; c <= kChannelCount; ++c) {
            const int32_t st = state_.chSetting[static_cast<size_t>(c)].lngTargetNo;
            if (channelIsSet(c) && st >= 0 && st < kStationCount) stations.insert(st);
        }
        for (int32_t st : stations)
            targets.push_back(triggerTargetText(type, static_cast<int16_t>(st), ""));
    }
    return targets;
}

void SettingSheets::refreshTriggerTargets() {
    SAMPSETTING& set = state_.sampSetting;
    if (set.intTriggerType == kTriggerNotUsed) return;
    ui::SpreadSheet& s = sprTrigger_;
    const std::vector<std::string> targets = triggerTargets();
    const std::string current =
        triggerTargetText(set.intTriggerType, set.intTriggerTarget, noValue());
    const bool kept = set.intTriggerTarget != kNoTriggerTarget &&
                      std::find(targets.begin(), targets.end(), current) != targets.end();
    s.setListItems(1, kTriggerRowTarget, targets);
    s.setText(1, kTriggerRowTarget, kept ? current : noValue());
    if (!kept) set.intTriggerTarget = kNoTriggerTarget;
    if (set.intTriggerType == kTriggerInside)
        s.setLocked(1, kTriggerRowTarget, targets.size() <= 1);
}

bool SettingSheets::triggerCellDiffers(int row) const {
    const SAMPSETTING& set = state_.sampSetting;
    const int index = sprTrigger_.selectedIndex(1, row);
    switch (row) {
        case kTriggerRowType:
            return index >= 0 && index != set.intTriggerType;
        case kTriggerRowTarget:
            return triggerTargetFromText(sprTrigger_.text(1, row), noValue()) !=
                   set.intTriggerTarget;
        case kTriggerRowBoot:
            return (index < 0 ? kNoTriggerBoot : index) != set.intTriggerBoot;
        default:
            return false;
    }
}

void SettingSheets::onTriggerListChanged(int col, int row) {
    if (!editable() || col != 1 || row < kTriggerRowType || row > kTriggerRowBoot) return;
    if (!triggerCellDiffers(row)) return;
    takeTriggerRow(row);
    reevaluateLevel();
}

void SettingSheets::takeTriggerRow(int row) {
    SAMPSETTING& set = state_.sampSetting;
    ui::SpreadSheet& s = sprTrigger_;
    switch (row) {
        case kTriggerRowType: {
            const int index = s.selectedIndex(1, kTriggerRowType);
            if (index >= 0) applyTriggerType(static_cast<int16_t>(index), false);
            break;
        }
        case kTriggerRowTarget:
            set.intTriggerTarget = triggerTargetFromText(s.text(1, kTriggerRowTarget), noValue());
            if (set.intTriggerType == kTriggerFault && set.intTriggerTarget != kNoTriggerTarget) {
                retakeSampling();
            }
            if (set.intTriggerType == kTriggerInside) {
                if (s.text(1, kTriggerRowLevel) != noValue()) {
                    if (const auto level =
                            text::parseNumber(s.text(1, kTriggerRowLevel), locale_)) {
                        set.dblTriggerLevel = *level;
                    }
                }
                s.setText(0, kTriggerRowLevel, host_.text(msg::kLevel));
            }
            break;
        case kTriggerRowBoot: {
            const int index = s.selectedIndex(1, kTriggerRowBoot);
            set.intTriggerBoot = index < 0 ? kNoTriggerBoot : static_cast<int16_t>(index);
            break;
        }
        default:
            break;
    }
}

// Every type is re-evaluated: "Not used" too shows 0 for the "---" it was given.
void SettingSheets::reevaluateLevel() {
    ui::SpreadSheet& s = sprTrigger_;
    SAMPSETTING& set = state_.sampSetting;
    s.setLocked(1, kTriggerRowLevel, true);
    const auto level = text::parseNumber(s.text(1, kTriggerRowLevel), locale_);
    if (!level) {
        s.setNumber(1, kTriggerRowLevel, 0);
        set.dblTriggerLevel = 0;
    } else if (set.intTriggerType == kTriggerInside) {
        const int target = set.intTriggerTarget;
        if (target >= 1 && target <= kChannelCount && channelIsSet(target) &&
            state_.chSetting[static_cast<size_t>(target)].intAD == 0) {
            s.setLocked(1, kTriggerRowLevel, false);
            set.dblTriggerLevel = *level;
        }
    }
    s.setText(0, kTriggerRowLevel, host_.text(msg::kLevel));
}

// The position rule holds for every type: "---" under "Not used" becomes 10.
void SettingSheets::takePosition() {
    SAMPSETTING& set = state_.sampSetting;
    const float position =
        triggerPositionFrom(text::parseNumber(sprTrigger_.text(1, kTriggerRowPosition), locale_));
    set.sngTriggerPosition = position;
    sprTrigger_.setText(1, kTriggerRowPosition, positionText(position));
}

}  // namespace zt
