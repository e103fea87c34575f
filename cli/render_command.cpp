// ztgraph render: draws a simulated drive run through the component's plotting and writes the
// chart as a picture.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "cli/arguments.h"
#include "cli/capture_setup.h"
#include "cli/commands.h"
#include "control/graph_control.h"
#include "core/chart_refs.h"
#include "core/conversion_table.h"
#include "core/graph_state.h"
#include "graph/chart_setup.h"
#include "graph/plot_graph.h"
#include "render/render_chart.h"
#include "sim/drive_waveforms.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

namespace {

constexpr std::string_view kUsage =
    "usage: ztgraph render --out FILE.png|svg|pdf [--width W --height H]\n"
    "                      [--scenario typical|fault|servo]\n"
    "       ztgraph render --from FILE.gp3 [--slot N] [--overlay M] --out FILE.png|svg|pdf\n"
    "                      [--width W --height H]\n";

struct ChannelPlan {
    int32_t item = kNoneItem;
    float baseValue = 0;  // engineering value of the full-scale count, in units of the decimals
    int16_t decimals = 0;
    bool isSigned = false;
    bool direct = false;
    double low = 0;  // vertical range shown
    double high = 0;
};

using Plan = std::array<ChannelPlan, 9>;

Plan planFor(sim::DriveScenario scenario) {
    Plan p{};
    if (scenario == sim::DriveScenario::Servo) {
        p[1] = {224, 0, 0, true, true, -50000, 250000};
        p[2] = {224, 0, 0, true, true, 0, 0};
        p[3] = {226, 0, 0, true, true, -8000, 8000};
        p[4] = {226, 0, 0, true, true, 0, 0};
        p[5].item = 33;
        p[6].item = 39;
        p[7].item = 1;
        p[8].item = 36;
        return p;
    }
    p[1] = {201, 0, 2, true, false, -20, 80};
    p[2] = {202, 20000, 2, false, false, 0, 100};
    p[3] = {212, 800, 0, false, false, 0, 1000};
    p[4] = {207, 200, 0, true, false, -150, 250};
    p[5].item = 33;
    p[6].item = 35;
    p[7].item = 1;
    p[8].item = 36;
    return p;
}

std::optional<render::Format> formatOf(const std::string& path) {
    std::string ext = std::filesystem::path(path).extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (ext == ".png") return render::Format::Png;
    if (ext == ".svg") return render::Format::Svg;
    if (ext == ".pdf") return render::Format::Pdf;
    return std::nullopt;
}

// The index of the first record whose digital word has `bit` set after having it clear.
int32_t firstRise(const std::vector<SampleRecord>& records, int bit) {
    for (size_t i = 1; i < records.size(); ++i) {
        const bool before = (records[i - 1].intDigitalData >> bit) & 1;
        const bool now = (records[i].intDigitalData >> bit) & 1;
        if (!before && now) return static_cast<int32_t>(i);
    }
    return 0;
}

}  // namespace

// A saved graph as the control shows it: the file imported, history graph `slot` picked and
// history graph `overlay` (0 none) laid over it.
int renderSavedGraph(const std::string& from, int slot, int overlay, const std::string& path,
                     render::Format format, const render::RenderOptions& options, std::ostream& out,
                     std::ostream& err) {
    sim::SimCommonLibrary library;
    auto control = std::make_unique<ztGraphControl>(library);
    connectToLink(*control, library);
    SYS_INFO sys;
    if (control->ImportFile(from, sys) != 0) {
        err << "ztgraph render: cannot read " << from << "\n";
        return 1;
    }
    GraphSurface& s = control->surface();
    for (auto& box : s.chkOverWrite)
        if (box.value() != ui::kUnchecked) box.setValue(ui::kUnchecked);
    s.optHistory[slot - 1].setValue(false);
    s.optHistory[slot - 1].setValue(true);
    if (overlay >= 1) s.chkOverWrite[overlay - 1].setValue(ui::kChecked);
    const render::RenderStatus status =
        render::renderChart(control->chartRoot(), options, path, format);
    if (!status) {
        err << "ztgraph render: " << status.error << "\n";
        return 1;
    }
    out << "wrote " << path << "\n";
    return 0;
}

