// ztgraph-view: the graph component in a desktop window on the simulated drive link.
//   ztgraph-view                       opens the window
//   ztgraph-view --screenshot FILE     captures a sample graph and saves the window as PNG
#include <QApplication>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "sim/capture_setup.h"
#include "view/main_window.h"

namespace {

constexpr const char* kUsage =
    "usage: ztgraph-view [--scenario typical|fault|high-speed|continuous]\n"
    "                    [--screenshot FILE [--size WxH]]\n"
    "  --scenario    set up this capture on the sheets at start\n"
    "  --screenshot  capture the scenario at once, show the cursors and save the window\n"
    "                as a PNG picture, then quit (works without a display)\n"
    "  --size        window size for the screenshot (default 1100x760)\n";

struct Options {
    std::optional<zt::sim::CaptureScenario> scenario;
    std::optional<std::string> screenshot;
    int width = 1100;
    int height = 760;
};

// An error text, or nullopt when the options were understood.
std::optional<std::string> parse(int argc, char** argv, Options& o) {
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (i + 1 >= argc) return a + " needs a value";
        const std::string v = argv[++i];
        if (a == "--scenario") {
            o.scenario = zt::sim::parseCaptureScenario(v);
            if (!o.scenario) return "unknown scenario '" + v + "'";
        } else if (a == "--screenshot") {
            o.screenshot = v;
        } else if (a == "--size") {
            if (std::sscanf(v.c_str(), "%dx%d", &o.width, &o.height) != 2 || o.width < 100 ||
                o.height < 100 || o.width > 8000 || o.height > 8000) {
                return "--size takes WIDTHxHEIGHT, 100 to 8000 each";
            }
        } else {
            return "unknown option '" + a + "'";
        }
    }
    return std::nullopt;
}

// Captures the scenario, shows the time cursors on the cursor page and saves the window.
int screenshot(zt::view::MainWindow& window, const Options& o) {
    window.resize(o.width, o.height);
    window.show();
    QApplication::processEvents();
    window.setUpCapture(o.scenario.value_or(zt::sim::CaptureScenario::Typical));
    zt::GraphSurface& s = window.control().surface();
    window.surface().act([&] { s.cmdStart.click(); });
    window.deliverAll();
    window.surface().act([&] {
        s.tbsGraphOp.click(2);
        if (s.chkCursor.value() != zt::ui::kChecked) s.chkCursor.click();
    });
    // Cursor A to a third of the graph and B to two thirds, dragged with the mouse.
    const zt::chart::Grid& grid = *window.control().chartRefs().grid;
    zt::chart::ChartRoot& root = window.control().chartRoot();
    const auto drag = [&](double from, double to) {
        // The chart reports the mouse in twips.
        const zt::HostEnvironment& env = window.control().environment();
        const auto x = [&](double f) {
            return static_cast<float>((grid.Left + f * (grid.Right - grid.Left)) *
                                      env.twipsPerPixelX);
        };
        const auto y = static_cast<float>((grid.Top + grid.Bottom) / 2.0 * env.twipsPerPixelY);
        window.surface().act([&] {
            root.MouseDown.raise(1, 0, x(from), y);
            root.MouseMove.raise(1, 0, x(to), y);
            root.MouseUp.raise(1, 0, x(to), y);
        });
    };
    drag(1.0, 0.66);
    drag(0.0, 0.33);
    QApplication::processEvents();
    if (!window.grab().save(QString::fromStdString(*o.screenshot), "PNG")) {
        std::fprintf(stderr, "ztgraph-view: cannot write %s\n", o.screenshot->c_str());
        return 1;
    }
    std::printf("wrote %s\n", o.screenshot->c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    Options o;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::fputs(kUsage, stdout);
            return 0;
        }
    }
    if (auto problem = parse(argc, argv, o)) {
        std::fprintf(stderr, "ztgraph-view: %s\n%s", problem->c_str(), kUsage);
        return 2;
    }
    // A screenshot needs no display.
    if (o.screenshot && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    zt::view::MainWindow window;
    if (o.screenshot) return screenshot(window, o);
    if (o.scenario) window.setUpCapture(*o.scenario);
    window.show();
    return QApplication::exec();
}
