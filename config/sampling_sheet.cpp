// The sampling sheet: single or continuous, monitor or high-speed sampling, the interval (or
// mask count) and the sampling time, each kept within its limits.
#include <algorithm>
#include <string>

#include "config/setting_sheets.h"
#include "config/sheet_rows.h"
#include "core/setting_limits.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"

namespace zt {

namespace {

constexpr float kLabelWidth = 1480;
constexpr float kValueWidth = 1730;

}  // namespace

void SettingSheets::buildSamplingSheet() {
    ui::SpreadSheet& s = sprSampling_;
    s.SetMaxCols(1);
    s.SetMaxRows(kSamplingRowTime);
    s.SetColWidth(0, kLabelWidth);
    s.SetColWidth(1, kValueWidth);
    s.setText(1, 0, host_.text(msg::kSamplingSetting));
    s.setText(0, kSamplingRowMode, host_.text(msg::kSingleContinuous));
    s.setText(0, kSamplingRowSpeed, host_.text(msg::kMode));
    s.setText(0, kSamplingRowTime, host_.text(msg::kTime));
    s.setCellType(1, kSamplingRowMode, ui::CellType::ComboBox);
    s.setListItems(1, kSamplingRowMode, {host_.text(msg::kSingle), host_.text(msg::kContinuous)});
    s.setCellType(1, kSamplingRowSpeed, ui::CellType::ComboBox);
    s.setListItems(1, kSamplingRowSpeed, {host_.text(msg::kMonitor), host_.text(msg::kHighSpeed)});
    s.setCellType(1, kSamplingRowInterval, ui::CellType::Number);
    s.setNumberFormat(1, kSamplingRowInterval, ui::NumberFormat{0, kIntervalCellMax, 0});
    s.setCellType(1, kSamplingRowTime, ui::CellType::Number);
    s.setNumberFormat(1, kSamplingRowTime, ui::NumberFormat{0, kSamplingTimeCellMax, 0});
    showSamplingSettings();

    s.ComboSelChange.connect([this](int col, int row) { onSamplingListChanged(col, row); });
    s.Change.connect([this](int, int) {
        if (!editable()) return;
        retakeSampling();
        hooks.rebuildTimeScaleList();
    });
    s.KeyDown.connect([this](int& key, int) {
        if (key != ui::kKeyEscape || !editable()) return;
        retakeSampling();
        if (sprSampling_.ActiveRow() == kSamplingRowSpeed) speedRule();
    });
    s.Click.connect([this](int col, int row) {
        if (!editable() || col != 1 || (row != kSamplingRowInterval && row != kSamplingRowTime))
            return;
        sprSampling_.SetActiveCell(col, row);
        sprSampling_.SetEditMode(true);
    });
    s.TextTipFetch.connect([this](int col, int row, std::string& tip, bool&) {
        const bool maskRow = col == 0 && row == kSamplingRowInterval &&
                             state_.sampSetting.intSamplingSpeed == kSpeedHighSpeed;
        tip = maskRow ? maskTip() : std::string();
    });
}

void SettingSheets::showSamplingSettings() {
    ui::SpreadSheet& s = sprSampling_;
    const SAMPSETTING& set = state_.sampSetting;
    const bool high = set.intSamplingSpeed == kSpeedHighSpeed;
    s.setSelectedIndex(1, kSamplingRowMode, std::clamp<int>(set.intSamplingMode, 0, 1));
    s.setSelectedIndex(1, kSamplingRowSpeed, high ? 1 : 0);
    s.setText(0, kSamplingRowInterval, host_.text(high ? msg::kMaskCount : msg::kInterval));
    s.setNumber(1, kSamplingRowInterval, high ? set.dblMask : set.dblSamplingInterval);
    s.setNumber(1, kSamplingRowTime, set.dblSamplingTime);
}

void SettingSheets::onSamplingListChanged(int col, int row) {
    if (!editable() || col != 1 || (row != kSamplingRowMode && row != kSamplingRowSpeed)) return;
    const SAMPSETTING& set = state_.sampSetting;
    const int index = sprSampling_.selectedIndex(col, row);
    const int stored = row == kSamplingRowMode ? set.intSamplingMode : set.intSamplingSpeed;
    if (index == stored) return;
    if (row == kSamplingRowSpeed && index >= 0) {
        // The third row changes meaning: it shows the field of the new speed, so that neither
        // the interval nor the mask count is clamped to the other's bounds.
        state_.sampSetting.intSamplingSpeed = static_cast<int16_t>(index);
        const SAMPSETTING& now = state_.sampSetting;
        sprSampling_.setNumber(1, kSamplingRowInterval,
                               index == kSpeedHighSpeed ? now.dblMask : now.dblSamplingInterval);
    }
    retakeSampling();
    if (sprSampling_.ActiveRow() == kSamplingRowSpeed) speedRule();
    refreshTriggerTargets();
    reevaluateLevel();
    showHighSpeedNote();
}

void SettingSheets::takeIntervalRow() {
    ui::SpreadSheet& s = sprSampling_;
    SAMPSETTING& set = state_.sampSetting;
    const int selected = s.selectedIndex(1, kSamplingRowSpeed);
    const int16_t speed = selected >= 0 ? static_cast<int16_t>(selected) : set.intSamplingSpeed;
    const Limits limits = intervalLimits(speed, ReturnChCount(), set.intTriggerType,
                                         set.intTriggerTarget, state_.iniFileItem);
    double& field = set.intSamplingSpeed == kSpeedHighSpeed ? set.dblMask : set.dblSamplingInterval;
    const std::optional<double> value = s.number(1, kSamplingRowInterval);
    field = value ? std::clamp(*value, limits.min, limits.max) : limits.min;
    s.setNumber(1, kSamplingRowInterval, field);
}

void SettingSheets::takeSamplingRows() {
    ui::SpreadSheet& s = sprSampling_;
    SAMPSETTING& set = state_.sampSetting;
    const int speed = s.selectedIndex(1, kSamplingRowSpeed);
    const int mode = s.selectedIndex(1, kSamplingRowMode);
    if (speed >= 0) set.intSamplingSpeed = static_cast<int16_t>(speed);
    if (mode >= 0) set.intSamplingMode = static_cast<int16_t>(mode);
    const bool high = set.intSamplingSpeed == kSpeedHighSpeed;
    s.setText(0, kSamplingRowInterval, host_.text(high ? msg::kMaskCount : msg::kInterval));
    const Limits limits =
        samplingTimeLimits(set.intSamplingSpeed, set.dblSamplingInterval, set.dblMask);
    const std::optional<double> value = s.number(1, kSamplingRowTime);
    set.dblSamplingTime = value ? std::clamp(*value, limits.min, limits.max) : limits.min;
    s.setNumber(1, kSamplingRowTime, set.dblSamplingTime);
}

void SettingSheets::retakeSampling() {
    takeIntervalRow();
    takeSamplingRows();
}

void SettingSheets::speedRule() {
    highSpeedStationRule();
    if (ReturnChCount() == 0) hooks.runEvent(kEventChannelsCleared);
}

void SettingSheets::showHighSpeedNote() {
    lblHighSampItem_.Visible = state_.sampSetting.intSamplingSpeed == kSpeedHighSpeed;
}

std::string SettingSheets::maskTip() {
    const double factor = text::val(host_.text(msg::kMaskTipFactor));
    return host_.text(msg::kMaskTip) + text::doubleToText(factor, locale_) +
           host_.text(msg::kMaskTipUnit);
}

}  // namespace zt
