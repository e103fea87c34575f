// A time cursor dragged across a graph of four analog channels: the cost of one mouse-move
// (the cursor and its handle follow the pointer; only the snap to a data point looks at the
// points) and of the mouse-up, which clamps the cursor and refreshes the readouts of every
// channel over the span between the cursors. Captures of 1,000 and 10,000 samples (the series
// always hold 10,000 points; the readouts span the samples captured).
#include <benchmark/benchmark.h>

#include <vector>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

namespace {

// The chart reports the mouse in twips (15 per pixel here).
constexpr float kTwipsPerPixel = 15;

using namespace zt;

// A control holding a finished graph of `points` samples of 100 ms on channels 1 to 4, with
// the time cursors shown (A at the left edge, B at the right).
struct CapturedGraph {
    sim::SimCommonLibrary library;
    ztGraphControl control{library};
    sim::SimHost host{[this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
        return dispatch(control, id, kind, args);
    }};

    explicit CapturedGraph(int points) {
        control.advise(&host);
        host.recordsPerBlock = 1000;
        INIFILE_ITEM settings;
        settings.lngData[1] = 115200;
        control.SetIniFileItem(settings);
        SYS_INFO sys = library.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control.SetSysInfo(1, sys, parameter);
        control.ChgLineStatus(1);
        ui::SpreadSheet& ch = control.surface().sprChannel;
        const char* items[] = {"*Output frequency", "*Output current", "*Output voltage",
                               "DC link bus voltage"};
        for (int c = 1; c <= 4; ++c) {
            ch.chooseListItem(c, 2, "01");
            ch.chooseListItem(c, 3, items[c - 1]);
        }
        ui::SpreadSheet& samp = control.surface().sprSampling;
        samp.typeIntoCell(1, 3, "100");
        samp.pressKey(ui::kKeyEnter);
        samp.typeIntoCell(1, 4, std::to_string(points * 100));
        samp.pressKey(ui::kKeyEnter);
        control.surface().cmdStart.click();
        host.run();
        control.surface().chkCursor.click();
    }
    chart::ChartRoot& root() { return control.chartRoot(); }
    bool ready() const {
        return control.runState() == 2 && control.chartRefs().timeBase->pointCount() > 0 &&
               control.state().graphInfo.udtCursorState.intCursorState == 1;
    }
};

void BM_TimeCursorMouseMove(benchmark::State& st) {
    CapturedGraph g(static_cast<int>(st.range(0)));
    if (!g.ready()) {
        st.SkipWithError("no graph");
        return;
    }
    g.root().MouseDown.raise(1, 0, 320 * kTwipsPerPixel, 200 * kTwipsPerPixel);  // grabs cursor A
    float x = 320;
    for (auto _ : st) {
        x = x >= 990 ? 330 : x + 7;
        g.root().MouseMove.raise(1, 0, x * kTwipsPerPixel, 200 * kTwipsPerPixel);
    }
    st.counters["points"] = static_cast<double>(g.control.chartRefs().timeBase->pointCount());
}

void BM_CursorReadoutsAtMouseUp(benchmark::State& st) {
    CapturedGraph g(static_cast<int>(st.range(0)));
    if (!g.ready()) {
        st.SkipWithError("no graph");
        return;
    }
    // Each release of cursor B at the right edge refreshes the readouts of all four channels
    // over the whole graph.
    for (auto _ : st) {
        st.PauseTiming();
        g.root().MouseDown.raise(1, 0, 1000 * kTwipsPerPixel, 200 * kTwipsPerPixel);
        st.ResumeTiming();
        g.root().MouseUp.raise(1, 0, 1000 * kTwipsPerPixel, 200 * kTwipsPerPixel);
    }
    st.counters["points"] = static_cast<double>(g.control.chartRefs().timeBase->pointCount());
}

BENCHMARK(BM_TimeCursorMouseMove)->Arg(1000)->Arg(10000);
BENCHMARK(BM_CursorReadoutsAtMouseUp)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
