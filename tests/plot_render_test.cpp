// A drawn graph as a picture: pixels read back from the PNG at known places.
#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "render/render_chart.h"
#include "tests/plot_fixture.h"

namespace zt {
namespace {

using testing::PlotFixture;

uint32_t pixel(cairo_surface_t* s, int x, int y) {
    const auto* row = cairo_image_surface_get_data(s) + y * cairo_image_surface_get_stride(s);
    return reinterpret_cast<const uint32_t*>(row)[x] & 0xFFFFFF;
}

TEST(PlotPicture, ShowsBackgroundTraceAndCursor) {
    PlotFixture f;
    f.use(1, 202);
    f.state->sampData[1].sngBaseValue = 4095;  // one unit per count
    f.setIntervals(10);                        // 1 ms per sample
    for (auto& r : f.records())
        r.lngAnalogData[0] = 25;
    f.refs.timeAxis->Minimum = 0;
    f.refs.timeAxis->Maximum = 1000;
    f.refs.vertAxis[1]->Visible = true;
    f.refs.vertAxis[1]->Minimum = -50;
    f.refs.vertAxis[1]->Maximum = 50;
    f.draw();
    f.refs.cursorA->setPosition(700);
    f.refs.cursorA->Visible = true;

    const char* env = std::getenv("ZT_TEST_TMP");
    std::filesystem::path dir = env && *env ? env : std::filesystem::temp_directory_path();
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "plot_picture.png").string();
    ASSERT_TRUE(render::renderChart(f.root, {}, path, render::Format::Png).ok);

    cairo_surface_t* png = cairo_image_surface_create_from_png(path.c_str());
    ASSERT_EQ(cairo_surface_status(png), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_width(png), f.root.Width + 20);

    // Background between grid lines.
    EXPECT_EQ(pixel(png, 900, 390), 0x000000u);
    // Channel 1 (cyan) at 25 of -50 … 50: three quarters up its area.
    const chart::Area& area = *f.refs.area[1];
    const int traceY = area.Bottom - (area.Bottom - area.Top) * 3 / 4;
    bool crossed = false;
    for (int y = traceY - 2; y <= traceY + 2; ++y)
        crossed = crossed || pixel(png, 490, y) == 0x00FFFFu;
    EXPECT_TRUE(crossed);
    // Cursor A at 700 ms of 0 … 1000.
    const int cursorX = f.refs.timeAxis->Left + f.refs.timeAxis->Length * 7 / 10;
    EXPECT_EQ(pixel(png, cursorX, 300), 0xE0E0E0u);
    cairo_surface_destroy(png);
}

}  // namespace
}  // namespace zt
