// One sweep of a sampling run, fed with the records of each reply: an untriggered sweep
// appends every record; a triggered sweep keeps a window of just under the pre-trigger time
// until the trigger condition turns from false to true, then the window becomes the start of
// the graph. The sweep is complete when the graph covers the sampling time or holds 10,000
// records. Work per reply is proportional to the records it brings.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/conversion_table.h"
#include "platform/host_records.h"

namespace zt {

// Trigger phases.
enum TriggerPhase : int16_t {
    kUntriggered = 0,
    kPreTrigger = 1,
    kWaitingForTrigger = 2,
    kTriggered = 3,
};

struct SweepSetup {
    int16_t triggerType = 0;  // 0 none, 1 "Inside", 2 "Fault"
    int16_t triggerBoot = 0;  // 0 rise, 1 fall
    double triggerLevel = 0;
    int triggerChannel = 0;  // "Inside": channel 1 to 8
    bool triggerChannelDigital = false;
    Conversion conversion;       // "Inside" on an analog channel
    int64_t preTriggerTime = 0;  // tenths of a millisecond
    double samplingTime = 0;     // tenths of a millisecond
    // "Fault": analog channels 1 to 4 whose raw values are zeroed in faulted records.
    std::array<bool, 4> zeroOnFault{};
};

// Pre-trigger time: position / 100 x sampling time (ms) x 10, rounded to a 32-bit integer.
int32_t preTriggerTime(float triggerPosition, double samplingTimeMs);

// The trigger condition of one record.
bool triggerCondition(const SweepSetup& setup, const SampleRecord& record);

struct FeedResult {
    std::size_t consumed = 0;  // records of the reply taken by this sweep
    bool complete = false;
    int drawFirst = 0;  // graph records [drawFirst, drawLast) are new and plotted
    int drawLast = 0;
};

class SweepCapture {
  public:
    SweepCapture();

    // Starts a sweep writing into `graph` (10,000 records). The part of the graph written by
    // the previous sweep, or all of it when `clearAll`, is zeroed.
    void begin(const SweepSetup& setup, std::vector<SampleRecord>& graph, bool clearAll);
    // Takes records until the sweep is complete or the reply is used up.
    FeedResult feed(std::span<const SampleRecord> records);

    int16_t phase() const { return phase_; }
    // Index of the trigger record in the graph (window length while waiting).
    int32_t triggerPoint() const { return triggerPoint_; }
    int graphCount() const { return count_; }

  private:
    void store(SampleRecord& record, bool completing) const;
    bool append(SampleRecord record);
    void pushWindow(const SampleRecord& record);
    void popWindow();
    bool takeWindowAsGraph();

    SweepSetup setup_;
    std::vector<SampleRecord>* graph_ = nullptr;
    int16_t phase_ = kUntriggered;
    int count_ = 0;
    int dirty_ = kGraphRecords;  // graph records possibly non-zero
    int drawn_ = 0;
    int64_t graphTime_ = 0;
    int64_t summed_ = 0;
    bool previous_ = true;
    int32_t triggerPoint_ = 0;
    // Ring buffer of the pre-trigger window.
    std::vector<SampleRecord> window_;
    std::size_t windowHead_ = 0;
    std::size_t windowSize_ = 0;
    int64_t windowSum_ = 0;
};

}  // namespace zt
