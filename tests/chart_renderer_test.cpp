#include "render/chart_renderer.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "platform/chart/chart_root.h"
#include "render/render_chart.h"

namespace zt::render {
namespace {

namespace d = chart::design;
using chart::ChartRoot;
using chart::Series;

std::vector<double> ramp(int n, double step) {
    std::vector<double> t(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
        t[static_cast<size_t>(i)] = i * step;
    return t;
}

// 0x00BBGGRR as the 0xRRGGBB a picture holds.
uint32_t rgbOf(chart::Color c) {
    const auto u = static_cast<uint32_t>(c);
    return ((u & 0xFF) << 16) | (u & 0xFF00) | ((u >> 16) & 0xFF);
}

// A chart showing 0 … 1000 ms on chart pixels 320 … 1000, channel 1 scaled -50 … 50 over rows
// 20 … 450, without grid.
struct Fixture {
    ChartRoot root;
    Fixture() {
        root.Axes["XAxis"].Minimum = 0;
        root.Axes["XAxis"].Maximum = 1000;
        root.Grids["Grid"].Visible = false;
        root.Axes["Y1Axis"].Minimum = -50;
        root.Axes["Y1Axis"].Maximum = 50;
    }
    uint32_t rgb(const Image& image, int x, int y) const { return image.at(x, y) & 0xFFFFFF; }
};

TEST(ChartRenderer, SingleSampleSpikeInTenThousandPointsReachesItsFullHeight) {
    Fixture f;
    std::vector<double> values(10000, 0.0);
    values[6543] = 45;
    f.root.PlotDataCollection["PlotData1"].setPoints(10000, std::move(values), ramp(10000, 0.1));
    const Image image = renderChartImage(f.root, {});
    const uint32_t trace = rgbOf(d::kChannelColors[0]);
    // 654.3 ms lies in column 320 + 0.6543 * 680 = 764.9; 45 on row 450 - 0.95 * 430 = 41.5
    // and the zero line on row 235.
    for (int y = 41; y <= 235; ++y)
        ASSERT_EQ(f.rgb(image, 764, y), trace) << "row " << y;
    EXPECT_EQ(f.rgb(image, 764, 40), 0u);
    for (int x : {762, 767})
        EXPECT_EQ(f.rgb(image, x, 100), 0u) << "column " << x;
    EXPECT_EQ(f.rgb(image, 700, 235), trace);
    EXPECT_EQ(f.rgb(image, 700, 234), 0u);
}

TEST(ChartRenderer, OnOffEdgesLandInTheColumnOfTheirSample) {
    Fixture f;
    const chart::Area& band = f.root.Areas[d::kChannelAreas[4]];
    f.root.Axes[d::kChannelAxes[4]].Visible = true;
    std::vector<double> bits(10000, 0.0);
    // On from 300.1 ms (column 320 + 0.3001 * 680 = 524.07) to 700.3 ms (column 796.2).
    for (int i = 3001; i < 7003; ++i)
        bits[static_cast<size_t>(i)] = 1;
    f.root.PulseDataCollection["PulseData1"].setPoints(10000, std::move(bits), ramp(10000, 0.1));
    const Image image = renderChartImage(f.root, {});
    const uint32_t trace = rgbOf(d::kChannelColors[4]);
    const int high = band.Top;
    const int low = band.Bottom - 1;
    for (int y = high; y <= low; ++y) {
        EXPECT_EQ(f.rgb(image, 524, y), trace) << "rising edge, row " << y;
        EXPECT_EQ(f.rgb(image, 796, y), trace) << "falling edge, row " << y;
    }
    for (int x : {400, 523, 797, 990}) {
        EXPECT_EQ(f.rgb(image, x, low), trace) << "off, column " << x;
        EXPECT_NE(f.rgb(image, x, high), trace) << "off, column " << x;
    }
    for (int x : {525, 600, 795}) {
        EXPECT_EQ(f.rgb(image, x, high), trace) << "on, column " << x;
        EXPECT_NE(f.rgb(image, x, low), trace) << "on, column " << x;
    }
}

// A chart with dense and sparse analog traces, on/off trains and a cursor, drawn again by one
// renderer after each change, must look as a picture drawn afresh.
class RendererRedraw : public ::testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        root.Axes["XAxis"].Minimum = 0;
        root.Axes["XAxis"].Maximum = 1000;
        for (int c = 0; c < 4; ++c) {
            root.Axes[d::kChannelAxes[static_cast<size_t>(c)]].Visible = true;
            root.Axes[d::kChannelAxes[static_cast<size_t>(c)]].Minimum = -100;
            root.Axes[d::kChannelAxes[static_cast<size_t>(c)]].Maximum = 100;
            root.Axes[d::kChannelAxes[static_cast<size_t>(c + 4)]].Visible = true;
        }
        for (int i = 0; i < kPoints; ++i) {
            times.push_back(i * 0.1);
            wave.push_back(80 * std::sin(i * 0.004) + 6 * std::sin(i * 1.3));
            bits.push_back((i / 450) % 2);
            // Ten times slower: a sparse trace drawn as an antialiased line.
            slowTimes.push_back(i * 1.0);
            slowWave.push_back(60 * std::sin(i * 0.05));
        }
        options.width = GetParam();
        root.Cursors[d::kCursorA].Visible = true;
        root.Cursors[d::kCursorA].setPosition(250);
        renderer = std::make_unique<ChartRenderer>(root, options);
    }

