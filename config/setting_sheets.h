// The three setting sheets and what their edits do: the channel sheet (stations and items per
// channel, two-channel items, the high-speed station rule), the trigger sheet and the sampling
// sheet. The sheets keep the sampling and channel settings and the item lists in step with
// what the user chooses; everything else they affect is reached through the hooks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config/setting_hooks.h"
#include "core/graph_state.h"
#include "core/host_services.h"
#include "platform/host_locale.h"
#include "platform/ui/spread_sheet.h"
#include "platform/ui/static_controls.h"

namespace zt {

class SettingSheets {
  public:
    SettingSheets(GraphState& state, HostServices& host, ui::SpreadSheet& sprChannel,
                  ui::SpreadSheet& sprTrigger, ui::SpreadSheet& sprSampling,
                  ui::Label& lblHighSampItem, const HostLocale& locale);
    SettingSheets(const SettingSheets&) = delete;
    SettingSheets& operator=(const SettingSheets&) = delete;

    // Start-up: formats the three sheets from the settings, builds every channel's item lists
    // and connects the sheet events. Drawing is switched back on at the end.
    void build();
    // Shows the settings as they are held (after initialize or a load): stations, item lists
    // and names, trigger and sampling rows, the high-speed station rule and note. A refresh of
    // the same settings (new station table) keeps what the two-channel items remember of their
    // partners; a load forgets it.
    void showSettings(bool keepPartnerMemory = false);
    // Run states without editing lock every cell; unlocking makes the editable cells writable
    // again as the settings allow.
    void setSheetsLocked(bool locked);
    // The station table changed: rebuilds every St.No. list, drops stations no longer present
    // and refreshes the channels' items.
    void refreshStationLists();
    // Clear: after the user confirms, returns every setting to its default and the sheets with
    // them. False when the user cancelled (nothing changed).
    bool initializeSettings();

    // Host members.
    void SetMonitorItem(MONI_ITEM& udtMoniItem, int32_t lngCh);
    void SetMsgItem(std::vector<MSG_ITEM>& udtMsgItem);
    void SetIniFileItem(INIFILE_ITEM& udtIniFileItem);
    int16_t ReturnChCount() const;
    int16_t getChNode() const;

    // Channel rules for the start checks.
    bool channelIsSet(int channel) const;
    // `channel` when a lower channel of its group is unset, else 0; refreshes the pink marks.
    int orderTest(int channel);
    // Shows the ascending-order message and returns false when a set channel is out of order.
    bool ascendingOrderCheck();

    // The item attribute lookup for a channel's item (selector 0 monitor, 1 high speed).
    std::string itemAttribute(int32_t itemCode, int16_t column, int16_t channel,
                              const int16_t& selector);

    // Current minimum and maximum of the interval row for the stored speed.
    double minimumInterval() const;
    double maximumInterval() const;

    SettingHooks hooks;

  private:
    // Texts.
    std::string none() const;
    std::string noValue() const;
    bool editable() const;
    bool isBuiltInName(const std::string& name) const;

    // Channel sheet.
    void buildChannelSheet();
    void onChannelListChanged(int col, int row);
    void onChannelKeyDown(int key);
    void channelChange(int col, int row);
    bool channelCellDiffers(int col, int row) const;
    void takeChannelSheet();
    void recomputeDependents();
    void refreshItems(int channel);
    void refillNameList(int channel);
    void markPartner(int channel);
    void twoChannelProcedure(int channel);
    void highSpeedStationRule();
    void fillStationList(int channel);
    void makeCurrent(int channel);
    void applyChannelLocks();

    // Trigger sheet.
    void buildTriggerSheet();
    void onTriggerListChanged(int col, int row);
    void takeTriggerRow(int row);
    bool triggerCellDiffers(int row) const;
    void applyTriggerType(int16_t type, bool keepTriggerPoint);
    std::vector<std::string> triggerTargets() const;
    void refreshTriggerTargets();
    void reevaluateLevel();
    void takePosition();
    void applyTriggerLocks();
    void showTriggerSettings();

    // Sampling sheet.
    void buildSamplingSheet();
    void onSamplingListChanged(int col, int row);
    void takeIntervalRow();
    void takeSamplingRows();
    void retakeSampling();
    void speedRule();
    void showHighSpeedNote();
    std::string maskTip();
    void showSamplingSettings();

    GraphState& state_;
    HostServices& host_;
    ui::SpreadSheet& sprChannel_;
    ui::SpreadSheet& sprTrigger_;
    ui::SpreadSheet& sprSampling_;
    ui::Label& lblHighSampItem_;
    const HostLocale& locale_;
};

}  // namespace zt
