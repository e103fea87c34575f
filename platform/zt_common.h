// The host's common library as the component sees it. The host supplies it; the component
// creates one on first use and keeps it for its whole life. Every status result is 0 for
// success unless an operation says otherwise. Failures the library cannot answer are thrown as
// zt::AutomationError and reach the host unchanged.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/font.h"
#include "platform/host_records.h"

namespace zt {

// A failure of a hosted control or of the common library, passed to the host as the error of
// the call in progress.
class AutomationError : public std::runtime_error {
  public:
    AutomationError(int32_t code, const std::string& what)
        : std::runtime_error(what), code_(code) {}
    int32_t code() const { return code_; }

  private:
    int32_t code_;
};

// The control's own copy of the host's station list: stations 0 to 31.
using StationTable = std::array<STATION_RECORD, kStationCount>;

class ztCommon {
  public:
    virtual ~ztCommon() = default;

    // The host's text for message `number`, or `defaultText` when its table has none.
    virtual std::string GetMessageText(int32_t number, const std::string& defaultText) = 0;

    // The font the host wants the component to use; the component hands its own font over.
    virtual void SetFont(const Font& font) = 0;
    virtual std::optional<Font> GetFont() = 0;

    // Station state query: `state.lngLinkState` is 1 when the station is ready.
    virtual int32_t GetStationState(int16_t station, STATION_STATE& state, int32_t& value) = 0;
    // Station communication query: `comm.lngErrorCode` is the station's last error.
    virtual int32_t GetStationComm(int16_t station, STATION_COMM& comm, int32_t& value) = 0;
    // Description of a communication error code; "\n" (backslash, n) stands for a line break.
    // `unknown` is set when the library does not know the code.
    virtual int32_t GetCommErrorText(int32_t code, std::string& text, bool& unknown) = 0;

    // Copies the host's station list into the control's table and reports the station count.
    virtual int32_t FillStationTable(StationTable& table, const SYS_INFO& sysInfo, int32_t& value,
                                     int32_t& count) = 0;
    // The station record of `station` as the library knows it; `errorCode` 0 when found.
    virtual int32_t LookupStation(int32_t station, STATION_RECORD& record, int32_t& errorCode) = 0;
    // Model text of the drive the host is working with ("901" selects the 120-count scale).
    virtual int32_t GetModelText(std::string& text) = 0;
    // Model series letter ("A", "E", ...) of a station's model code.
    virtual std::string GetModelSeries(int32_t modelCode) = 0;

    // High-speed sampling mask of a model: an analog item can be sampled at high speed when
    // its flags share a bit with the mask.
    virtual int32_t GetHighSpeedMask(int32_t modelCode) = 0;
    // Item list of a model. Selector 0 gives the analog items, 1 the on/off items; only items
    // whose flags share a bit with `filterMask` are returned.
    virtual std::vector<ITEM_INFO> GetStationItems(int32_t modelCode, int16_t listSelector,
                                                   int32_t filterMask) = 0;
    // Builds the host's item record from the two lists and the station's fields at bytes 8,
    // 12 and 16.
    virtual MONI_ITEM AssembleMonitorItem(const std::vector<ITEM_INFO>& analog,
                                          const std::vector<ITEM_INFO>& inOut, int32_t capacity,
                                          int32_t region, int32_t spModel) = 0;
    // Unit text of a unit code ("Hz", "A", ...).
    virtual std::string GetUnitText(int32_t unitCode) = 0;

    // High-speed sampling ability of a station: returns a communication error code (0 when
    // the drive answered) and fills the drive's ability word and operating state.
    virtual int32_t QueryDriveAbility(int16_t station, int32_t& abilityWord,
                                      int32_t& operatingState) = 0;
    // The library's own verdict on high-speed sampling for a station (shown when no other
    // rule decides).
    virtual int32_t CheckHighSpeedSampling(int16_t station) = 0;

    // Writes the "COMMON_HEADER" section of a graph file; the result becomes the export's
    // initial status.
    virtual int32_t WriteGraphFileHeader(const std::string& fileName, const std::string& version,
                                         int16_t node) = 0;

    // Project file: the name of the component's block and its start offset (first byte of the
    // file is position 1), -1 when there is none.
    virtual std::string GetProjectBlockName() = 0;
    virtual int32_t GetBlockWritePosition(const std::string& fileName,
                                          const std::string& blockName) = 0;
    virtual int32_t GetBlockReadPosition(const std::string& fileName,
                                         const std::string& blockName) = 0;

    // Pointer movement over one of the component's tab strips, in pixels.
    virtual void TabMouseMove(const std::string& tabStripName, int16_t button, float xPixels,
                              float yPixels) = 0;
};

// The common library's message box.
class ztMessageBox {
  public:
    virtual ~ztMessageBox() = default;

    // Shows a box and returns when the user closes it; `result` is 1 for OK, 2 for Cancel.
    // The seven fixed arguments are passed as the host expects them (0, 2, 0, 0, 0, -1, 0).
    virtual void ShowMessage(std::string& text, int32_t& style, std::string& title, int32_t& arg4,
                             int32_t& arg5, int32_t& arg6, int32_t& arg7, int32_t& arg8,
                             int32_t& arg9, int32_t& arg10, int32_t& result) = 0;
};

// Message box styles used by the component.
inline constexpr int32_t kStyleNotice = 48;    // exclamation icon, OK
inline constexpr int32_t kStyleConfirm = 305;  // OK and Cancel, exclamation, Cancel default
inline constexpr int32_t kResultOk = 1;
inline constexpr int32_t kResultCancel = 2;

}  // namespace zt