int runRender(const Args& args, std::ostream& out, std::ostream& err) {
    std::string path;
    std::string from;
    int shownSlot = 1;
    int overlay = 0;
    render::RenderOptions options;
    sim::DriveScenario scenario = sim::DriveScenario::Typical;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--help" || a == "-h") {
            out << kUsage;
            return 0;
        }
        if (i + 1 >= args.size()) {
            err << "ztgraph render: " << a << " needs a value\n" << kUsage;
            return 2;
        }
        const std::string& v = args[++i];
        if (a == "--out") {
            path = v;
        } else if (a == "--from") {
            from = v;
        } else if (a == "--slot" || a == "--overlay") {
            const auto n = wholeNumberArg(v, a == "--slot" ? 1 : 0, 5);
            if (!n) {
                err << "ztgraph render: " << a << " takes a history graph 1 to 5\n";
                return 2;
            }
            (a == "--slot" ? shownSlot : overlay) = *n;
        } else if (a == "--width" || a == "--height") {
            const auto n = wholeNumberArg(v, 1, 20000);
            if (!n) {
                err << "ztgraph render: " << a << " takes a size from 1 to 20000\n";
                return 2;
            }
            (a == "--width" ? options.width : options.height) = *n;
        } else if (a == "--scenario") {
            const auto s = sim::parseScenario(v);
            if (!s) {
                err << "ztgraph render: unknown scenario '" << v << "'\n" << kUsage;
                return 2;
            }
            scenario = *s;
        } else {
            err << "ztgraph render: unknown option '" << a << "'\n" << kUsage;
            return 2;
        }
    }
    const auto format = formatOf(path);
    if (path.empty() || !format) {
        err << "ztgraph render: --out must name a .png, .svg or .pdf file\n" << kUsage;
        return 2;
    }
    if (!from.empty())
        return renderSavedGraph(from, shownSlot, overlay, path, *format, options, out, err);

    chart::ChartRoot root;
    const ChartRefs refs = lookupChartObjects(root);
    GraphState state;
    configureChart(refs, state.chSetting, std::nullopt);
    resetVerticalAxes(refs);
    setScaleMargin(refs, 0);

    const Plan plan = planFor(scenario);
    PlotInputs inputs;
    for (size_t c = 1; c <= 8; ++c) {
        state.chSetting[c].lngSamplingItem = plan[c].item;
        state.chSetting[c].lngTargetNo = 1;
        state.chSetting[c].intAD = c <= 4 ? 0 : 1;
        inputs.inUse[c] = plan[c].item != kNoneItem;
        inputs.directValue[c] = plan[c].direct;
        if (c <= 4) {
            inputs.signedItem[c] = plan[c].isSigned;
            state.sampData[c].sngBaseValue = plan[c].baseValue;
            state.sampData[c].intDecPoint = plan[c].decimals;
        }
    }

    // Raw counts per engineering unit follow from the same conversion the plotting uses.
    const ConversionTable table = buildConversionTable(state.chSetting, state.sampData, inputs);
    sim::WaveformRequest request;
    request.scenario = scenario;
    request.intervalTenths = 10;
    for (size_t c = 1; c <= 8; ++c) {
        request.channel[c].item = plan[c].item;
        request.channel[c].station = 1;
        if (c <= 4) {
            const double unit = table[c].gain * static_cast<double>(table[c].decimalFactor);
            request.channel[c].countsPerUnit = unit != 0 ? 1 / unit : 0;
        }
    }
    const std::vector<SampleRecord> records = sim::driveWaveforms(request);
    auto& slot = state.history.udtGraphResultInfo[0].udtSample;
    std::copy(records.begin(), records.end(), slot.begin());

    // The trigger: the run signal's rise, or the fault's.
    state.sampSetting.intTriggerType = scenario == sim::DriveScenario::Fault ? 2 : 1;
    state.sampSetting.lngTriggerPoint =
        scenario == sim::DriveScenario::Fault ? firstRise(records, 3) : firstRise(records, 0);
    state.sampSetting.sngTriggerPosition = 10;

    // Ten divisions over the whole run.
    const double span = (kGraphRecords - 1) * request.intervalTenths / 10.0;
    state.graphInfo.udtHorzScale.sngHorzScale = static_cast<float>(span / 10);
    refs.timeAxis->Minimum = 0;
    refs.timeAxis->Maximum = span;
    for (size_t c = 1; c <= 8; ++c) {
        if (!inputs.inUse[c] || (c <= 4 && plan[c].low == plan[c].high)) continue;
        refs.vertAxis[c]->Visible = true;
        refs.vertAxis[c]->Minimum = c <= 4 ? plan[c].low : 0;
        refs.vertAxis[c]->Maximum = c <= 4 ? plan[c].high : 1;
    }

    drawGraph(refs, state, inputs, 0, kDisplayedGraph);

    const render::RenderStatus status = render::renderChart(root, options, path, *format);
    if (!status) {
        err << "ztgraph render: " << status.error << "\n";
        return 1;
    }
    out << "wrote " << path << "\n";
    return 0;
}

}  // namespace zt::cli
