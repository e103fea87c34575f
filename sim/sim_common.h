// The simulated common library object: answers the component's questions about messages,
// stations, items and files from the drive catalogue and a simulated link.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/host_locale.h"
#include "platform/zt_common.h"
#include "sim/sim_link.h"

namespace zt::sim {

// The name of the component's block in the host's project file (see sim_project_file.h).
inline constexpr const char* kProjectBlockName = "ztGraph";

// Verdicts of CheckHighSpeedSampling.
inline constexpr int32_t kHighSpeedPossible = 0;
inline constexpr int32_t kHighSpeedNotSupported = 1;
inline constexpr int32_t kHighSpeedNoStation = 2;

struct TabMouseMoveCall {
    std::string tabStripName;
    int16_t button = 0;
    float xPixels = 0;
    float yPixels = 0;
};

class SimCommon : public zt::ztCommon {
  public:
    explicit SimCommon(SimLink link = SimLink::standard(), HostLocale locale = {});

    // Test and host-side controls.
    SimLink& link() { return link_; }
    const SimLink& link() const { return link_; }
    void setLocale(const HostLocale& locale) { locale_ = locale; }
    // A host whose project file keeps the component's block elsewhere: both block-position
    // operations answer `position` (first byte 1, -1 for none) for any file; nullopt returns
    // to the table of the simulated project file.
    void setBlockPosition(std::optional<int32_t> position) { blockPosition_ = position; }
    // The host's message table; an entry overrides the component's built-in default text.
    void setMessage(int32_t number, std::string text) { messages_[number] = std::move(text); }
    void setMessages(std::map<int32_t, std::string> messages) { messages_ = std::move(messages); }
    void clearMessages() { messages_.clear(); }
    // The station the host works with; its model text is what GetModelText answers.
    void selectStation(int32_t station) { selectedStation_ = station; }
    int32_t selectedStation() const { return selectedStation_; }
    // Overrides the model text whatever station is selected; nullopt restores the default.
    void setModelText(std::optional<std::string> text) { modelText_ = std::move(text); }
    const std::optional<TabMouseMoveCall>& lastTabMouseMove() const { return lastTabMove_; }

    std::string GetMessageText(int32_t number, const std::string& defaultText) override;
    void SetFont(const Font& font) override { font_ = font; }
    std::optional<Font> GetFont() override { return font_; }
    int32_t GetStationState(int16_t station, STATION_STATE& state, int32_t& value) override;
    int32_t GetStationComm(int16_t station, STATION_COMM& comm, int32_t& value) override;
    int32_t GetCommErrorText(int32_t code, std::string& text, bool& unknown) override;
    int32_t FillStationTable(StationTable& table, const SYS_INFO& sysInfo, int32_t& value,
                             int32_t& count) override;
    int32_t LookupStation(int32_t station, STATION_RECORD& record, int32_t& errorCode) override;
    int32_t GetModelText(std::string& text) override;
    std::string GetModelSeries(int32_t modelCode) override;
    int32_t GetHighSpeedMask(int32_t modelCode) override;
    std::vector<ITEM_INFO> GetStationItems(int32_t modelCode, int16_t listSelector,
                                           int32_t filterMask) override;
    MONI_ITEM AssembleMonitorItem(const std::vector<ITEM_INFO>& analog,
                                  const std::vector<ITEM_INFO>& inOut, int32_t capacity,
                                  int32_t region, int32_t spModel) override;
    std::string GetUnitText(int32_t unitCode) override;
    int32_t QueryDriveAbility(int16_t station, int32_t& abilityWord,
                              int32_t& operatingState) override;
    int32_t CheckHighSpeedSampling(int16_t station) override;
    int32_t WriteGraphFileHeader(const std::string& fileName, const std::string& version,
                                 int16_t node) override;
    std::string GetProjectBlockName() override;
    int32_t GetBlockWritePosition(const std::string& fileName,
                                  const std::string& blockName) override;
    int32_t GetBlockReadPosition(const std::string& fileName,
                                 const std::string& blockName) override;
    void TabMouseMove(const std::string& tabStripName, int16_t button, float xPixels,
                      float yPixels) override;

  private:
    std::optional<int32_t> blockPosition_;
    SimLink link_;
    HostLocale locale_;
    std::map<int32_t, std::string> messages_;
    std::optional<Font> font_;
    int32_t selectedStation_ = kNoStation;
    std::optional<std::string> modelText_;
    std::optional<TabMouseMoveCall> lastTabMove_;
};

}  // namespace zt::sim
