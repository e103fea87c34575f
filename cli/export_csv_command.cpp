// ztgraph export-csv: one history slot of a graph text file as comma-separated values in
// engineering units, for spreadsheets and data tools.
#include <charconv>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/capture_setup.h"
#include "cli/commands.h"
#include "config/item_attribute.h"
#include "config/sheet_rows.h"
#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

namespace {

constexpr const char* kUsage =
    "usage: ztgraph export-csv FILE.gp3 [--slot N] --out FILE.csv\n"
    "Writes history slot N (1 to 5, default 1) of a graph text file: the time in ms, then\n"
    "each channel in use with its item name and unit in the header.\n";

std::string csvText(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"') out += '"';
        out += c;
    }
    return out + "\"";
}

std::string shortest(double v) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, v).ptr;
    return std::string(buffer, end);
}

}  // namespace

int runExportCsv(const Args& args, std::ostream& out, std::ostream& err) {
    std::string file, csv;
    int slot = 1;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--help" || a == "-h") {
            out << kUsage;
            return 0;
        }
        if (a == "--slot" && i + 1 < args.size()) {
            const auto n = wholeNumberArg(args[++i], 1, 5);
            if (!n) {
                err << "ztgraph export-csv: --slot needs 1 to 5\n" << kUsage;
                return 2;
            }
            slot = *n;
        } else if (a == "--out" && i + 1 < args.size()) {
            csv = args[++i];
        } else if (!a.empty() && a[0] != '-' && file.empty()) {
            file = a;
        } else {
            err << "ztgraph export-csv: " << a << " is not understood\n" << kUsage;
            return 2;
        }
    }
    if (file.empty() || csv.empty()) {
        err << "ztgraph export-csv: a graph file and --out are needed\n" << kUsage;
        return 2;
    }

    sim::SimCommonLibrary library;
    auto control = std::make_unique<ztGraphControl>(library);
    connectToLink(*control, library);
    SYS_INFO sys;
    if (control->ImportFile(file, sys) != 0) {
        err << "ztgraph export-csv: cannot read " << file << "\n";
        return 1;
    }
    // Showing the slot turns its records into values and times.
    control->surface().optHistory[slot - 1].setValue(false);
    control->surface().optHistory[slot - 1].setValue(true);

    const GraphState& s = control->state();
    const auto& samples = s.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample;
    std::size_t length = samples.size();
    while (length > 0 && samples[length - 1] == SampleRecord{})
        --length;

    std::vector<int> channels;
    std::string header = "Time[ms]";
    const int16_t speed = s.sampSetting.intSamplingSpeed;
    for (int c = 1; c <= kChannelCount; ++c) {
        if (!control->settingSheets().channelIsSet(c)) continue;
        channels.push_back(c);
        const int32_t item = s.chSetting[static_cast<std::size_t>(c)].lngSamplingItem;
        const std::string name = control->surface().sprChannel.text(c, kRowName);
        const std::string unit =
            control->settingSheets().itemAttribute(item, kAttrUnit, static_cast<int16_t>(c), speed);
        header += "," + csvText("CH" + std::to_string(c) + " " + name +
                                (unit.empty() ? "" : "[" + unit + "]"));
    }

    std::ofstream outFile(csv, std::ios::binary | std::ios::trunc);
    if (!outFile) {
        err << "ztgraph export-csv: cannot write " << csv << "\n";
        return 1;
    }
    outFile << header << "\r\n";
    const SAMPDATA& first =
        s.sampData[static_cast<std::size_t>(channels.empty() ? 1 : channels[0])];
    for (std::size_t i = 0; i < length; ++i) {
        outFile << shortest(first.sngSamplingTimeByInv[i]);
        for (int c : channels)
            outFile << "," << shortest(s.sampData[static_cast<std::size_t>(c)].sngSamplingData[i]);
        outFile << "\r\n";
    }
    outFile.flush();
    if (!outFile) {
        err << "ztgraph export-csv: cannot write " << csv << "\n";
        return 1;
    }
    out << "wrote " << csv << ": slot " << slot << ", " << length << " samples, " << channels.size()
        << " channels\n";
    return 0;
}

}  // namespace zt::cli
