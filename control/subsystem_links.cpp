// How the subsystems reach one another. The setting sheets send run events to the run-state
// machine; the run control locks the sheets, asks them about items, resets them on Clear and
// hands finished graphs to the history. Every link is made here, once, at construction.
#include <algorithm>

#include "config/item_attribute.h"
#include "config/item_tables.h"
#include "control/graph_control.h"
#include "platform/text/date_time_text.h"
#include "store/new_graph.h"

namespace zt {

namespace {

// Attribute column telling that an item's values are zeroed on a fault of its station.
constexpr int16_t kAttrZeroOnFault = 9;

}  // namespace

void ztGraphControl::linkSubsystems() {
    sheets_.hooks.runEvent = [this](int16_t event) { run_.changeRunState(event); };

    RunHooks& run = run_.hooks();
    run.lockSheets = [this](bool locked) { sheets_.setSheetsLocked(locked); };
    run.initializeSettings = [this] { return sheets_.initializeSettings(); };
    run.itemSigned = [this](int channel) { return itemFlag(channel, kAttrSign); };
    run.itemZeroedOnFault = [this](int channel) { return itemFlag(channel, kAttrZeroOnFault); };
    run.samplingItemOffered = [this](int channel, int16_t speed) {
        const auto& list = channelItemList(state_.tableItem, channel, speed);
        const int32_t item = state_.chSetting[static_cast<std::size_t>(channel)].lngSamplingItem;
        return std::any_of(list.begin(), list.end(), [item](const ITEM_INFO& entry) {
            return entry.lngItemCode == item && entry.lngItemCode != kNoneItem;
        });
    };
    run.enterNewGraph = [this] {
        const std::string stamp = text::dateTimeText(text::localTime(env_.now()), env_.locale);
        enterNewGraph(state_, stamp, sheets_.ReturnChCount());
    };
}

bool ztGraphControl::itemFlag(int channel, int16_t column) {
    if (channel < 1 || channel > kChannelCount) return false;
    const int16_t speed = state_.sampSetting.intSamplingSpeed;
    const int32_t item = state_.chSetting[static_cast<std::size_t>(channel)].lngSamplingItem;
    return sheets_.itemAttribute(item, column, static_cast<int16_t>(channel), speed) == "1";
}

}  // namespace zt
