// The trigger sheet: type, target, start condition, level and position of the trigger.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "config/channel_rules.h"
#include "config/setting_limits.h"
#include "config/setting_sheets.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"

namespace zt {

namespace {

constexpr int kRowType = 1;
constexpr int kRowTarget = 2;
constexpr int kRowBoot = 3;
constexpr int kRowLevel = 4;
constexpr int kRowPosition = 5;
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
    s.SetMaxRows(kRowPosition);
    s.SetColWidth(0, kLabelWidth);
    s.SetColWidth(1, kValueWidth);
    s.setText(1, 0, host_.text(msg::kTrigger));
    s.setText(0, kRowType, host_.text(msg::kTriggerType));
    s.setText(0, kRowTarget, host_.text(msg::kChannelTab));
    s.setText(0, kRowBoot, host_.text(msg::kStartAt));
    s.setText(0, kRowLevel, host_.text(msg::kLevel));
    s.setText(0, kRowPosition, host_.text(msg::kPosition));
    for (int r : {kRowType, kRowTarget, kRowBoot})
        s.setCellType(1, r, ui::CellType::ComboBox);
    s.setListItems(1, kRowType,
                   {host_.text(msg::kNotUsed), host_.text(msg::kInside), host_.text(msg::kFault)});
    s.setCellType(1, kRowLevel, ui::CellType::Number);
    s.setNumberFormat(1, kRowLevel, ui::NumberFormat{.decimals = kLevelDecimals});
    s.setCellType(1, kRowPosition, ui::CellType::Edit);
    showTriggerSettings();

