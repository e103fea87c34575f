// Drawing a full graph (8 channels x 10,000 records) through the component's plotting, with and
// without an overlay, and drawing plus rendering the picture.
#include <benchmark/benchmark.h>

#include <memory>
#include <optional>

#include "core/chart_refs.h"
#include "core/graph_state.h"
#include "graph/chart_setup.h"
#include "graph/plot_graph.h"
#include "render/render_chart.h"
#include "sim/drive_waveforms.h"

namespace {

using namespace zt;

struct FullGraph {
    chart::ChartRoot root;
    ChartRefs refs = lookupChartObjects(root);
    std::unique_ptr<GraphState> state = std::make_unique<GraphState>();
    PlotInputs inputs;

    FullGraph() {
        configureChart(refs, state->chSetting, std::nullopt);
        const int32_t items[9] = {0, 201, 202, 212, 207, 33, 35, 1, 36};
        sim::WaveformRequest request;
        for (size_t c = 1; c <= 8; ++c) {
            state->chSetting[c].lngSamplingItem = items[c];
            inputs.inUse[c] = true;
            request.channel[c].item = items[c];
            if (c <= 4) state->sampData[c].sngBaseValue = 4095;
        }
        for (int slot = 0; slot < 2; ++slot) {
            request.scenario = slot == 0 ? sim::DriveScenario::Typical : sim::DriveScenario::Fault;
            const auto records = sim::driveWaveforms(request);
            std::copy(
                records.begin(), records.end(),
                state->history.udtGraphResultInfo[static_cast<size_t>(slot)].udtSample.begin());
        }
        state->sampSetting.intTriggerType = 1;
        state->sampSetting.lngTriggerPoint = 500;
        state->graphInfo.udtHorzScale.sngHorzScale = 1000;
        refs.timeAxis->Maximum = 10000;
        for (size_t c = 1; c <= 8; ++c) {
            refs.vertAxis[c]->Visible = true;
            refs.vertAxis[c]->Minimum = c <= 4 ? -100 : 0;
            refs.vertAxis[c]->Maximum = c <= 4 ? 5000 : 1;
        }
    }
};

void BM_DrawFullGraph(benchmark::State& st) {
    FullGraph g;
    for (auto _ : st) {
        drawGraph(g.refs, *g.state, g.inputs, 0, kDisplayedGraph);
        benchmark::DoNotOptimize(g.state->sampData[1].sngSamplingData.data());
    }
}
BENCHMARK(BM_DrawFullGraph)->Unit(benchmark::kMicrosecond);

void BM_DrawFullGraphWithOverlay(benchmark::State& st) {
    FullGraph g;
    for (auto _ : st) {
        drawGraph(g.refs, *g.state, g.inputs, 0, kDisplayedGraph);
        drawGraph(g.refs, *g.state, g.inputs, 1, kOverlayGraph);
        benchmark::DoNotOptimize(g.state->sampData[1].sngSamplingData.data());
    }
}
BENCHMARK(BM_DrawFullGraphWithOverlay)->Unit(benchmark::kMicrosecond);

void BM_DrawAndRender1020x480(benchmark::State& st) {
    FullGraph g;
    render::RenderOptions options;
    options.width = 1020;
    options.height = 480;
    for (auto _ : st) {
        drawGraph(g.refs, *g.state, g.inputs, 0, kDisplayedGraph);
        drawGraph(g.refs, *g.state, g.inputs, 1, kOverlayGraph);
        auto image = render::renderChartImage(g.root, options);
        benchmark::DoNotOptimize(image.pixels.data());
    }
}
BENCHMARK(BM_DrawAndRender1020x480)->Unit(benchmark::kMillisecond);

void BM_PlaceChannelLabels(benchmark::State& st) {
    FullGraph g;
    drawGraph(g.refs, *g.state, g.inputs, 0, kDisplayedGraph);
    for (auto _ : st)
        placeChannelLabels(g.refs, *g.state, g.inputs, kDisplayedGraph);
}
BENCHMARK(BM_PlaceChannelLabels);

}  // namespace
