#include <cairo.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
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

std::filesystem::path tempDir() {
    const char* env = std::getenv("ZT_TEST_TMP");
    std::filesystem::path dir = env && *env ? env : std::filesystem::temp_directory_path();
    dir /= "chart_render";
    std::filesystem::create_directories(dir);
    return dir;
}

// A PNG read back through cairo, pixel by pixel.
class Png {
  public:
    explicit Png(const std::string& path) : s_(cairo_image_surface_create_from_png(path.c_str())) {}
    ~Png() { cairo_surface_destroy(s_); }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;
    bool ok() const { return cairo_surface_status(s_) == CAIRO_STATUS_SUCCESS; }
    int width() const { return cairo_image_surface_get_width(s_); }
    int height() const { return cairo_image_surface_get_height(s_); }
    // 0xRRGGBB of an opaque pixel.
    uint32_t rgb(int x, int y) const {
        const auto* row = cairo_image_surface_get_data(s_) + y * cairo_image_surface_get_stride(s_);
        return reinterpret_cast<const uint32_t*>(row)[x] & 0xFFFFFF;
    }

  private:
    cairo_surface_t* s_;
};

// 0x00BBGGRR as the 0xRRGGBB a picture holds.
uint32_t rgbOf(chart::Color c) {
    const auto u = static_cast<uint32_t>(c);
    return ((u & 0xFF) << 16) | (u & 0xFF00) | ((u >> 16) & 0xFF);
}

