// The sampling sheet: single or continuous, monitor or high-speed sampling, the interval (or
// mask count) and the sampling time, each kept within its limits.
#include <algorithm>
#include <string>

#include "config/setting_limits.h"
#include "config/setting_sheets.h"
#include "platform/text/number_text.h"
#include "platform/text/numeric.h"

namespace zt {

namespace {

constexpr int kRowMode = 1;
constexpr int kRowSpeed = 2;
constexpr int kRowInterval = 3;
constexpr int kRowTime = 4;
constexpr float kLabelWidth = 1480;
constexpr float kValueWidth = 1730;

}  // namespace

void SettingSheets::buildSamplingSheet() {
    ui::SpreadSheet& s = sprSampling_;
    s.SetMaxCols(1);
    s.SetMaxRows(kRowTime);
    s.SetColWidth(0, kLabelWidth);
    s.SetColWidth(1, kValueWidth);
    s.setText(1, 0, host_.text(msg::kSamplingSetting));
    s.setText(0, kRowMode, host_.text(msg::kSingleContinuous));
    s.setText(0, kRowSpeed, host_.text(msg::kMode));
    s.setText(0, kRowTime, host_.text(msg::kTime));
    s.setCellType(1, kRowMode, ui::CellType::ComboBox);
    s.setListItems(1, kRowMode, {host_.text(msg::kSingle), host_.text(msg::kContinuous)});
    s.setCellType(1, kRowSpeed, ui::CellType::ComboBox);
    s.setListItems(1, kRowSpeed, {host_.text(msg::kMonitor), host_.text(msg::kHighSpeed)});
    s.setCellType(1, kRowInterval, ui::CellType::Number);
    s.setNumberFormat(1, kRowInterval, ui::NumberFormat{0, kIntervalCellMax, 0});
    s.setCellType(1, kRowTime, ui::CellType::Number);
    s.setNumberFormat(1, kRowTime, ui::NumberFormat{0, kSamplingTimeCellMax, 0});
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
        if (sprSampling_.ActiveRow() == kRowSpeed) speedRule();
    });
    s.Click.connect([this](int col, int row) {
        if (!editable() || col != 1 || (row != kRowInterval && row != kRowTime)) return;
        sprSampling_.SetActiveCell(col, row);
        sprSampling_.SetEditMode(true);
    });
    s.TextTipFetch.connect([this](int col, int row, std::string& tip, bool&) {
        const bool maskRow = col == 0 && row == kRowInterval &&
                             state_.sampSetting.intSamplingSpeed == kSpeedHighSpeed;
        tip = maskRow ? maskTip() : std::string();
    });
}

void SettingSheets::showSamplingSettings() {
    ui::SpreadSheet& s = sprSampling_;
    const SAMPSETTING& set = state_.sampSetting;
    const bool high = set.intSamplingSpeed == kSpeedHighSpeed;
    s.setSelectedIndex(1, kRowMode, std::clamp<int>(set.intSamplingMode, 0, 1));
    s.setSelectedIndex(1, kRowSpeed, high ? 1 : 0);
    s.setText(0, kRowInterval, host_.text(high ? msg::kMaskCount : msg::kInterval));
    s.setNumber(1, kRowInterval, high ? set.dblMask : set.dblSamplingInterval);
    s.setNumber(1, kRowTime, set.dblSamplingTime);
}

void SettingSheets::onSamplingListChanged(int col, int row) {
    if (!editable() || col != 1 || (row != kRowMode && row != kRowSpeed)) return;
    const SAMPSETTING& set = state_.sampSetting;
    const int index = sprSampling_.selectedIndex(col, row);
    const int stored = row == kRowMode ? set.intSamplingMode : set.intSamplingSpeed;
    if (index == stored) return;
    if (row == kRowSpeed && index >= 0) {
        // The third row changes meaning: it shows the field of the new speed, so that neither
        // the interval nor the mask count is clamped to the other's bounds.
        state_.sampSetting.intSamplingSpeed = static_cast<int16_t>(index);
        const SAMPSETTING& now = state_.sampSetting;
        sprSampling_.setNumber(1, kRowInterval,
                               index == kSpeedHighSpeed ? now.dblMask : now.dblSamplingInterval);
    }
    retakeSampling();
    if (sprSampling_.ActiveRow() == kRowSpeed) speedRule();
    refreshTriggerTargets();
    reevaluateLevel();
    showHighSpeedNote();
}

void SettingSheets::takeIntervalRow() {
    ui::SpreadSheet& s = sprSampling_;
    SAMPSETTING& set = state_.sampSetting;
    const int selected = s.selectedIndex(1, kRowSpeed);
    const int16_t speed = selected >= 0 ? static_cast<int16_t>(selected) : set.intSamplingSpeed;
    const Limits limits = intervalLimits(speed, ReturnChCount(), set.intTriggerType,
                                         set.intTriggerTarget, state_.iniFileItem);
    double& field = set.intSamplingSpeed == kSpeedHighSpeed ? set.dblMask : set.dblSamplingInterval;
    const std::optional<double> value = s.number(1, kRowInterval);
    field = value ? std::clamp(*value, limits.min, limits.max) : limits.min;
    s.setNumber(1, kRowInterval, field);
}

void SettingSheets::takeSamplingRows() {
    ui::SpreadSheet& s = sprSampling_;
    SAMPSETTING& set = state_.sampSetting;
    const int speed = s.selectedIndex(1, kRowSpeed);
    const int mode = s.selectedIndex(1, kRowMode);
    if (speed >= 0) set.intSamplingSpeed = static_cast<int16_t>(speed);
    if (mode >= 0) set.intSamplingMode = static_cast<int16_t>(mode);
    const bool high = set.intSamplingSpeed == kSpeedHighSpeed;
    s.setText(0, kRowInterval, host_.text(high ? msg::kMaskCount : msg::kInterval));
    const Limits limits =
        samplingTimeLimits(set.intSamplingSpeed, set.dblSamplingInterval, set.dblMask);
    const std::optional<double> value = s.number(1, kRowTime);
    set.dblSamplingTime = value ? std::clamp(*value, limits.min, limits.max) : limits.min;
    s.setNumber(1, kRowTime, set.dblSamplingTime);
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
