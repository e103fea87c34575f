#include "control/graph_control.h"

#include <algorithm>
#include <cmath>

#include "core/channel_colors.h"
#include "core/comm_error_text.h"
#include "core/ini_file_access.h"
#include "graph/chart_setup.h"
#include "graph/plot_graph.h"
#include "graph/surface_layout.h"
#include "platform/text/code_page.h"

namespace zt {

namespace {

// A size that is not a number or below the minimum becomes the minimum.
float clampedSize(float value) {
    if (!(value >= kMinControlSize)) return kMinControlSize;
    return value;
}

}  // namespace

ztGraphControl::ztGraphControl(CommonLibrary& library, HostEnvironment environment)
    : env_(std::move(environment)),
      host_(library, Font{}),
      run_(state_, surface_, host_, [this](int32_t command) { ReqCommand.raise(command); }),
      sheets_(state_, host_, surface_.sprChannel, surface_.sprTrigger, surface_.sprSampling,
              surface_.lblHighSampItem, env_.locale),
      history_(state_, surface_, host_, env_.locale.codePage),
      display_(state_, surface_, chart_, sheets_, host_, env_, [this] { return plotInputs(); }) {
    initialize();
}

ztGraphControl::~ztGraphControl() = default;

void ztGraphControl::initialize() {
    GraphSurface& s = surface_;
    linkSubsystems();

    // 1. The setting sheets start hidden, with drawing off, until they are built.
    for (ui::SpreadSheet* sheet : {&s.sprChannel, &s.sprTrigger, &s.sprSampling}) {
        sheet->Visible = false;
        sheet->SetReDraw(false);
    }

    // 2. Version record and help context id.
    state_.version = GRAPH_VERSION_INFO{"1.00", 5};
    state_.helpContextId = kHelpContextId;

    // 3. Storage is sized by the state records themselves (10,000 values, times and sample
    // records per channel and slot, 32 stations).

    // 4. The common library's objects are created on first use: the first text asks for them.
    // 5. References to the chart's objects.
    chart_ = lookupChartObjects(CBGraph1);

    // 6. Run buttons.
    placeRunButtons(s, host_);
    s.cmdStart.Click.connect([this] { run_.cmdStart_Click(); });
    s.cmdStop.Click.connect([this] { run_.cmdStop_Click(); });
    s.cmdClear.Click.connect([this] { run_.cmdClear_Click(); });

    // 7. Scale controls.
    setUpScaleControls(s, host_);

    // 8. Default channel colours.
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        state_.chSetting[ch].intChNo = static_cast<int16_t>(ch);
        state_.chSetting[ch].lngGraphColor = kDefaultChannelColor[ch];
    }

    // 9. Setting sheets and item tables.
    sheets_.build();

    // 10. The chart's appearance.
    configureChart(chart_, state_.chSetting, std::nullopt);

    // 11. Scroll bar, scale option "All", cursor controls; cursors A at 0 and B at 1, off.
    setUpCursorControls(s, host_);
    state_.graphInfo.udtCursorState = CURSORSTATE{};

    // 12. History cleared; no channel has a station.
    for (auto& slot : state_.history.udtGraphResultInfo) {
        std::fill(slot.udtSample.begin(), slot.udtSample.end(), SampleRecord{});
    }
    for (int ch = 1; ch <= kChannelCount; ++ch)
        state_.chSetting[ch].lngTargetNo = kNoStation;

    // 13. Sheet tabs, channel sheet shown.
    buildSheetTabs(s, host_);

    // 14, 15. Operation panel, showing the "Scale" panel.
    buildOperationPanel(s, host_, state_.version.lngHistoryMax);
    history_.connect();
    s.tbsGraphOp.Click.connect([this] { showSelectedPanel(surface_); });
    s.tabSpread.Click.connect([this] { showSelectedSheets(surface_); });
    s.tbsGraphOp.MouseMove.connect([this](int16_t button, int16_t, float x, float y) {
        host_.common().TabMouseMove(
            "tbsGraphOp", button, static_cast<float>(x / static_cast<float>(env_.twipsPerPixelX)),
            static_cast<float>(y / static_cast<float>(env_.twipsPerPixelY)));
    });
    s.tabSpread.MouseMove.connect([this](int16_t button, int16_t, float x, float y) {
        host_.common().TabMouseMove(
            "tabSpread", button, static_cast<float>(x / static_cast<float>(env_.twipsPerPixelX)),
            static_cast<float>(y / static_cast<float>(env_.twipsPerPixelY)));
    });
    s.tbsGraphOp.select(1);
    showSelectedPanel(s);
    display_.connect();

    // 16. Axis labels in the common library's font.
    if (const std::optional<Font> font = host_.common().GetFont()) setAxisFont(chart_, *font);

    // 17. Names of the built-in two-channel items.
    state_.twoChannelItemNames = {host_.text(msg::kPositionCommand),
                                  host_.text(msg::kCurrentPosition), host_.text(msg::kDroopPulse)};

    // The built-in settings-file record: 19200 baud, everything else 0.
    INIFILE_ITEM builtIn;
    builtIn.lngData[1] = 19200;
    SetIniFileItem(builtIn);

    state_.runState = 0;
    run_.applyRunState();
    // The surface is laid out; the chart keeps its start extent until the host's first resize.
    resizeSurface(surface_, width_, height_, env_);
}

void ztGraphControl::Show() {
    if (terminated()) return;
    display_.redrawVertScales();
}

void ztGraphControl::Resize() {
    if (terminated()) return;
    width_ = clampedSize(width_);
    height_ = clampedSize(height_);
    resizeSurface(surface_, width_, height_, env_);
    display_.layoutChart(width_, height_);
}

void ztGraphControl::SetGraphColor(int32_t lngMode) {
    if (terminated()) return;
    display_.setGraphColor(lngMode);
}

