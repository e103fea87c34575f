// Drawing a full chart (8 channels of 10,000 points plus overlays) and switching a series'
// labels off.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "platform/chart/chart_root.h"
#include "render/render_chart.h"

namespace {

namespace d = zt::chart::design;
constexpr int kPoints = 10000;

std::vector<double> times() {
    std::vector<double> t(kPoints);
    for (int i = 0; i < kPoints; ++i)
        t[static_cast<size_t>(i)] = i * 0.1;
    return t;
}

void fill(zt::chart::ChartRoot& root) {
    root.Axes["XAxis"].Minimum = 0;
    root.Axes["XAxis"].Maximum = 1000;
    for (int c = 0; c < 4; ++c) {
        auto& axis = root.Axes[d::kChannelAxes[static_cast<size_t>(c)]];
        axis.Visible = true;
        axis.Minimum = -100;
        axis.Maximum = 100;
        root.Axes[d::kChannelAxes[static_cast<size_t>(c + 4)]].Visible = true;
        for (int g = 0; g < 2; ++g) {
            std::vector<double> v(kPoints), bits(kPoints);
            for (int i = 0; i < kPoints; ++i) {
                v[static_cast<size_t>(i)] =
                    80 * std::sin(i * 0.003 * (c + 1) + g) + 5 * std::sin(i * 1.7);
                bits[static_cast<size_t>(i)] = (i / (200 * (c + 1))) % 2;
            }
            root.PlotDataCollection[d::kPlotSeriesNames[static_cast<size_t>(g * 4 + c)]].setPoints(
                kPoints, std::move(v), times());
            root.PulseDataCollection[d::kPulseSeriesNames[static_cast<size_t>(g * 4 + c)]]
                .setPoints(kPoints, std::move(bits), times());
        }
    }
    root.PlotDataCollection["DummyData"].setPoints(kPoints, std::vector<int16_t>(kPoints, -125),
                                                   times());
}

void BM_RenderFullChartToMemory(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    zt::render::RenderOptions options;
    options.width = 1000;
    for (auto _ : state) {
        auto image = zt::render::renderChartImage(root, options);
        benchmark::DoNotOptimize(image.pixels.data());
    }
}
BENCHMARK(BM_RenderFullChartToMemory)->Unit(benchmark::kMillisecond);

void BM_RenderFullChartToPng(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    zt::render::RenderOptions options;
    options.width = 1000;
    for (auto _ : state) {
        auto status = zt::render::renderChart(root, options, "/dev/null", zt::render::Format::Png);
        benchmark::DoNotOptimize(status.ok);
    }
}
BENCHMARK(BM_RenderFullChartToPng)->Unit(benchmark::kMillisecond);

// Nine labels on, then every label off in one call.
void BM_LabelsAllOff(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    auto& s = root.PlotDataCollection["PlotData1"];
    for (auto _ : state) {
        for (int n = 1; n <= 9; ++n)
            s.setLabelShown(n * 1000, true);
        s.hideAllLabels();
    }
}
BENCHMARK(BM_LabelsAllOff);

// The same with one switch per point, 0 … 9999.
void BM_LabelsOffPointByPoint(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    auto& s = root.PlotDataCollection["PlotData1"];
    for (auto _ : state) {
        for (int n = 1; n <= 9; ++n)
            s.setLabelShown(n * 1000, true);
        for (int i = 0; i < kPoints; ++i)
            s.setLabelShown(i, false);
    }
}
BENCHMARK(BM_LabelsOffPointByPoint)->Unit(benchmark::kMicrosecond);

}  // namespace
