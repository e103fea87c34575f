// ztgraph demo: the whole component on the simulated host. A capture is set up on the sheets,
// Start is pressed, the host delivers the drive's samples until the capture completes, and
// the graph is written as PNG and SVG.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <sstream>

#include <unistd.h>

#include "cli/arguments.h"
#include "cli/capture_setup.h"
#include "cli/commands.h"
#include "cli/display_actions.h"
#include "config/sheet_rows.h"
#include "control/graph_control_interface.h"
#include "core/setting_limits.h"
#include "render/render_chart.h"
#include "run/run_states.h"
#include "sim/sim_host.h"

namespace zt::cli {

namespace {

constexpr std::string_view kUsage =
    "usage: ztgraph demo [--scenario typical|fault|high-speed|continuous] [--out DIR]\n"
    "                    [--sweeps N] [--width W --height H]\n"
    "  --scenario  what to capture (default typical: rising trigger on the output frequency)\n"
    "  --out       folder for graph.png and graph.svg (default ztgraph-demo)\n"
    "  --sweeps    continuous scenario: sweeps before Stop is pressed (default 3)\n"
    "                    [--hscale MS] [--scroll N] [--optimize] [--scale CH:VALUE]\n"
    "                    [--cursors time:A,B | value:A,B] [--scheme light|dark]\n"
    "  --width, --height  picture size in pixels (default 1020 x 480)\n"
    "After the capture, on the control as a person would:\n"
    "  --hscale    type MS into the ms/Div box and press Enter\n"
    "  --scroll    move the scroll bar to N divisions\n"
    "  --optimize  press \"Optimize VertScale\"\n"
    "  --scale     choose \"One\", click channel CH and type VALUE as its scale\n"
    "  --cursors   show time or value cursors and drag A and B to fractions 0 to 1\n"
    "  --scheme    the host's colour scheme (light or dark)\n";

// Replies the host delivers at most before the demo gives up on a capture.
constexpr int kMaxReplies = 200000;
// Samples per reply, as a serial link delivers them.
constexpr int kRecordsPerReply = 10;

struct DemoOptions {
    CaptureScenario scenario = CaptureScenario::Typical;
    std::filesystem::path out = "ztgraph-demo";
    int sweeps = 3;
    render::RenderOptions picture{1020, 480};
    DisplayActions display;
};

// Parses the options; an error text when they are not understood.
std::optional<std::string> parseOptions(const Args& args, DemoOptions& o) {
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (isDisplayFlag(a)) {
            parseDisplayOption(a, nullptr, o.display);
            continue;
        }
        if (auto problem =
                parseDisplayOption(a, i + 1 < args.size() ? &args[i + 1] : nullptr, o.display)) {
            if (!problem->empty()) return problem;
            ++i;
            continue;
        }
        if (i + 1 >= args.size()) return a + " needs a value";
        const std::string& v = args[++i];
        if (a == "--scenario") {
            const auto s = parseCaptureScenario(v);
            if (!s) return "unknown scenario '" + v + "'";
            o.scenario = *s;
        } else if (a == "--out") {
            o.out = v;
        } else if (a == "--sweeps") {
            const auto n = wholeNumberArg(v, 1, 100);
            if (!n) return "--sweeps takes a number from 1 to 100";
            o.sweeps = *n;
        } else if (a == "--width" || a == "--height") {
            const auto n = wholeNumberArg(v, 1, 20000);
            if (!n) return a + " takes a size from 1 to 20000";
            (a == "--width" ? o.picture.width : o.picture.height) = *n;
        } else {
            return "unknown option '" + a + "'";
        }
    }
    return std::nullopt;
}

// How the simulated drive runs in each scenario: its run spans this many samples, so that the
// capture window shows the start, the load step and the stop.
void setUpDrive(sim::SimHost& host, CaptureScenario scenario) {
    host.recordsPerBlock = kRecordsPerReply;
    switch (scenario) {
        case CaptureScenario::Typical:
            host.runRecords = 700;
            break;
        case CaptureScenario::Fault:
            host.scenario = sim::DriveScenario::Fault;
            host.runRecords = 1000;
            host.faultAtMs = 60000;  // 600 samples of 100 ms into the run
            break;
        case CaptureScenario::HighSpeed:
            host.runRecords = 5000;
            break;
        case CaptureScenario::Continuous:
            host.runRecords = 600;
            break;
    }
}

// Records of the newest graph: up to the first record after the start without an interval.
int graphLength(const GraphState& state) {
    const auto& records = state.history.udtGraphResultInfo[0].udtSample;
    int n = 0;
    while (n < static_cast<int>(records.size()) &&
           (n == 0 || records[static_cast<size_t>(n)].lngDiffTime != 0))
        ++n;
    return n;
}

std::string fixed(double value, int decimals) {
    std::ostringstream s;
    s << std::fixed << std::setprecision(decimals) << value;
    return s.str();
}

// Shows the capture's progress: the phase while a trigger is awaited, then how much of the
// sampling time the graph covers. On a terminal one line is rewritten in place; otherwise a
// line is added for each phase and each quarter.
class Progress {
  public:
    Progress(std::ostream& out, bool terminal) : out_(out), terminal_(terminal) {}
    void update(const std::string& phase, int percent) {
        const int step = terminal_ ? 10 : 25;
        if (phase == phase_ && percent / step == percent_ / step) return;
        phase_ = phase;
        percent_ = percent;
        out_ << (terminal_ ? "\r  " : "  ") << std::left << std::setw(28) << phase << std::right
             << std::setw(4) << percent << " %" << (terminal_ ? "" : "\n") << std::flush;
    }
    void finish() {
        if (terminal_) out_ << "\n";
    }