    s.ComboSelChange.connect([this](int col, int row) { onTriggerListChanged(col, row); });
    s.KeyDown.connect([this](int& key, int) {
        if (key == ui::kKeyEscape && editable()) takeTriggerRow(sprTrigger_.ActiveRow());
    });
    s.KeyPress.connect([this](int& key) {
        if (key != ui::kKeyEnter || !editable()) return;
        if (sprTrigger_.ActiveRow() == kRowLevel) reevaluateLevel();
        if (sprTrigger_.ActiveRow() == kRowPosition) takePosition();
    });
    s.Leave.connect([this] {
        if (!editable()) return;
        reevaluateLevel();
        takePosition();
    });
    s.Click.connect([this](int col, int row) {
        if (!editable() || col != 1 || (row != kRowLevel && row != kRowPosition)) return;
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
    s.setSelectedIndex(1, kRowType, type);
    s.setText(0, kRowTarget,
              host_.text(type == kTriggerFault ? msg::kStationNo : msg::kChannelTab));
    s.setListItems(1, kRowTarget, triggerTargets());
    s.setText(1, kRowTarget, triggerTargetText(type, set.intTriggerTarget, noValue()));
    if (type == kTriggerInside) {
        s.setListItems(1, kRowBoot, {host_.text(msg::kRise), host_.text(msg::kFall)});
    } else {
        s.setListItems(1, kRowBoot, {host_.text(msg::kRise)});
    }
    const int boot = set.intTriggerBoot;
    const bool bootShown = boot >= 0 && static_cast<size_t>(boot) < s.listItems(1, kRowBoot).size();
    s.setSelectedIndex(1, kRowBoot, bootShown ? boot : -1);
    s.setNumber(1, kRowLevel, set.dblTriggerLevel);
    s.setText(1, kRowPosition, positionText(set.sngTriggerPosition));
    applyTriggerLocks();
}

void SettingSheets::applyTriggerType(int16_t type, bool keepTriggerPoint) {
    ui::SpreadSheet& s = sprTrigger_;
    SAMPSETTING& set = state_.sampSetting;
    const std::string dash = noValue();
    set.intTriggerType = type;
    s.setSelectedIndex(1, kRowType, type);
    s.setText(0, kRowLevel, host_.text(msg::kLevel));
    switch (type) {
        case kTriggerNotUsed:
            s.setText(0, kRowTarget, host_.text(msg::kChannelTab));
            s.setListItems(1, kRowTarget, {dash});
            s.setText(1, kRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kRowBoot, {dash});
            s.setText(1, kRowBoot, dash);
            set.intTriggerBoot = kNoTriggerBoot;
            s.setText(1, kRowLevel, dash);
            set.dblTriggerLevel = 0;
            s.setText(1, kRowPosition, dash);
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = -1;
            break;
        case kTriggerInside:
            s.setText(0, kRowTarget, host_.text(msg::kChannelTab));
            s.setListItems(1, kRowTarget, triggerTargets());
            s.setText(1, kRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kRowBoot, {host_.text(msg::kRise), host_.text(msg::kFall)});
            s.setSelectedIndex(1, kRowBoot, 0);
            set.intTriggerBoot = 0;
            s.setNumber(1, kRowLevel, 0);
            set.dblTriggerLevel = 0;
            s.setText(1, kRowPosition, "10");
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = 0;
            break;
        default:
            s.setText(0, kRowTarget, host_.text(msg::kStationNo));
            s.setListItems(1, kRowTarget, triggerTargets());
            s.setText(1, kRowTarget, dash);
            set.intTriggerTarget = kNoTriggerTarget;
            s.setListItems(1, kRowBoot, {host_.text(msg::kRise)});
            s.setSelectedIndex(1, kRowBoot, 0);
            set.intTriggerBoot = 0;
            s.setNumber(1, kRowLevel, 0);
            set.dblTriggerLevel = 0;
            s.setText(1, kRowPosition, "10");
            set.sngTriggerPosition = 10;
            if (!keepTriggerPoint) set.lngTriggerPoint = 0;
            break;
    }
    applyTriggerLocks();
}

void SettingSheets::applyTriggerLocks() {
    ui::SpreadSheet& s = sprTrigger_;
    const SAMPSETTING& set = state_.sampSetting;
    s.setLocked(1, kRowType, false);
    switch (set.intTriggerType) {
        case kTriggerInside: {
            s.lockRange(1, kRowTarget, 1, kRowPosition, false);
            s.setLocked(1, kRowTarget, s.listItems(1, kRowTarget).size() <= 1);
            const int target = set.intTriggerTarget;
            const bool levelApplies = target >= 1 && target <= kChannelCount &&
                                      channelIsSet(target) &&
                                      state_.chSetting[static_cast<size_t>(target)].intAD == 0;
            s.setLocked(1, kRowLevel, !levelApplies);
            break;
        }
        case kTriggerFault:
            s.lockRange(1, kRowTarget, 1, kRowPosition, false);
            s.setLocked(1, kRowLevel, true);
            break;
        default:
            s.lockRange(1, kRowTarget, 1, kRowPosition, true);
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
    s.setListItems(1, kRowTarget, targets);
    s.setText(1, kRowTarget, kept ? current : noValue());
    if (!kept) set.intTriggerTarget = kNoTriggerTarget;
    if (set.intTriggerType == kTriggerInside) s.setLocked(1, kRowTarget, targets.size() <= 1);
}

bool SettingSheets::triggerCellDiffers(int row) const {
    const SAMPSETTING& set = state_.sampSetting;
    const int index = sprTrigger_.selectedIndex(1, row);
    switch (row) {
        case kRowType:
            return index >= 0 && index != set.intTriggerType;
        case kRowTarget:
            return triggerTargetFromText(sprTrigger_.text(1, row), noValue()) !=
                   set.intTriggerTarget;
        case kRowBoot:
            return (index < 0 ? kNoTriggerBoot : index) != set.intTriggerBoot;
        default:
            return false;
    }
}

void SettingSheets::onTriggerListChanged(int col, int row) {
    if (!editable() || col != 1 || row < kRowType || row > kRowBoot) return;
    if (!triggerCellDiffers(row)) return;
    takeTriggerRow(row);
    reevaluateLevel();
}

void SettingSheets::takeTriggerRow(int row) {
    SAMPSETTING& set = state_.sampSetting;
    ui::SpreadSheet& s = sprTrigger_;
    switch (row) {
        case kRowType: {
            const int index = s.selectedIndex(1, kRowType);
            if (index >= 0) applyTriggerType(static_cast<int16_t>(index), false);
            break;
        }
        case kRowTarget:
            set.intTriggerTarget = triggerTargetFromText(s.text(1, kRowTarget), noValue());
            if (set.intTriggerType == kTriggerFault && set.intTriggerTarget != kNoTriggerTarget) {
                retakeSampling();
            }
            if (set.intTriggerType == kTriggerInside) {
                if (s.text(1, kRowLevel) != noValue()) {
                    if (const auto level = text::parseNumber(s.text(1, kRowLevel), locale_)) {
                        set.dblTriggerLevel = *level;
                    }
                }
                s.setText(0, kRowLevel, host_.text(msg::kLevel));
            }
            break;
        case kRowBoot: {
            const int index = s.selectedIndex(1, kRowBoot);
            set.intTriggerBoot = index < 0 ? kNoTriggerBoot : static_cast<int16_t>(index);
            break;
        }
        default:
            break;
    }
}

// "Not used" keeps its "---" rows: there is no level to take.
void SettingSheets::reevaluateLevel() {
    ui::SpreadSheet& s = sprTrigger_;
    SAMPSETTING& set = state_.sampSetting;
    s.setLocked(1, kRowLevel, true);
    if (set.intTriggerType != kTriggerNotUsed) {
        const auto level = text::parseNumber(s.text(1, kRowLevel), locale_);
        if (!level) {
            s.setNumber(1, kRowLevel, 0);
            set.dblTriggerLevel = 0;
        } else if (set.intTriggerType == kTriggerInside) {
            const int target = set.intTriggerTarget;
            if (target >= 1 && target <= kChannelCount && channelIsSet(target) &&
                state_.chSetting[static_cast<size_t>(target)].intAD == 0) {
                s.setLocked(1, kRowLevel, false);
                set.dblTriggerLevel = *level;
            }
        }
    }
    s.setText(0, kRowLevel, host_.text(msg::kLevel));
}

void SettingSheets::takePosition() {
    SAMPSETTING& set = state_.sampSetting;
    if (set.intTriggerType == kTriggerNotUsed) return;
    const float position =
        triggerPositionFrom(text::parseNumber(sprTrigger_.text(1, kRowPosition), locale_));
    set.sngTriggerPosition = position;
    sprTrigger_.setText(1, kRowPosition, positionText(position));
}

}  // namespace zt
