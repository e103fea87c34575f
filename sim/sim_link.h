// The simulated drive link: 32 stations, each either absent or a catalogue drive with a link
// state, a last communication error and an operating state. Tests change these to inject
// faults ("station 3 goes offline", "station 2 reports 0x80040001").
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/host_records.h"
#include "sim/drive_catalogue.h"

namespace zt::sim {

struct SimStation {
    STATION_RECORD record;       // what the host's station list says about the station
    bool ready = false;          // link state: ready for sampling
    int32_t commError = 0;       // last communication error, 0 when none
    int32_t operatingState = 0;  // drive operating state (4 to 6: controller function active)
};

class SimLink {
  public:
    // All 32 stations absent.
    SimLink();
    // The default link: "general" on station 1, "vector" on 2, "servo" on 3, "compact" on 5.
    static SimLink standard();

    // Puts a catalogue drive on `station`: ready, no error, operating state 0.
    void attach(int station, const DriveModel& model);
    // Puts a station with an arbitrary record (the station number is set to `station`).
    void attachRecord(int station, const STATION_RECORD& record);
    // Removes the drive: model code 0xFFFFFFFF, not ready, no response.
    void detach(int station);

    void setReady(int station, bool ready);
    void setCommError(int station, int32_t code);
    void setOperatingState(int station, int32_t state);
    // Not ready and answering "no response": a cable pulled or the drive switched off.
    void setOffline(int station);
    // Ready again with no error.
    void setOnline(int station);

    // nullptr for a station outside 0 to 31.
    const SimStation* station(int station) const;
    // The catalogue model of a station; nullptr when absent, out of range or not catalogued.
    const DriveModel* model(int station) const;

    // The host's system record: all 32 stations, absent ones included.
    SYS_INFO sysInfo() const;

  private:
    SimStation* at(int station);

    std::array<SimStation, kStationCount> stations_{};
};

}  // namespace zt::sim