  private:
    std::ostream& out_;
    bool terminal_;
    std::string phase_;
    int percent_ = -100;
};

void printSetup(ztGraphControl& control, std::ostream& out) {
    const GraphState& s = control.state();
    const ui::SpreadSheet& ch = control.surface().sprChannel;
    out << "Channels:\n";
    for (int c = 1; c <= kChannelCount; ++c) {
        if (!control.settingSheets().channelIsSet(c)) continue;
        out << "  CH" << c << "  station " << ch.text(c, kRowStation) << "  "
            << ch.text(c, kRowName) << "\n";
    }
    const ui::SpreadSheet& trig = control.surface().sprTrigger;
    const ui::SpreadSheet& samp = control.surface().sprSampling;
    const auto value = [](const ui::SpreadSheet& sheet, int row) { return sheet.text(1, row); };
    out << "Trigger:  " << value(trig, kTriggerRowType);
    if (s.sampSetting.intTriggerType == 1) {
        out << " " << value(trig, kTriggerRowTarget) << ", " << value(trig, kTriggerRowBoot)
            << ", level " << value(trig, kTriggerRowLevel) << ", position "
            << value(trig, kTriggerRowPosition) << " %";
    } else if (s.sampSetting.intTriggerType == 2) {
        out << " of station " << value(trig, kTriggerRowTarget) << ", position "
            << value(trig, kTriggerRowPosition) << " %";
    }
    out << "\nSampling: " << value(samp, kSamplingRowMode) << ", " << value(samp, kSamplingRowSpeed)
        << ", " << samp.text(0, kSamplingRowInterval) << " " << value(samp, kSamplingRowInterval)
        << ", " << samp.text(0, kSamplingRowTime) << " " << value(samp, kSamplingRowTime) << "\n";
}

void printResult(ztGraphControl& control, sim::SimCommonLibrary& library, std::ostream& out) {
    const GraphState& s = control.state();
    const int n = graphLength(s);
    const std::vector<double>& times = s.sampData[1].sngSamplingTimeByInv;
    const double span = n > 0 ? times[static_cast<size_t>(n - 1)] : 0;
    out << "Graph:    " << n << " samples over " << fixed(span, 1) << " ms\n";
    const int32_t point = s.sampSetting.lngTriggerPoint;
    if (s.sampSetting.intTriggerType != 0 && s.triggerPhase == 3 && point >= 0 && point < n) {
        out << "          trigger at sample " << point << ", "
            << fixed(times[static_cast<size_t>(point)], 1) << " ms\n";
    } else if (s.sampSetting.intTriggerType != 0) {
        out << "          the trigger did not occur\n";
    }
    const ui::SpreadSheet& ch = control.surface().sprChannel;
    for (int c = 1; c <= kChannelCount; ++c) {
        const auto k = static_cast<size_t>(c);
        if (!control.settingSheets().channelIsSet(c) || n == 0) continue;
        const auto& v = s.sampData[k].sngSamplingData;
        const auto [lo, hi] = std::minmax_element(v.begin(), v.begin() + n);
        out << "  CH" << c << "  " << std::left << std::setw(22) << ch.text(c, kRowName)
            << std::right;
        if (isAnalogChannel(c)) {
            const int decimals = std::clamp<int>(s.sampData[k].intDecPoint, 0, 3);
            const std::string unit =
                library.sim().GetUnitText(static_cast<int32_t>(s.sampData[k].sngUnit));
            out << " " << fixed(*lo, decimals) << " to " << fixed(*hi, decimals) << " " << unit;
        } else {
            const auto on = std::count(v.begin(), v.begin() + n, 1.0);
            out << " on in " << on << " of " << n << " samples";
        }
        out << "\n";
    }
}

}  // namespace