// Terminate saves nothing and raises nothing. It ends the control's working life at once: the
// host's sink is disconnected, every control on the surface is disabled so that no person's
// action reaches a handler, and the chart references are released. The terminated flag lives
// in the shared state, so the run control, the sheets and every hook see it too: dispatch
// refuses every member, the public members do nothing (or answer what they hold), and the
// handlers and hooks return before they touch the chart.
void ztGraphControl::Terminate() {
    if (terminated()) return;
    state_.terminated = true;
    ReqCommand.disconnect();
    for (ui::ControlBase* control : surface_.registry.controls())
        control->Enabled = false;
    chart_ = ChartRefs{};
}

// The file name goes to the private-profile functions in the host's code page, like every
// other text.
bool ztGraphControl::GetInifileString(const std::string& IniFile, const std::string& iniSection,
                                      const std::string& iniEntry, std::string& iniBuff) {
    if (terminated()) return false;
    const int codePage = env_.locale.codePage;
    return zt::GetInifileString(text::toAnsi(IniFile, codePage), iniSection, iniEntry, iniBuff,
                                codePage);
}

bool ztGraphControl::SetInifileString(const std::string& IniFile, const std::string& iniSection,
                                      const std::string& iniEntry, std::string& iniBuff) {
    if (terminated()) return false;
    const int codePage = env_.locale.codePage;
    return zt::SetInifileString(text::toAnsi(IniFile, codePage), iniSection, iniEntry, iniBuff,
                                codePage);
}

void ztGraphControl::SetMsgItem(std::vector<MSG_ITEM>& udtMsgItem) {
    if (terminated()) return;
    sheets_.SetMsgItem(udtMsgItem);
}

void ztGraphControl::SetIniFileItem(INIFILE_ITEM& udtIniFileItem) {
    if (terminated()) return;
    sheets_.SetIniFileItem(udtIniFileItem);
}

void ztGraphControl::SetMonitorItem(MONI_ITEM& udtMoniItem, int32_t lngCh) {
    if (terminated()) return;
    sheets_.SetMonitorItem(udtMoniItem, lngCh);
}

void ztGraphControl::SetParameter(int16_t, MODEL_INFO&, PARAMETER_INFO&) {}

PARAMETER_INFO ztGraphControl::GetParameter() {
    return {};
}

void ztGraphControl::ChgSelectNode(int16_t) {}

// The control never vetoes unloading: Cancel is left as it is.
void ztGraphControl::QueryUnLoadU(int16_t&, int16_t) {}

// The control uses the common-library objects it creates itself.
void ztGraphControl::setCommonObj(ztCommon*) {}

void ztGraphControl::HeightU(float value) {
    if (terminated()) return;
    height_ = clampedSize(value);
    Resize();
}

void ztGraphControl::WidthU(float value) {
    if (terminated()) return;
    width_ = clampedSize(value);
    Resize();
}

std::string ztGraphControl::CaptionU() {
    return host_.text(msg::kGraph);
}

void ztGraphControl::GetHelpContextId(int32_t& lngHelpID, int32_t& lngModel_Type,
                                      int32_t& lngCapa_region, int16_t& intOption,
                                      int32_t& lngSp_Model) {
    lngHelpID = state_.helpContextId;
    lngModel_Type = -1;
    lngCapa_region = -1;
    intOption = -1;
    lngSp_Model = -1;
}

std::string ztGraphControl::ImportFileFilterU() {
    return host_.text(msg::kImportFilter);
}

std::string ztGraphControl::ExportFileFilterU() {
    return host_.text(msg::kExportFilter);
}

void ztGraphControl::CtrlFlagU(int32_t) {}

void ztGraphControl::FontU(const Font&) {}

void ztGraphControl::setContainerInfo(CONT_INFO&) {}

void ztGraphControl::advise(GraphHostSink* sink) {
    if (sink == nullptr || terminated()) {
        ReqCommand.disconnect();
        return;
    }
    ReqCommand.connect([sink](int32_t command) { sink->ReqCommand(command); });
}

void ztGraphControl::SetSysInfo(int16_t intNode, SYS_INFO& udtSysInfo, PARAMETER_INFO&) {
    if (terminated()) return;
    state_.selectedNode = intNode;
    int32_t value = 0, count = 0;
    host_.common().FillStationTable(state_.stations, udtSysInfo, value, count);
    if (count < 1) return;
    const std::size_t n = std::min(udtSysInfo.udtStation.size(), state_.stations.size());
    for (std::size_t i = 0; i < n; ++i) {
        const STATION_RECORD& from = udtSysInfo.udtStation[i];
        STATION_RECORD& to = state_.stations[i];
        to.intStationNo = from.intStationNo;
        to.lngModelCode = from.lngModelCode;
        to.lngCapacity = from.lngCapacity;
        to.lngRegion = from.lngRegion;
        to.lngSpModel = from.lngSpModel;
    }
    // Station cells and rows; a channel whose station is no longer present loses it.
    sheets_.refreshStationLists();
    sheets_.showSettings(true);
    showSelectedSheets(surface_);
    // The displayed graph is discarded and the control returns to its ready state.
    clearDisplayedGraph(chart_, state_);
    callHook(run_.hooks().redrawVertScaleLabels);
    display_.showCursors(0, false);
    run_.changeRunState(DataDeleted);
}

void ztGraphControl::SetSysStatus(int16_t, SYS_INFO&, INV_STATUS&) {
    if (terminated()) return;
    history_.refreshToolTips();
}

void ztGraphControl::showComErrDlg(int32_t lngNode, int32_t lngErrCode) {
    if (terminated()) return;
    zt::showComErrDlg(host_, lngNode, lngErrCode);
}

}  // namespace zt