    // Adds records first … last - 1 to the live series, as a reply during a capture does.
    void reply(int first, int last) {
        root.PlotDataCollection["PlotData1"].setPointRange(first, last, wave.data(), times.data());
        root.PulseDataCollection["PulseData1"].setPointRange(first, last, bits.data(),
                                                             times.data());
        root.PlotDataCollection["PlotData2"].setPointRange(first, last, slowWave.data(),
                                                           slowTimes.data());
    }

    // Antialiased lines may differ by a level or two where a redraw cut them off.
    static bool near(uint32_t a, uint32_t b) {
        for (int shift = 0; shift < 32; shift += 8) {
            const int da = static_cast<int>((a >> shift) & 0xFF);
            const int db = static_cast<int>((b >> shift) & 0xFF);
            if (std::abs(da - db) > 2) return false;
        }
        return true;
    }

    void expectSameAsFresh(const std::string& after) {
        const Image& kept = renderer->draw();
        const Image fresh = renderChartImage(root, options);
        ASSERT_EQ(kept.width, fresh.width);
        ASSERT_EQ(kept.height, fresh.height);
        long differing = 0;
        size_t first = 0;
        for (size_t i = 0; i < fresh.pixels.size(); ++i) {
            if (kept.pixels[i] != fresh.pixels[i] && !near(kept.pixels[i], fresh.pixels[i])) {
                if (differing++ == 0) first = i;
            }
        }
        const int firstX = static_cast<int>(first % static_cast<size_t>(fresh.width));
        const int firstY = static_cast<int>(first / static_cast<size_t>(fresh.width));
        EXPECT_EQ(differing, 0) << "after " << after << ", first at " << firstX << "," << firstY
                                << std::hex << " kept " << kept.at(firstX, firstY) << " fresh "
                                << fresh.at(firstX, firstY);
    }