int runDemo(const Args& args, std::ostream& out, std::ostream& err) {
    DemoOptions o;
    if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
        out << kUsage;
        return 0;
    }
    if (auto problem = parseOptions(args, o)) {
        err << "ztgraph demo: " << *problem << "\n" << kUsage;
        return 2;
    }

    sim::SimCommonLibrary library;
    ztGraphControl control(library);
    sim::SimHost host([&control](int32_t id, DispatchKind kind, std::vector<DispatchValue>& a) {
        return dispatch(control, id, kind, a);
    });
    control.advise(&host);
    host.countsPerUnit = [&control](int channel) {
        const Conversion c = control.conversionTable()[static_cast<size_t>(channel)];
        const double unit = c.gain * static_cast<double>(c.decimalFactor);
        return unit != 0 ? 1 / unit : 1.0;
    };
    setUpDrive(host, o.scenario);

    connectToLink(control, library);
    configureCapture(control, o.scenario);
    out << "ztgraph demo: " << scenarioName(o.scenario) << " capture on the simulated link\n";
    printSetup(control, out);

    control.surface().cmdStart.click();
    if (!library.boxes().boxes().empty()) {
        for (const auto& box : library.boxes().boxes())
            err << "ztgraph demo: " << box.text << "\n";
        return 1;
    }

    const GraphState& s = control.state();
    const double expected =
        std::max(1.0, s.sampSetting.dblSamplingTime / effectiveInterval(s.sampSetting));
    Progress progress(out, &out == &std::cout && isatty(STDOUT_FILENO) == 1);
    int replies = 0;
    int sweepsDone = 0;
    const int32_t graphsBefore = s.history.lngGraphCount;
    while (host.sampling() && replies < kMaxReplies) {
        host.deliverBlock();
        ++replies;
        sweepsDone = s.history.lngGraphCount - graphsBefore;
        const int percent = static_cast<int>(std::min(100.0, 100.0 * graphLength(s) / expected));
        // Continuous sweeps go on until Stop: pressed near the end of the last sweep wanted,
        // so the graph it leaves on display is that sweep.
        if (o.scenario == CaptureScenario::Continuous && sweepsDone == o.sweeps - 1 &&
            percent >= 95) {
            control.surface().cmdStop.click();
            break;
        }
        std::string phase = "sampling";
        if (s.triggerPhase == 1) phase = "pre-trigger data";
        if (s.triggerPhase == 2) phase = "waiting for the trigger";
        if (o.scenario == CaptureScenario::Continuous)
            phase = "sweep " + std::to_string(sweepsDone + 1) + " of " + std::to_string(o.sweeps);
        progress.update(phase, s.triggerPhase == 2 ? 0 : percent);
    }
    progress.update("complete", 100);
    progress.finish();
    if (host.sampling()) {
        control.surface().cmdStop.click();
        err << "ztgraph demo: the capture did not complete; stopped\n";
    }
    out << "Run state " << control.runState() << ", " << replies << " replies of up to "
        << kRecordsPerReply << " samples\n";
    printResult(control, library, out);
    if (auto problem = performDisplayActions(control, o.display)) {
        err << "ztgraph demo: " << *problem << "\n";
        return 1;
    }
    printCursorReadouts(control, out);

    std::error_code ec;
    std::filesystem::create_directories(o.out, ec);
    for (const auto& [name, format] : {std::pair{"graph.png", render::Format::Png},
                                       std::pair{"graph.svg", render::Format::Svg}}) {
        const std::filesystem::path path = o.out / name;
        const render::RenderStatus status =
            render::renderChart(control.chartRoot(), o.picture, path.string(), format);
        if (!status) {
            err << "ztgraph demo: " << status.error << "\n";
            return 1;
        }
        out << "wrote " << path.string() << "\n";
    }

    // The graph as a graph text file and the whole state as a project file.
    const std::filesystem::path graphFile = o.out / "graph.gp3";
    if (control.ExportFile(graphFile.string()) != 0) {
        err << "ztgraph demo: cannot write " << graphFile.string() << "\n";
        return 1;
    }
    out << "wrote " << graphFile.string() << "\n";
    const std::filesystem::path projectFile = o.out / "project.ztp";
    VERSION_INFO version;
    if (control.SaveKivFile(projectFile.string(), version) != 0) {
        err << "ztgraph demo: cannot write " << projectFile.string() << "\n";
        return 1;
    }
    out << "wrote " << projectFile.string() << "\n";
    return 0;
}

}  // namespace zt::cli
