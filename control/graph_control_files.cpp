// The file members: the graph text file (export and import), the project data block (save
// and load) and printing.
#include <algorithm>

#include "control/graph_control.h"
#include "core/ini_file_access.h"
#include "graph/plot_graph.h"
#include "platform/text/code_page.h"
#include "platform/text/rounding.h"
#include "run/run_states.h"
#include "scale/run_scales.h"
#include "store/graph_text_export.h"
#include "store/graph_text_import.h"
#include "store/printing.h"
#include "store/project_block.h"
#include "store/state_reset.h"

namespace zt {

int16_t ztGraphControl::ExportFile(const std::string& strFileName) {
    if (terminated()) return -1;
    const int16_t rs = state_.runState;
    if (rs != OnlineReady && rs != OnlineGraph && rs != OfflineReady && rs != OfflineGraph)
        return 0;
    const int32_t header =
        host_.common().WriteGraphFileHeader(strFileName, "1.00", state_.selectedNode);
    const int codePage = env_.locale.codePage;
    const std::string dataHeader = text::toAnsi(host_.text(msg::kDataHeader), codePage);
    return exportGraphTextFile(state_, strFileName, header, dataHeader, env_.locale, codePage);
}

int16_t ztGraphControl::ImportFile(const std::string& strFileName, SYS_INFO&) {
    if (terminated()) return -1;
    const int16_t rs = state_.runState;
    if (rs < OnlineNoChannel || rs > OfflineGraph) return -1;
    if (state_.graphInfo.udtHistoryState.lngGraphTotal > 0) {
        const int32_t answer = host_.showMessage(host_.text(msg::kDataDeleted), kStyleConfirm);
        if (answer == kResultCancel) return 0;
        if (answer != kResultOk) return -1;
    }
    resetWholeState(state_);
    clearDisplayedGraph(chart_, state_);

    const std::string path = strFileName;
    const int codePage = env_.locale.codePage;
    state_.loadingGraphFile = true;
    GraphTextReadHooks hooks;
    hooks.channelsRead = [this] { sheets_.showSettings(); };
    const GraphTextKeys keys = readGraphTextKeys(
        state_, env_.locale, codePage,
        [&](const std::string& section, const std::string& key, std::string& value) {
            return zt::GetInifileString(path, section, key, value, codePage);
        },
        hooks);
    readSampleTables(state_, path);
    applyLoadedState(keys.scrollMax);
    state_.loadingGraphFile = false;

    run_.changeRunState(firstChannelInError() == 0 ? GraphLoaded : GraphReset);
    return 0;
}

int ztGraphControl::firstChannelInError() {
    const int16_t speed = state_.sampSetting.intSamplingSpeed;
    for (int c = 1; c <= kChannelCount; ++c) {
        const CHSETTING& ch = state_.chSetting[static_cast<std::size_t>(c)];
        const int32_t target = ch.lngTargetNo;
        const bool connected = target >= 0 && target < kStationCount &&
                               state_.stations[static_cast<std::size_t>(target)].present();
        const auto& list = channelItemList(state_.tableItem, c, speed);
        const bool offered = std::any_of(list.begin(), list.end(), [&](const ITEM_INFO& item) {
            return item.lngItemCode == ch.lngSamplingItem;
        });
        if ((!connected && target != kNoStation) || !offered) {
            host_.notify(msg::kImportChannelError);
            return c;
        }
    }
    return 0;
}

void ztGraphControl::applyLoadedState(int32_t scrollMax) {
    // Sheets show the loaded settings; the sampling sheet's interval row and the high-speed
    // label follow the loaded speed.
    sheets_.showSettings();

    // Scales: zero positions within the plotting limits, the scroll range of the loaded time
    // scale, the scale panel on the loaded channel.
    ui::HScrollBar& bar = surface_.hsbGraph;
    bar.setMin(0);
    bar.setMax(std::clamp(scrollMax, 0, 32767));
    bar.setValue(
        std::clamp<int32_t>(state_.graphInfo.udtHorzScale.lngHScrollPos, bar.Min(), bar.Max()));
    surface_.optScale[state_.graphInfo.intChNumber == 0 ? 1 : 0].setValue(true);

    // History selection, overlay box, labels and comment box.
    history_.applyLoadedState();

    // Cursor controls.
    const int16_t cursor = state_.graphInfo.udtCursorState.intCursorState;
    if (cursor == 0) {
        if (surface_.chkCursor.value() != ui::kUnchecked)
            surface_.chkCursor.setValue(ui::kUnchecked);
        for (auto& opt : surface_.optCursor)
            opt.Enabled = false;
    } else {
        if (surface_.chkCursor.value() != ui::kChecked) surface_.chkCursor.setValue(ui::kChecked);
        surface_.optCursor[cursor == 1 ? 0 : 1].setValue(true);
    }
    refreshDisplayAfterLoad();
}

void ztGraphControl::refreshDisplayAfterLoad() {
    // Scales and axes of the loaded display state, then the scale panel, the time window and
    // the cursors with their readouts redrawn from it.
    const PlotInputs in = plotInputs();
    for (int c = 1; c <= kChannelCount; ++c) {
        auto& zero = state_.graphInfo.udtVertScale[static_cast<std::size_t>(c)].intZeroPos;
        zero = std::clamp<int16_t>(zero, -32700, 32700);
    }
    applyVertScales(chart_, state_.graphInfo, in);
    applyTimeAxis(chart_, state_.graphInfo.udtHorzScale);
    display_.refreshScaleDisplay();
    display_.rebuildHorzScaleList();
    display_.configureScrollBar();
    display_.refreshCursors();
}

int16_t ztGraphControl::SaveKivFile(const std::string& strFileName, VERSION_INFO&) {
    if (terminated()) return -1;
    ztCommon& common = host_.common();
    const std::string block = common.GetProjectBlockName();
    const int32_t position = common.GetBlockWritePosition(strFileName, block);
    if (position == -1) return -1;
    return writeProjectBlock(state_, strFileName, position, env_.locale.codePage) ? 0 : -1;
}

int16_t ztGraphControl::LoadKivFile(const std::string& strFileName, VERSION_INFO&,
                                    PROGRAM_VERSION& udtProgramVersion) {
    if (terminated()) return -1;
    resetWholeState(state_);
    ztCommon& common = host_.common();
    const std::string block = common.GetProjectBlockName();
    const int32_t position = common.GetBlockReadPosition(strFileName, block);
    const bool wide3 = udtProgramVersion.lngMajor == 5 && udtProgramVersion.lngMinor == 20;
    const bool read = position != -1 &&
                      readProjectBlock(state_, strFileName, position, wide3, env_.locale.codePage);
    if (read) {
        state_.loadingGraphFile = true;
        clearDisplayedGraph(chart_, state_);
        const double span = state_.graphInfo.udtHorzScale.sngHorzScale;
        const int32_t scrollMax =
            span > 0 ? text::toInt32Saturated(state_.sampSetting.dblSamplingTime / span - 10) : 0;
        applyLoadedState(scrollMax);
        state_.loadingGraphFile = false;
    } else {
        resetWholeState(state_);
    }
    const int16_t rs = state_.runState;
    if (rs == OfflineNoChannel || rs == OfflineReady || rs == OfflineGraph)
        run_.changeRunState(ProjectLoaded);
    else
        run_.applySheetLocks();  // the loaded sheets keep this state's locks
    return read ? 0 : -1;
}

void ztGraphControl::PrintOut(PrinterObject* objPrinter) {
    if (terminated()) return;
    printOut(objPrinter);
}

}  // namespace zt
