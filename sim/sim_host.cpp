#include "sim/sim_host.h"

#include <algorithm>
#include <cmath>

#include "sim/drive_catalogue.h"

namespace zt::sim {

namespace {

constexpr int32_t kDispStartErr = dispIdOf("m_blnStartErr");
constexpr int32_t kDispSetSamplingData = dispIdOf("SetSamplingData");
constexpr int32_t kDispSetGraphRequest = dispIdOf("SetGraphRequest");
constexpr int32_t kDispGetGraphRequest = dispIdOf("GetGraphRequest");

}  // namespace

DispatchResult SimHost::call(int32_t dispId, DispatchKind kind, std::vector<DispatchValue>& args) {
    DispatchResult r = invoke_(dispId, kind, args);
    if (!r.ok()) errors_.push_back(r);
    return r;
}

void SimHost::script(std::vector<SampleRecord> records) {
    script_ = std::move(records);
    scriptPos_ = 0;
}

void SimHost::ReqCommand(int32_t command) {
    commands_.push_back(command);
    if (command == 77) start();
    if (command == 78) sampling_ = false;
}

void SimHost::start() {
    std::vector<DispatchValue> none;
    DispatchResult got = call(kDispGetGraphRequest, DispatchKind::Method, none);
    if (const auto* req = std::get_if<GRAPH_REQUEST>(&got.value)) request_ = *req;

    for (std::size_t k = 0; k < 4; ++k) {
        const AnalogItemDef* item = findAnalogItem(request_.intAnalogItem[k]);
        request_.intUnit[k] = item ? static_cast<int16_t>(item->unitCode) : int16_t{0};
        request_.intDecPoint[k] = item ? static_cast<int16_t>(item->decimals) : int16_t{0};
        request_.lngBaseValue[k] = item ? item->fullScale : 0;
    }
    std::vector<DispatchValue> args{request_};
    call(kDispSetGraphRequest, DispatchKind::Method, args);

    if (refuseStart) {
        std::vector<DispatchValue> flag{true};
        call(kDispStartErr, DispatchKind::PropertyPut, flag);
        return;
    }
    interval_ = request_.intSamplingSpeed == 1 ? (request_.lngMask + 1) * 5
                                               : std::max(1, request_.lngInterval) * 10;
    sampling_ = true;
    block_ = 0;
    prepareWaveforms();
}

void SimHost::prepareWaveforms() {
    WaveformRequest wave;
    wave.scenario = scenario;
    wave.intervalTenths = interval_;
    wave.count = std::clamp(runRecords, 1, kGraphRecords);
    wave.faultAtMs = faultAtMs;
    for (std::size_t k = 0; k < 4; ++k) {
        WaveformChannel& analog = wave.channel[k + 1];
        analog.item = request_.intAnalogItem[k];
        analog.station = request_.intAnalogTarget[k];
        const int16_t decimals = std::clamp<int16_t>(request_.intDecPoint[k], 0, 3);
        analog.countsPerUnit =
            countsPerUnit ? countsPerUnit(static_cast<int>(k) + 1) : std::pow(10.0, decimals);
        WaveformChannel& digital = wave.channel[k + 5];
        digital.item = request_.intDigitalItem[k];
        digital.station = request_.intDigitalTarget[k];
    }
    waveform_ = driveWaveforms(wave);
    waveformPos_ = 0;
}

SampleRecord SimHost::nextRecord() {
    if (scriptPos_ < script_.size()) return script_[scriptPos_++];
    if (waveform_.empty()) prepareWaveforms();
    // Every sample comes one interval after the one before, also where the run starts over.
    SampleRecord r = waveform_[waveformPos_++ % waveform_.size()];
    r.lngDiffTime = interval_;
    return r;
}

bool SimHost::deliverBlock() {
    if (!sampling_) return false;
    GRAPH_RESULT_INFO reply;
    int32_t code = 0;
    if (auto it = failures_.find(block_); it != failures_.end()) {
        code = it->second;
    } else {
        reply.udtSample.reserve(static_cast<std::size_t>(std::max(0, recordsPerBlock)));
        for (int i = 0; i < recordsPerBlock; ++i)
            reply.udtSample.push_back(nextRecord());
    }
    ++block_;
    std::vector<DispatchValue> args{std::move(reply), code};
    call(kDispSetSamplingData, DispatchKind::Method, args);
    return true;
}

int SimHost::run(int maxBlocks) {
    int delivered = 0;
    while (delivered < maxBlocks && deliverBlock())
        ++delivered;
    return delivered;
}

}  // namespace zt::sim
