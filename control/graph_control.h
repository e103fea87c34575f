// The graph component: one control object that a host places in a pane. Construction is the
// control's Initialize; the host then drives it through the public members below and receives
// requests through the ReqCommand event. Everything runs on the host's user-interface thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "control/graph_state.h"
#include "control/graph_surface.h"
#include "control/host_services.h"
#include "graph/chart_refs.h"
#include "platform/chart/chart_root.h"
#include "platform/common_library.h"
#include "platform/host_locale.h"
#include "platform/host_records.h"
#include "platform/ui/event.h"

namespace zt {

class ztGraphControl {
  public:
    // Initialize: builds the whole surface and state; the run state is 0 afterwards.
    explicit ztGraphControl(CommonLibrary& library, HostEnvironment environment = {});
    ~ztGraphControl();
    ztGraphControl(const ztGraphControl&) = delete;
    ztGraphControl& operator=(const ztGraphControl&) = delete;

    // Life cycle.
    void Show();
    void Resize();
    void Terminate();

    // The one event: 77 asks the host to start sampling, 78 to stop.
    ui::Event<int32_t> ReqCommand;

    // Public members.
    bool m_blnStartErr() const { return state_.startErr; }
    void m_blnStartErr(bool value) { state_.startErr = value; }
    bool GetInifileString(const std::string& IniFile, const std::string& iniSection,
                          const std::string& iniEntry, std::string& iniBuff);
    bool SetInifileString(const std::string& IniFile, const std::string& iniSection,
                          const std::string& iniEntry, std::string& iniBuff);
    void SetMsgItem(std::vector<MSG_ITEM>& udtMsgItem);
    void SetIniFileItem(INIFILE_ITEM& udtIniFileItem);
    void SetParameter(int16_t intNode, MODEL_INFO& udtModel, PARAMETER_INFO& udtParameter);
    PARAMETER_INFO GetParameter();
    void ChgSelectNode(int16_t intNode);
    void QueryUnLoadU(int16_t& Cancel, int16_t UnLoadMode);
    void setCommonObj(ztCommon* objCommon);
    void HeightU(float value);
    float HeightU() const { return height_; }
    void WidthU(float value);
    float WidthU() const { return width_; }
    std::string CaptionU();
    int16_t StatusU() const { return state_.statusU; }
    void GetHelpContextId(int32_t& lngHelpID, int32_t& lngModel_Type, int32_t& lngCapa_region,
                          int16_t& intOption, int32_t& lngSp_Model);
    std::string ImportFileExtensionU() const { return {}; }
    std::string ExportFileExtensionU() const { return {}; }
    std::string ImportFileFilterU();
    std::string ExportFileFilterU();
    void CtrlFlagU(int32_t value);
    void FontU(const Font& font);
    void setContainerInfo(CONT_INFO& udtContInfo);

    // What a person and a test can see and touch.
    GraphSurface& surface() { return surface_; }
    const GraphSurface& surface() const { return surface_; }
    const GraphState& state() const { return state_; }
    const HostEnvironment& environment() const { return env_; }
    int16_t runState() const { return state_.runState; }
    bool terminated() const { return terminated_; }
    // The chart and the references the control took to its objects.
    chart::ChartRoot& chartRoot() { return CBGraph1; }
    const chart::ChartRoot& chartRoot() const { return CBGraph1; }
    const ChartRefs& chartRefs() const { return chart_; }

  private:
    void initialize();

    HostEnvironment env_;
    HostServices host_;
    GraphState state_;
    GraphSurface surface_;
    chart::ChartRoot CBGraph1;
    ChartRefs chart_;
    float width_ = kMinControlSize;
    float height_ = kMinControlSize;
    bool terminated_ = false;
};

}  // namespace zt
