#include "sim/sim_link.h"

#include <utility>

namespace zt::sim {
namespace {

STATION_RECORD absentRecord(int station) {
    STATION_RECORD r;
    r.intStationNo = static_cast<int16_t>(station);
    r.lngModelCode = kStationNotPresent;
    return r;
}

}  // namespace

SimLink::SimLink() {
    for (int s = 0; s < kStationCount; ++s)
        detach(s);
}

SimLink SimLink::standard() {
    SimLink link;
    const std::array<std::pair<int, std::string_view>, 4> placement{
        {{1, "general"}, {2, "vector"}, {3, "servo"}, {5, "compact"}}};
    for (const auto& [station, key] : placement) {
        if (const DriveModel* m = findModelByKey(key)) link.attach(station, *m);
    }
    return link;
}

void SimLink::attach(int station, const DriveModel& model) {
    STATION_RECORD r;
    r.lngModelCode = model.modelCode;
    r.lngCapacity = model.capacity;
    r.lngRegion = model.region;
    r.lngSpModel = model.spModel;
    r.lngAttribute = model.attribute;
    attachRecord(station, r);
}

void SimLink::attachRecord(int station, const STATION_RECORD& record) {
    SimStation* s = at(station);
    if (s == nullptr) return;
    *s = SimStation{};
    s->record = record;
    s->record.intStationNo = static_cast<int16_t>(station);
    s->ready = record.present();
    s->commError = record.present() ? 0 : kErrNoResponse;
}

void SimLink::detach(int station) {
    SimStation* s = at(station);
    if (s == nullptr) return;
    *s = SimStation{};
    s->record = absentRecord(station);
    s->commError = kErrNoResponse;
}

void SimLink::setReady(int station, bool ready) {
    if (SimStation* s = at(station)) s->ready = ready;
}

void SimLink::setCommError(int station, int32_t code) {
    if (SimStation* s = at(station)) s->commError = code;
}

void SimLink::setOperatingState(int station, int32_t state) {
    if (SimStation* s = at(station)) s->operatingState = state;
}

void SimLink::setOffline(int station) {
    if (SimStation* s = at(station)) {
        s->ready = false;
        s->commError = kErrNoResponse;
    }
}

void SimLink::setOnline(int station) {
    if (SimStation* s = at(station)) {
        s->ready = true;
        s->commError = 0;
    }
}

const SimStation* SimLink::station(int station) const {
    if (station < 0 || station >= kStationCount) return nullptr;
    return &stations_[static_cast<std::size_t>(station)];
}

const DriveModel* SimLink::model(int station) const {
    const SimStation* s = this->station(station);
    if (s == nullptr || !s->record.present()) return nullptr;
    return findModel(s->record.lngModelCode);
}

SYS_INFO SimLink::sysInfo() const {
    SYS_INFO info;
    info.udtStation.reserve(stations_.size());
    for (const SimStation& s : stations_)
        info.udtStation.push_back(s.record);
    return info;
}

SimStation* SimLink::at(int station) {
    if (station < 0 || station >= kStationCount) return nullptr;
    return &stations_[static_cast<std::size_t>(station)];
}

}  // namespace zt::sim
