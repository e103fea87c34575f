// The graph component: one control object that a host places in a pane. Construction is the
// control's Initialize; the host then drives it through the public members below and receives
// requests through the ReqCommand event. Everything runs on the host's user-interface thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "config/setting_sheets.h"
#include "control/graph_display.h"
#include "core/chart_refs.h"
#include "core/conversion_table.h"
#include "core/graph_state.h"
#include "core/graph_surface.h"
#include "core/host_services.h"
#include "core/plot_inputs.h"
#include "platform/chart/chart_root.h"
#include "platform/common_library.h"
#include "platform/graph_host_interface.h"
#include "platform/host_locale.h"
#include "platform/host_records.h"
#include "platform/ui/event.h"
#include "run/run_control.h"
#include "store/history_display.h"

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
    // Connects the host's event sink (nullptr disconnects); ReqCommand then reaches it.
    void advise(GraphHostSink* sink);

    // Public members.
    bool m_blnStartErr() const { return state_.startErr; }
    void m_blnStartErr(bool value) { state_.startErr = value; }
    bool GetInifileString(const std::string& IniFile, const std::string& iniSection,
                          const std::string& iniEntry, std::string& iniBuff);
    bool SetInifileString(const std::string& IniFile, const std::string& iniSection,
                          const std::string& iniEntry, std::string& iniBuff);
    void SetMsgItem(std::vector<MSG_ITEM>& udtMsgItem);
    void SetIniFileItem(INIFILE_ITEM& udtIniFileItem);
    void SetMonitorItem(MONI_ITEM& udtMoniItem, int32_t lngCh);
    int16_t ReturnChCount() { return sheets_.ReturnChCount(); }
    int16_t getChNode() { return sheets_.getChNode(); }
    void SetSysInfo(int16_t intNode, SYS_INFO& udtSysInfo, PARAMETER_INFO& udtParameter);
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

    // Sampling runs and the host exchange.
    void SetSysStatus(int16_t intNode, SYS_INFO& udtSysInfo, INV_STATUS& udtInvStatus);
    // The run members below refuse by themselves after Terminate.
    void ChgLineStatus(int16_t intstatus) { run_.ChgLineStatus(intstatus); }
    void SetSamplingData(GRAPH_RESULT_INFO& udtGraphResultInfo, int32_t lngErrCode) {
        run_.SetSamplingData(udtGraphResultInfo, lngErrCode);
    }
    // The result is an empty VARIANT.
    void SetGraphRequest(GRAPH_REQUEST& udtGraphRequest) { run_.SetGraphRequest(udtGraphRequest); }
    GRAPH_REQUEST GetGraphRequest() { return run_.GetGraphRequest(); }
    void EventResCommand(int32_t lngResult) { run_.EventResCommand(lngResult); }
    void showComErrDlg(int32_t lngNode, int32_t lngErrCode);

    // Members whose subsystems are wired separately (printing, files, colours).
    void PrintOut(PrinterObject* objPrinter);
    int16_t ImportFile(const std::string& strFileName, SYS_INFO& udtSysInfo);
    int16_t ExportFile(const std::string& strFileName);
    int16_t SaveKivFile(const std::string& strFileName, VERSION_INFO& udtVersion);
    int16_t LoadKivFile(const std::string& strFileName, VERSION_INFO& udtVersion,
                        PROGRAM_VERSION& udtProgramVersion);
    void SetGraphColor(int32_t lngMode);

    // Run control and the hooks through which it reaches the other subsystems.
    RunControl& run() { return run_; }
    // History controls (option row, overwrite boxes, labels, comment box).
    HistoryDisplay& history() { return history_; }

    // What a person and a test can see and touch.
    GraphSurface& surface() { return surface_; }
    const GraphSurface& surface() const { return surface_; }
    const GraphState& state() const { return state_; }
    GraphState& state() { return state_; }
    SettingSheets& settingSheets() { return sheets_; }
    const HostEnvironment& environment() const { return env_; }
    int16_t runState() const { return state_.runState; }
    // Terminate has run: the control does nothing more (see Terminate).
    bool terminated() const { return state_.terminated; }
    // The chart and the references the control took to its objects.
    chart::ChartRoot& chartRoot() { return CBGraph1; }
    const chart::ChartRoot& chartRoot() const { return CBGraph1; }
    const ChartRefs& chartRefs() const { return chart_; }
    // The scale panel, cursors, colour schemes and chart layout.
    GraphDisplay& display() { return display_; }
    // How raw counts of analog channels 1 to 4 become the values on the graph, for the
    // current configuration and request.
    ConversionTable conversionTable();

  private:
    void initialize();
    void linkSubsystems();
    // Column `column` of the channel's item reads "1".
    bool itemFlag(int channel, int16_t column);
    // What plotting needs of the configuration, read from the sheets and the host.
    PlotInputs plotInputs();
    // A new run starts: default scales, empty series, axes for the whole recording.
    void prepareDisplayForRun();
    // Draws the newest graph with its axes.
    void showGraph();
    // After an import or project load: sheets, scroll range, scale panel, history selection,
    // cursor controls, then the display refresh below.
    void applyLoadedState(int32_t scrollMax);
    // Redraws scales, axes and cursors for the loaded display state.
    void refreshDisplayAfterLoad();
    // The first loaded channel whose station or item the host does not offer (after its
    // message), or 0.
    int firstChannelInError();
    // The chart shows a graph: the time-base series holds points (a run's replies, a finished
    // or loaded graph); nothing after a discard or before the first sample.
    bool graphShown() const;

    HostEnvironment env_;
    HostServices host_;
    GraphState state_;
    GraphSurface surface_;
    RunControl run_;
    SettingSheets sheets_;
    HistoryDisplay history_;
    chart::ChartRoot CBGraph1;
    ChartRefs chart_;
    GraphDisplay display_;
    PlotInputs sweepInputs_;  // plot inputs of the sweep being sampled
    float width_ = kMinControlSize;
    float height_ = kMinControlSize;
};

}  // namespace zt
