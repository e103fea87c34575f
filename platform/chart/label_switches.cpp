#include "platform/chart/label_switches.h"

#include <algorithm>

namespace zt::chart {

void LabelSwitches::reset(int count) {
    count_ = std::max(count, 0);
    allOff();
}

void LabelSwitches::allOff() {
    on_.clear();
    ++generation_;
    if (generation_ == 0) {
        // The count wrapped: forget every old generation once.
        std::fill(slots_.begin(), slots_.end(), Slot{});
        generation_ = 1;
    }
}

bool LabelSwitches::isOn(int index) const {
    if (index < 0 || index >= count_ || static_cast<size_t>(index) >= slots_.size()) {
        return false;
    }
    return slots_[static_cast<size_t>(index)].generation == generation_;
}

void LabelSwitches::set(int index, bool on) {
    if (index < 0 || index >= count_) return;
    if (on == isOn(index)) return;
    // Slots are made on the first switch, not when the points are set.
    if (slots_.size() < static_cast<size_t>(count_)) slots_.resize(static_cast<size_t>(count_));
    Slot& slot = slots_[static_cast<size_t>(index)];
    if (on) {
        slot = Slot{generation_, static_cast<uint32_t>(on_.size())};
        on_.push_back(index);
        return;
    }
    // Move the last on-point into the freed place.
    const uint32_t place = slot.place;
    const int32_t last = on_.back();
    on_[place] = last;
    slots_[static_cast<size_t>(last)].place = place;
    on_.pop_back();
    slot.generation = 0;
}

}  // namespace zt::chart
