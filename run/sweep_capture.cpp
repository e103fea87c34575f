#include "run/sweep_capture.h"

#include <algorithm>

#include "platform/text/rounding.h"

namespace zt {

int32_t preTriggerTime(float triggerPosition, double samplingTimeMs) {
    return text::toInt32Saturated(static_cast<double>(triggerPosition) / 100.0 * samplingTimeMs *
                                  10.0);
}

bool triggerCondition(const SweepSetup& setup, const SampleRecord& record) {
    if (setup.triggerType == 2) return record.intFaultData != 0;
    if (setup.triggerType != 1) return false;
    if (setup.triggerBoot != 0 && setup.triggerBoot != 1) return false;
    const bool rise = setup.triggerBoot == 0;
    const int c = setup.triggerChannel;
    if (setup.triggerChannelDigital) {
        if (c < 5 || c > 8) return false;
        const bool bit = ((static_cast<uint16_t>(record.intDigitalData) >> (c - 5)) & 1u) != 0;
        return rise ? bit : !bit;
    }
    if (c < 1 || c > 4) return false;
    const double value =
        convertRaw(record.lngAnalogData[static_cast<std::size_t>(c - 1)], setup.conversion);
    return rise ? value >= setup.triggerLevel : value <= setup.triggerLevel;
}

SweepCapture::SweepCapture() : window_(static_cast<std::size_t>(kGraphRecords)) {}

void SweepCapture::begin(const SweepSetup& setup, std::vector<SampleRecord>& graph, bool clearAll) {
    setup_ = setup;
    if (graph.size() != static_cast<std::size_t>(kGraphRecords)) {
        graph.assign(static_cast<std::size_t>(kGraphRecords), SampleRecord{});
    } else {
        const int used = clearAll || graph_ != &graph ? kGraphRecords : dirty_;
        std::fill(graph.begin(), graph.begin() + used, SampleRecord{});
    }
    graph_ = &graph;
    dirty_ = 0;
    phase_ = setup.triggerType == 1 || setup.triggerType == 2 ? kPreTrigger : kUntriggered;
    count_ = 0;
    drawn_ = 0;
    graphTime_ = 0;
    summed_ = 0;
    previous_ = true;
    triggerPoint_ = 0;
    windowHead_ = 0;
    windowSize_ = 0;
    windowSum_ = 0;
}

void SweepCapture::store(SampleRecord& record, bool completing) const {
    if (record.intFaultData == 0 && !completing) return;
    for (std::size_t k = 0; k < 4; ++k)
        if (setup_.zeroOnFault[k]) record.lngAnalogData[k] = 0;
}

// Adds a record to the graph; true when it completes the sweep.
bool SweepCapture::append(SampleRecord record) {
    if (count_ >= kGraphRecords) return true;
    const int64_t time = count_ > 0 ? graphTime_ + record.lngDiffTime : graphTime_;
    const bool complete =
        static_cast<double>(time) > setup_.samplingTime || count_ + 1 >= kGraphRecords;
    store(record, complete);
    (*graph_)[static_cast<std::size_t>(count_)] = record;
    ++count_;
    dirty_ = std::max(dirty_, count_);
    graphTime_ = time;
    return complete;
}

void SweepCapture::pushWindow(const SampleRecord& record) {
    if (windowSize_ == window_.size()) popWindow();
    window_[(windowHead_ + windowSize_) % window_.size()] = record;
    ++windowSize_;
    windowSum_ += record.lngDiffTime;
}

void SweepCapture::popWindow() {
    windowSum_ -= window_[windowHead_].lngDiffTime;
    windowHead_ = (windowHead_ + 1) % window_.size();
    --windowSize_;
}

// The window becomes the start of the graph; true when that already completes the sweep.
bool SweepCapture::takeWindowAsGraph() {
    bool complete = false;
    for (std::size_t i = 0; i < windowSize_ && !complete; ++i)
        complete = append(window_[(windowHead_ + i) % window_.size()]);
    windowSize_ = 0;
    windowSum_ = 0;
    return complete;
}

FeedResult SweepCapture::feed(std::span<const SampleRecord> records) {
    FeedResult result;
    if (graph_ == nullptr) return result;
    for (const SampleRecord& incoming : records) {
        ++result.consumed;
        SampleRecord record = incoming;
        if (phase_ == kUntriggered || phase_ == kTriggered) {
            if (append(record)) {
                result.complete = true;
                break;
            }
            continue;
        }
        if (phase_ == kPreTrigger) {
            summed_ += record.lngDiffTime;
            if (summed_ < setup_.preTriggerTime) {
                store(record, false);
                pushWindow(record);
                previous_ = triggerCondition(setup_, record);
                triggerPoint_ = static_cast<int32_t>(windowSize_);
                continue;
            }
            phase_ = kWaitingForTrigger;
            triggerPoint_ = static_cast<int32_t>(windowSize_);
        }
        // Waiting for the trigger: the window keeps just under the pre-trigger time and ends
        // with the latest record.
        const bool condition = triggerCondition(setup_, record);
        store(record, false);
        pushWindow(record);
        while (windowSize_ > 1 && windowSum_ >= setup_.preTriggerTime)
            popWindow();
        triggerPoint_ = static_cast<int32_t>(windowSize_) - 1;
        if (!previous_ && condition) {
            phase_ = kTriggered;
            if (takeWindowAsGraph()) {
                result.complete = true;
                break;
            }
        } else {
            previous_ = condition;
        }
    }
    if (phase_ == kUntriggered || phase_ == kTriggered) {
        result.drawFirst = drawn_;
        result.drawLast = count_;
        drawn_ = count_;
    }
    return result;
}

}  // namespace zt
