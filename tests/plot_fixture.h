// A chart with the component's references and start-up appearance, and a state to draw from.
#pragma once

#include <memory>
#include <optional>

#include "core/chart_refs.h"
#include "core/graph_state.h"
#include "graph/chart_setup.h"
#include "graph/plot_graph.h"

namespace zt::testing {

struct PlotFixture {
    chart::ChartRoot root;
    ChartRefs refs = lookupChartObjects(root);
    std::unique_ptr<GraphState> state = std::make_unique<GraphState>();
    PlotInputs inputs;

    PlotFixture() { configureChart(refs, state->chSetting, std::nullopt); }

    std::vector<SampleRecord>& records(int slot = 0) {
        return state->history.udtGraphResultInfo[static_cast<size_t>(slot)].udtSample;
    }
    // Every record from `first` on gets the interval.
    void setIntervals(int32_t interval, size_t first = 1) {
        for (size_t i = first; i < records().size(); ++i)
            records()[i].lngDiffTime = interval;
    }
    void use(int channel, int32_t item) {
        inputs.inUse[static_cast<size_t>(channel)] = true;
        state->chSetting[static_cast<size_t>(channel)].lngSamplingItem = item;
    }
    double value(int channel, size_t i) const {
        return state->sampData[static_cast<size_t>(channel)].sngSamplingData[i];
    }
    double time(size_t i) const { return state->sampData[1].sngSamplingTimeByInv[i]; }
    void draw(int slot = 0, int kind = kDisplayedGraph) {
        drawGraph(refs, *state, inputs, slot, kind);
    }
};

}  // namespace zt::testing
