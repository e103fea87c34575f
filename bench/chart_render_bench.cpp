// Drawing a full chart (8 analog and 8 on/off series of 10,000 points plus overlays, 1000 pixels
// wide) from scratch, to PNG, and again at screen speed after a reply or a cursor move; and
// switching a series' labels off.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "platform/chart/chart_root.h"
#include "render/chart_renderer.h"
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

// The chart's series, each holding the first `points` of its samples.
void fill(zt::chart::ChartRoot& root, int points = kPoints) {
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
                points, std::move(v), times());
            root.PulseDataCollection[d::kPulseSeriesNames[static_cast<size_t>(g * 4 + c)]]
                .setPoints(points, std::move(bits), times());
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

// The whole chart drawn again by a renderer that keeps its buffers, every series changed.
void BM_RedrawFullChart(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    zt::render::RenderOptions options;
    options.width = 1000;
    zt::render::ChartRenderer renderer(root, options);
    renderer.draw();
    auto& series = root.PlotDataCollection[d::kPlotSeriesNames[0]];
    for (auto _ : state) {
        for (auto* collection : {&root.PlotDataCollection, &root.PulseDataCollection}) {
            for (int i = 0; i < collection->count(); ++i) {
                auto& s = collection->at(i);
                s.setPointRange(0, s.pointCount(), s.values(), s.times());
            }
        }
        benchmark::DoNotOptimize(renderer.draw().pixels.data());
    }
    benchmark::DoNotOptimize(series.pointCount());
}
BENCHMARK(BM_RedrawFullChart)->Unit(benchmark::kMillisecond);

// A reply during a capture: 10 more records on every series of a chart holding 9,990, drawn.
void BM_ReplyOfTenRecordsDrawn(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    std::vector<std::pair<zt::chart::Series*, std::vector<double>>> full;
    for (auto* collection : {&root.PlotDataCollection, &root.PulseDataCollection}) {
        for (int i = 0; i < collection->count(); ++i) {
            auto& s = collection->at(i);
            full.emplace_back(&s, std::vector<double>(s.values(), s.values() + s.pointCount()));
        }
    }
    const std::vector<double> t = times();
    zt::render::RenderOptions options;
    options.width = 1000;
    zt::render::ChartRenderer renderer(root, options);
    for (auto _ : state) {
        state.PauseTiming();
        for (auto& [s, v] : full)
            s->setPointCount(kPoints - 10);
        renderer.draw();
        state.ResumeTiming();
        for (auto& [s, v] : full)
            s->setPointRange(kPoints - 10, kPoints, v.data(), t.data());
        benchmark::DoNotOptimize(renderer.draw().pixels.data());
    }
}
BENCHMARK(BM_ReplyOfTenRecordsDrawn)->Unit(benchmark::kMicrosecond);

// A cursor dragged over the full chart: moved by a few pixels and drawn.
void BM_CursorMoveDrawn(benchmark::State& state) {
    zt::chart::ChartRoot root;
    fill(root);
    auto& cursor = root.Cursors[d::kCursorA];
    cursor.Visible = true;
    zt::render::RenderOptions options;
    options.width = 1000;
    zt::render::ChartRenderer renderer(root, options);
    renderer.draw();
    double at = 100;
    for (auto _ : state) {
        at = at > 900 ? 100 : at + 3.7;
        cursor.setPosition(at);
        benchmark::DoNotOptimize(renderer.draw().pixels.data());
    }
}
BENCHMARK(BM_CursorMoveDrawn)->Unit(benchmark::kMicrosecond);

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