std::vector<double> ramp(int n, double step) {
    std::vector<double> t(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
        t[static_cast<size_t>(i)] = i * step;
    return t;
}

// A chart showing 0 … 1000 ms, with channel 1 scaled -50 … 50 and nothing else drawn.
struct Fixture {
    ChartRoot root;
    Fixture() {
        root.Axes["XAxis"].Minimum = 0;
        root.Axes["XAxis"].Maximum = 1000;
        root.Grids["Grid"].Visible = false;
        chart::Axis& y1 = root.Axes["Y1Axis"];
        y1.Minimum = -50;
        y1.Maximum = 50;
    }
    std::string write(const std::string& name, RenderOptions options = {}) {
        const std::string path = (tempDir() / name).string();
        const RenderStatus status = renderChart(root, options, path, Format::Png);
        EXPECT_TRUE(status.ok) << status.error;
        return path;
    }
};

TEST(ChartRender, TraceCrossesEveryColumnAtItsRowAndTheCursorIsAColumnOnTheRootColour) {
    Fixture f;
    f.root.BackColor = 0x203040;
    // Value 25 of -50 … 50 lies a quarter down the strip 20 … 450.
    f.root.PlotDataCollection["PlotData1"].setPoints(101, std::vector<double>(101, 25.0),
                                                     ramp(101, 10));
    f.root.PlotDataCollection["DummyData"].setPoints(101, std::vector<int16_t>(101, -125),
                                                     ramp(101, 10));
    chart::Cursor& a = f.root.Cursors["VertCursorA"];
    a.Visible = true;
    a.setPosition(504);  // snaps to 500 ms: the middle of 320 … 1000
    Png png(f.write("trace.png"));
    ASSERT_TRUE(png.ok());
    EXPECT_EQ(png.width(), 1020);
    EXPECT_EQ(png.height(), 480);
    const int row = static_cast<int>(std::floor(450 - 0.75 * 430));
    for (int x : {330, 500, 800, 990}) {
        EXPECT_EQ(png.rgb(x, row), rgbOf(d::kChannelColors[0])) << "column " << x;
        EXPECT_EQ(png.rgb(x, row - 3), 0x403020u);
        EXPECT_EQ(png.rgb(x, row + 3), 0x403020u);
    }
    EXPECT_EQ(png.rgb(300, row), 0x403020u);  // nothing is drawn in the scale margin
    for (int y : {21, 300, 448})
        EXPECT_EQ(png.rgb(660, y), 0xE0E0E0u) << "row " << y;
    EXPECT_EQ(png.rgb(659, 100), 0x403020u);
    EXPECT_EQ(png.rgb(661, 100), 0x403020u);
}

TEST(ChartRender, OneSampleSpikeSurvivesTenThousandPointsOnEightHundredPixels) {
    Fixture f;
    std::vector<double> values(10000, 0.0);
    values[6543] = 45;  // near the top of -50 … 50
    Series& s = f.root.PlotDataCollection["PlotData1"];
    s.setPoints(10000, std::move(values), ramp(10000, 0.1));
    RenderOptions options;
    options.width = 800;
    options.height = 400;
    Png png(f.write("spike.png", options));
    ASSERT_TRUE(png.ok());
    ASSERT_EQ(png.width(), 800);
    // Time 654.3 ms of 0 … 1000 over 320 … 1000 chart pixels, 800/1020 device pixels each.
    const double scale = 800.0 / 1020.0;
    const int column = static_cast<int>((320 + 0.6543 * 680) * scale);
    const int spikeRow = static_cast<int>((450 - 0.95 * 430) * 400.0 / 480.0);
    bool lit = false;
    for (int x = column - 1; x <= column + 1; ++x) {
        for (int y = spikeRow - 1; y <= spikeRow + 2; ++y)
            lit = lit || png.rgb(x, y) != 0;
    }
    EXPECT_TRUE(lit);
    // Elsewhere at that height nothing is drawn.
    EXPECT_EQ(png.rgb(column - 40, spikeRow + 1), 0u);
}

TEST(ChartRender, BadPathsAndSizesAreReportedNotThrown) {
    ChartRoot root;
    for (Format format : {Format::Png, Format::Svg, Format::Pdf}) {
        const RenderStatus status = renderChart(root, {}, "/no/such/dir/chart.out", format);
        EXPECT_FALSE(status.ok);
        EXPECT_FALSE(status.error.empty());
    }
    EXPECT_FALSE(renderChart(root, {}, "", Format::Png).ok);
    root.Width = -500;
    EXPECT_FALSE(renderChart(root, {}, (tempDir() / "none.png").string(), Format::Png).ok);
    EXPECT_EQ(renderChartImage(root, {}).width, 0);
    root.Width = 1000;
    RenderOptions huge;
    huge.width = 1 << 30;
    EXPECT_FALSE(renderChart(root, huge, (tempDir() / "huge.png").string(), Format::Png).ok);
}

TEST(ChartRender, NonsenseSettingsStillGiveAPicture) {
    Fixture f;
    ChartRoot& root = f.root;
    const double nan = std::nan("");
    const double inf = HUGE_VAL;
    root.Grids["Grid"].Visible = true;
    root.Grids["Grid"].Divisions = -3;
    root.Grids["Grid"].Left = INT32_MIN;
    root.Axes["XAxis"].TickCount = 1 << 30;
    root.Axes["XAxis"].Maximum = 1e300;
    root.Axes["XAxis"].LabelFont.size = nan;
    root.Axes["Y1Axis"].Maximum = inf;
    root.Axes["Y2Axis"].Visible = true;
    root.Axes["Y2Axis"].Minimum = nan;
    root.Axes["Y3Axis"].Visible = true;
    root.Axes["Y3Axis"].Left = INT32_MAX;
    Series& s = root.PlotDataCollection["PlotData2"];
    s.setPoints(4, std::vector<double>{nan, inf, -inf, 1e308}, std::vector<double>{0, nan, 5, -1});
    s.Label.Text = "\x93\xFF\xC3";  // not UTF-8
    s.setLabelShown(3, true);
    Series& p = root.PulseDataCollection["PulseData1"];
    p.LinePen.width = -7;
    p.setPoints(3, std::vector<double>{0, 1, 0}, std::vector<double>{0, 1e299, 2e299});
    chart::Label& label = root.Labels["TriggerStateLabel"];
    label.Visible = true;
    label.FontSize = -inf;
    root.Areas["PulseArea1"].Top = 5000;
    root.Lines["HorzCursorA"].Visible = true;
    root.Lines["HorzCursorA"].X2 = INT32_MAX;
    EXPECT_TRUE(Png(f.write("nonsense.png")).ok());
}

// Every channel, overlay, label, cursor and the trigger mark, in all three formats.
TEST(ChartRender, FullChartWritesAllFormats) {
    Fixture f;
    ChartRoot& root = f.root;
    root.Grids["Grid"].Visible = true;
    const int n = 10000;
    const auto times = ramp(n, 0.1);
    for (int c = 0; c < 8; ++c) {
        chart::Axis& axis = root.Axes[d::kChannelAxes[c]];
        axis.Visible = true;
        axis.Minimum = -100;
        axis.Maximum = 100;
        std::vector<double> v(n);
        for (int i = 0; i < n; ++i)
            v[i] = c < 4 ? 60 * std::sin(i * 0.002 * (c + 1)) : (i / (300 * c)) % 2;
        Series& s = c < 4 ? root.PlotDataCollection[d::kPlotSeriesNames[c]]
                          : root.PulseDataCollection[d::kPulseSeriesNames[c - 4]];
        if (c < 4) root.PlotDataCollection[d::kPlotSeriesNames[c + 4]].setPoints(n, v, times);
        s.setPoints(n, std::move(v), times);
        s.Label.Text = "CH" + std::to_string(c + 1);
        s.setLabelShown(1000 * (c + 1), true);
    }
    root.PlotDataCollection["DummyData"].setPoints(n, std::vector<int16_t>(n, -125), times);
    for (auto [name, index] :
         {std::pair{"TriggerCursor", 2500}, {"VertCursorA", 1000}, {"VertCursorB", 9000}}) {
        root.Cursors[name].Visible = true;
        root.Cursors[name].setPointIndex(index);
    }
    EXPECT_EQ(Png(f.write("full.png")).rgb(2, 300), rgbOf(d::kChannelColors[0]));  // scale back
    for (auto [format, name] : {std::pair{Format::Svg, "full.svg"}, {Format::Pdf, "full.pdf"}}) {
        const auto path = tempDir() / name;
        EXPECT_TRUE(renderChart(root, {}, path.string(), format).ok);
        EXPECT_GT(std::filesystem::file_size(path), 1000u);
    }
    EXPECT_EQ(renderChartImage(root, {}).at(2, 300) & 0xFFFFFF, rgbOf(d::kChannelColors[0]));
}

}  // namespace
}  // namespace zt::render
