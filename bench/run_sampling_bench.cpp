// Records per second through SetSamplingData for replies of 1 to 1,000 records, in a
// continuous run without and with an "Inside" trigger that fires once per sweep. Each reply is
// drawn and each finished sweep drawn whole and entered into the history, as on screen.
#include <benchmark/benchmark.h>

#include <vector>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace {

using namespace zt;

void samplingReplies(benchmark::State& st, bool triggered) {
    sim::SimCommonLibrary lib;
    ztGraphControl control(lib);
    SYS_INFO sys = lib.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    control.SetSysInfo(1, sys, parameter);
    control.ChgLineStatus(1);
    GraphState& s = control.state();
    control.surface().sprChannel.chooseListItem(1, 2, "01");
    control.surface().sprChannel.chooseListItem(1, 3, "*Output frequency");
    s.sampSetting.intSamplingMode = 1;
    // Sweeps of a full graph: 10,000 records of 100 ms.
    s.sampSetting.dblSamplingTime = 1000000;
    if (triggered) {
        s.sampSetting.intTriggerType = 1;
        s.sampSetting.intTriggerTarget = 1;
        s.sampSetting.intTriggerBoot = 0;
        s.sampSetting.dblTriggerLevel = 50;
        s.sampSetting.sngTriggerPosition = 50;
    }
    control.surface().cmdStart.click();
    if (control.runState() != 6) {
        st.SkipWithError("run did not start");
        return;
    }

    const auto perReply = static_cast<std::size_t>(st.range(0));
    // A square wave on channel 1: 30 records low, 30 high.
    std::vector<SampleRecord> stream(6000);
    for (std::size_t i = 0; i < stream.size(); ++i) {
        stream[i].lngDiffTime = 1000;
        stream[i].lngAnalogData[0] = (i / 30) % 2 == 0 ? 0 : 100;
    }
    GRAPH_RESULT_INFO reply;
    std::size_t pos = 0;
    for (auto _ : st) {
        if (pos + perReply > stream.size()) pos = 0;
        reply.udtSample.assign(stream.begin() + static_cast<std::ptrdiff_t>(pos),
                               stream.begin() + static_cast<std::ptrdiff_t>(pos + perReply));
        pos += perReply;
        control.SetSamplingData(reply, 0);
    }
    st.SetItemsProcessed(st.iterations() * static_cast<int64_t>(perReply));
    st.counters["sweeps"] = static_cast<double>(s.history.lngGraphCount);
    if (control.runState() != 6) st.SkipWithError("run ended");
}

void BM_SamplingReplies(benchmark::State& st) {
    samplingReplies(st, false);
}
void BM_SamplingRepliesTriggered(benchmark::State& st) {
    samplingReplies(st, true);
}

BENCHMARK(BM_SamplingReplies)->Arg(1)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(BM_SamplingRepliesTriggered)->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

}  // namespace