    static constexpr int kPoints = 10000;
    ChartRoot root;
    RenderOptions options;
    std::unique_ptr<ChartRenderer> renderer;
    std::vector<double> times, wave, bits, slowTimes, slowWave;
};

TEST_P(RendererRedraw, EveryChangeLooksAsAFreshPicture) {
    expectSameAsFresh("the first draw");
    int count = 0;
    for (int size : {1, 10, 10, 37, 500, 10, 2000, 10, 10, 3000, 4412}) {
        const int last = std::min(count + size, kPoints);
        reply(count, last);
        count = last;
        expectSameAsFresh("a reply up to " + std::to_string(count));
    }
    EXPECT_EQ(count, kPoints);

    chart::Cursor& cursor = root.Cursors[d::kCursorA];
    for (double at : {251.0, 600.0, 999.0}) {
        cursor.setPosition(at);
        expectSameAsFresh("a cursor move");
    }
    Series& plot = root.PlotDataCollection["PlotData1"];
    plot.LinePen.color = 0x3366FF;
    expectSameAsFresh("a new colour");
    plot.LinePen.width = 3;
    root.PlotDataCollection["PlotData2"].LinePen.width = 2;
    expectSameAsFresh("wider pens");
    root.Axes["Y1Axis"].Maximum = 60;
    expectSameAsFresh("a new value range");
    plot.setLabelShown(5000, true);
    plot.Label.Text = "CH1";
    expectSameAsFresh("a label");
    root.PulseDataCollection["PulseData1"].Visible = false;
    expectSameAsFresh("a hidden series");
    root.PulseDataCollection["PulseData1"].Visible = true;
    plot.setPointCount(4321);
    expectSameAsFresh("points dropped");
    std::vector<double> flat(kPoints, 20.0);
    plot.setPoints(kPoints, flat, times);
    expectSameAsFresh("points replaced");
    plot.setPointRange(100, 200, wave.data(), times.data());
    expectSameAsFresh("points rewritten");
    root.Axes["XAxis"].Minimum = 500;
    root.Axes["XAxis"].Maximum = 700;
    expectSameAsFresh("the time window scrolled");
    // Times out of order: binned, not joined.
    std::vector<double> shuffled = times;
    std::swap(shuffled[10], shuffled[9000]);
    plot.setPoints(kPoints, wave, shuffled);
    expectSameAsFresh("unsorted times");
    root.BackColor = 0x202020;
    expectSameAsFresh("a new background");
    // A time axis far wider than any picture: drawn as paths, still redrawn on new points.
    root.Axes["XAxis"].Length = 70000;
    root.PulseDataCollection["PulseData1"].Visible = false;
    root.PlotDataCollection["PlotData2"].Visible = false;
    plot.setPoints(500, wave, times);
    expectSameAsFresh("a very wide time axis");
    plot.setPointRange(500, 600, slowWave.data(), times.data());
    expectSameAsFresh("points added on a very wide time axis");
}

TEST(ChartRenderer, SeriesTellsAddedPointsFromRewrittenOnes) {
    ChartRoot root;
    Series& s = root.PlotDataCollection["PlotData1"];
    const std::vector<double> v = ramp(100, 1.0);
    struct Step {
        std::function<void()> change;
        bool rewrite;
    };
    const std::vector<Step> steps = {
        {[&] { s.setPointRange(0, 10, v.data(), v.data()); }, false},
        {[&] { s.setPointRange(10, 30, v.data(), v.data()); }, false},
        {[&] { s.setPointRange(20, 40, v.data(), v.data()); }, true},
        {[&] { s.setPointCount(35); }, true},
        {[&] { s.setPointCount(35); }, false},  // no change at all
        {[&] { s.setPoints(50, v, v); }, true},
        {[&] { s.setPointRange(50, 60, v.data(), v.data()); }, false},
    };
    for (size_t i = 0; i < steps.size(); ++i) {
        const uint64_t before = s.revision();
        steps[i].change();
        const bool changed = i != 4;
        EXPECT_EQ(s.revision() > before, changed) << "step " << i;
        EXPECT_EQ(s.rewriteRevision() > before, steps[i].rewrite) << "step " << i;
    }
}

TEST(ChartRenderer, PngReadsBackAsDrawn) {
    Fixture f;
    f.root.PlotDataCollection["PlotData1"].setPoints(5000, std::vector<double>(5000, 12.5),
                                                     ramp(5000, 0.2));
    RenderOptions options;
    options.width = 777;
    options.height = 333;
    const Image image = renderChartImage(f.root, options);
    const char* env = std::getenv("ZT_TEST_TMP");
    const std::filesystem::path dir = env && *env ? env : std::filesystem::temp_directory_path();
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "renderer_roundtrip.png").string();
    ASSERT_TRUE(renderChart(f.root, options, path, Format::Png).ok);
    cairo_surface_t* png = cairo_image_surface_create_from_png(path.c_str());
    ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
    ASSERT_EQ(cairo_image_surface_get_width(png), 777);
    ASSERT_EQ(cairo_image_surface_get_height(png), 333);
    const unsigned char* data = cairo_image_surface_get_data(png);
    const int stride = cairo_image_surface_get_stride(png);
    long differing = 0;
    for (int y = 0; y < 333; ++y) {
        const auto* row = reinterpret_cast<const uint32_t*>(data + y * stride);
        for (int x = 0; x < 777; ++x)
            differing += (row[x] & 0xFFFFFF) != (image.at(x, y) & 0xFFFFFF);
    }
    cairo_surface_destroy(png);
    EXPECT_EQ(differing, 0);
}

INSTANTIATE_TEST_SUITE_P(Widths, RendererRedraw, ::testing::Values(0, 1000, 1537));

}  // namespace
}  // namespace zt::render
