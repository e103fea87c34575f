// A simulated host application: it answers the component's ReqCommand the way the real host
// does and drives a sampling run through the component's public interface, by dispatch id.
// On 77 it reads the request, completes units, decimal places and base values from the drive
// catalogue, hands the request back and starts sampling (or refuses, setting m_blnStartErr);
// then each block delivers sample records at the request's interval (monitor interval, or
// (mask + 1) x 0.5 ms at high speed). On 78 it stops. Communication errors and buffer
// overflows can be injected at a chosen block.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "control/graph_control_interface.h"
#include "platform/graph_host_interface.h"
#include "platform/host_records.h"
#include "sim/drive_waveforms.h"

namespace zt::sim {

class SimHost : public GraphHostSink {
  public:
    using Invoke =
        std::function<DispatchResult(int32_t dispId, DispatchKind, std::vector<DispatchValue>&)>;

    explicit SimHost(Invoke invoke) : invoke_(std::move(invoke)) {}

    void ReqCommand(int32_t command) override;

    // What the drive does while sampled: its run (acceleration, load step, deceleration, or a
    // trip) spans `runRecords` samples and then starts over; `faultAtMs` trips it at that time.
    DriveScenario scenario = DriveScenario::Typical;
    int runRecords = kGraphRecords;
    std::optional<double> faultAtMs;
    // Raw counts per engineering unit of analog channel 1 to 4, asked once the request is
    // complete; without it a count is one unit of the item's last decimal place.
    std::function<double(int channel)> countsPerUnit;
    // Sample records per SetSamplingData call.
    int recordsPerBlock = 10;
    // Refuse the next starts: the host cannot sample.
    bool refuseStart = false;
    // Block `block` (0 = the first of a run) carries `code` instead of records.
    void failAtBlock(int block, int32_t code) { failures_[block] = code; }
    // Records delivered before the waveform, in order (their own intervals are kept).
    void script(std::vector<SampleRecord> records);

    bool sampling() const { return sampling_; }
    // One SetSamplingData call; false when the host is not sampling.
    bool deliverBlock();
    // Delivers blocks until the component stops the run or `maxBlocks` were delivered;
    // returns the number delivered.
    int run(int maxBlocks = 100000);

    const std::vector<int32_t>& commands() const { return commands_; }
    const GRAPH_REQUEST& request() const { return request_; }
    // Interval of the current run, tenths of a millisecond.
    int32_t intervalTenths() const { return interval_; }
    // Calls the component refused or that failed.
    const std::vector<DispatchResult>& errors() const { return errors_; }

  private:
    DispatchResult call(int32_t dispId, DispatchKind kind, std::vector<DispatchValue>& args);
    void start();
    SampleRecord nextRecord();
    void prepareWaveforms();

    Invoke invoke_;
    std::map<int, int32_t> failures_;
    std::vector<SampleRecord> script_;
    std::size_t scriptPos_ = 0;
    bool sampling_ = false;
    int block_ = 0;
    std::vector<SampleRecord> waveform_;
    std::size_t waveformPos_ = 0;
    int32_t interval_ = 1000;
    GRAPH_REQUEST request_{};
    std::vector<int32_t> commands_;
    std::vector<DispatchResult> errors_;
};

}  // namespace zt::sim
