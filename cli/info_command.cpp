// ztgraph info: loads a graph text file or a project block into the control and prints the
// state it then holds, as text or as one JSON object.
#include <charconv>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/capture_setup.h"
#include "cli/commands.h"
#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt::cli {

namespace {

constexpr const char* kUsage =
    "usage: ztgraph info FILE [--offset N] [--program-version MAJOR.MINOR]\n"
    "                    [--records I,J,...|all] [--samples] [--json]\n"
    "Loads a graph text file (or, with --offset, the project block at byte offset N) and\n"
    "prints the state the control then holds.\n";

struct InfoOptions {
    std::string file;
    std::optional<int64_t> offset;
    int32_t major = 0;
    int32_t minor = 0;
    std::vector<int> records;
    bool allRecords = false;
    bool samples = false;
    bool json = false;
};

std::optional<std::string> parseOptions(const Args& args, InfoOptions& o) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const auto value = [&]() -> std::optional<std::string> {
            if (i + 1 >= args.size()) return std::nullopt;
            return args[++i];
        };
        if (a == "--json") {
            o.json = true;
        } else if (a == "--samples") {
            o.samples = true;
        } else if (a == "--offset") {
            const auto v = value();
            const auto n = v ? wholeNumberArg(*v, 0, 2147483646) : std::nullopt;
            if (!n) return "--offset needs a byte offset";
            o.offset = *n;
        } else if (a == "--program-version") {
            const auto v = value();
            const std::size_t dot = v ? v->find('.') : std::string::npos;
            if (dot == std::string::npos) return "--program-version needs MAJOR.MINOR";
            const auto major = wholeNumberArg(v->substr(0, dot), 0, 1000000);
            const auto minor = wholeNumberArg(v->substr(dot + 1), 0, 1000000);
            if (!major || !minor) return "--program-version needs MAJOR.MINOR";
            o.major = *major;
            o.minor = *minor;
        } else if (a == "--records") {
            const auto v = value();
            if (!v) return "--records needs indexes or all";
            if (*v == "all") {
                o.allRecords = true;
                continue;
            }
            std::stringstream list(*v);
            std::string item;
            while (std::getline(list, item, ',')) {
                const auto n = wholeNumberArg(item, 0, kGraphRecords - 1);
                if (!n) return "--records: " + item + " is not an index 0 to 9999";
                o.records.push_back(*n);
            }
        } else if (!a.empty() && a[0] == '-') {
            return "unknown option " + a;
        } else if (o.file.empty()) {
            o.file = a;
        } else {
            return "one file only";
        }
    }
    if (o.file.empty()) return "a file is needed";
    return std::nullopt;
}

std::string number(double v) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, v).ptr;
    return std::string(buffer, end);
}
std::string number(float v) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, v).ptr;
    return std::string(buffer, end);
}
std::string number(int64_t v) {
    return std::to_string(v);
}

std::string quoted(const std::string& s) {
    std::string out = "\"";
    for (const char c : s) {
        const auto u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (u < 0x20) {
            char buffer[8];
            std::snprintf(buffer, sizeof buffer, "\\u%04x", u);
            out += buffer;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

// Name-value pairs of one record, printed as a JSON object or as text lines.
using Fields = std::vector<std::pair<std::string, std::string>>;

std::string object(const Fields& fields) {
    std::string out = "{";
    for (std::size_t i = 0; i < fields.size(); ++i)
        out += (i ? ", " : "") + quoted(fields[i].first) + ": " + fields[i].second;
    return out + "}";
}

std::string array(const std::vector<std::string>& items) {
    std::string out = "[";
    for (std::size_t i = 0; i < items.size(); ++i)
        out += (i ? ", " : "") + items[i];
    return out + "]";
}

template <typename T>
std::string numbers(const std::vector<T>& values) {
    std::vector<std::string> items;
    items.reserve(values.size());
    for (const T& v : values)
        items.push_back(number(v));
    return array(items);
}

Fields sampSettingFields(const SAMPSETTING& s) {
    return {{"dblSamplingInterval", number(s.dblSamplingInterval)},
            {"dblSamplingTime", number(s.dblSamplingTime)},
            {"dblMask", number(s.dblMask)},
            {"intTriggerType", number(int64_t{s.intTriggerType})},
            {"intTriggerBoot", number(int64_t{s.intTriggerBoot})},
            {"dblTriggerLevel", number(s.dblTriggerLevel)},
            {"sngTriggerPosition", number(s.sngTriggerPosition)},
            {"lngTriggerPoint", number(int64_t{s.lngTriggerPoint})},
            {"intSamplingMode", number(int64_t{s.intSamplingMode})},
            {"intSamplingSpeed", number(int64_t{s.intSamplingSpeed})},
            {"intTriggerTarget", number(int64_t{s.intTriggerTarget})}};
}

Fields chSettingFields(const CHSETTING& c) {
    return {{"intChNo", number(int64_t{c.intChNo})},
            {"intAD", number(int64_t{c.intAD})},
            {"lngSamplingItem", number(int64_t{c.lngSamplingItem})},
            {"lngTargetNo", number(int64_t{c.lngTargetNo})},
            {"lngGraphColor", number(int64_t{c.lngGraphColor})}};
}

Fields sampDataFields(const SAMPDATA& d, bool samples) {
    Fields f = {{"sngUnit", number(d.sngUnit)},
                {"sngBaseValue", number(d.sngBaseValue)},
                {"intDecPoint", number(int64_t{d.intDecPoint})}};
    if (samples) {
        f.emplace_back("sngSamplingData", numbers(d.sngSamplingData));
        f.emplace_back("sngSamplingTimeByInv", numbers(d.sngSamplingTimeByInv));
    }
    return f;
}

Fields horzFields(const HORZSCALE& h) {
    return {{"sngHorzScale", number(h.sngHorzScale)},
            {"lngHScrollPos", number(int64_t{h.lngHScrollPos})}};
}

Fields cursorFields(const CURSORSTATE& c) {
    return {{"sngHorzCursorApos", number(c.sngHorzCursorApos)},
            {"sngHorzCursorBpos", number(c.sngHorzCursorBpos)},
            {"sngVertCursorApos", number(c.sngVertCursorApos)},
            {"sngVertCursorBpos", number(c.sngVertCursorBpos)},
            {"intCursorState", number(int64_t{c.intCursorState})},
            {"sngHorzDiffPosAB", number(c.sngHorzDiffPosAB)},
            {"sngVertDiffPosAB", number(c.sngVertDiffPosAB)}};
}

Fields historyFields(const HISTORYSTATE& h) {
    return {{"lngCurrentGraph", number(int64_t{h.lngCurrentGraph})},
            {"lngGraphTotal", number(int64_t{h.lngGraphTotal})},
            {"lngOverWriteState", number(int64_t{h.lngOverWriteState})}};
}

std::vector<int64_t> recordValues(const SampleRecord& r) {
    return {r.lngDiffTime,      r.intFaultData,     r.intDigitalData,  r.lngAnalogData[0],
            r.lngAnalogData[1], r.lngAnalogData[2], r.lngAnalogData[3]};
}

int nonZeroRecords(const std::vector<SampleRecord>& samples) {
    int n = 0;
    for (const SampleRecord& r : samples)
        n += r == SampleRecord{} ? 0 : 1;
    return n;
}

void printJson(const ztGraphControl& control, int16_t result, const InfoOptions& o,
               std::ostream& out) {
    const GraphState& s = control.state();
    Fields top;
    top.emplace_back("result", number(int64_t{result}));
    top.emplace_back("runState", number(int64_t{control.runState()}));
    top.emplace_back("SAMPSETTING", object(sampSettingFields(s.sampSetting)));
    std::vector<std::string> channels, data, vert;
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const auto i = static_cast<std::size_t>(ch);
        channels.push_back(object(chSettingFields(s.chSetting[i])));
        data.push_back(object(sampDataFields(s.sampData[i], o.samples)));
        vert.push_back(
            object({{"dblVertScale", number(s.graphInfo.udtVertScale[i].dblVertScale)},
                    {"intZeroPos", number(int64_t{s.graphInfo.udtVertScale[i].intZeroPos})}}));
    }
    top.emplace_back("CHSETTING", array(channels));
    top.emplace_back("SAMPDATA", array(data));
    top.emplace_back(
        "GRAPHINFO",
        object({{"VERTSCALE", array(vert)},
                {"HORZSCALE", object(horzFields(s.graphInfo.udtHorzScale))},
                {"CURSORSTATE", object(cursorFields(s.graphInfo.udtCursorState))},
                {"intChNumber", number(int64_t{s.graphInfo.intChNumber})},
                {"HISTORYSTATE", object(historyFields(s.graphInfo.udtHistoryState))}}));
    top.emplace_back("GRAPH_VERSION_INFO",
                     object({{"strMainVersion", quoted(s.version.strMainVersion)},
                             {"lngHistoryMax", number(int64_t{s.version.lngHistoryMax})}}));
    std::vector<std::string> comments;
    for (const std::string& c : s.history.strComments)
        comments.push_back(quoted(c));
    top.emplace_back("strComments", array(comments));
    std::vector<std::string> slots;
    for (int slot = 1; slot < kHistorySlots; ++slot) {
        const auto& samples =
            s.history.udtGraphResultInfo[static_cast<std::size_t>(slot)].udtSample;
        Fields records;
        const auto add = [&](int index) {
            if (index >= 0 && static_cast<std::size_t>(index) < samples.size())
                records.emplace_back(
                    std::to_string(index),
                    numbers(recordValues(samples[static_cast<std::size_t>(index)])));
        };
        if (o.allRecords)
            for (int i = 0; i < static_cast<int>(samples.size()); ++i)
                add(i);
        else
            for (int i : o.records)
                add(i);
        slots.push_back(object(
            {{"nonZero", number(int64_t{nonZeroRecords(samples)})}, {"records", object(records)}}));
    }
    top.emplace_back("slots", array(slots));
    out << object(top) << "\n";
}

void printFields(const std::string& title, const Fields& fields, std::ostream& out) {
    out << title << ":";
    for (const auto& [name, value] : fields)
        out << " " << name << "=" << value;
    out << "\n";
}

void printText(const ztGraphControl& control, int16_t result, const InfoOptions& o,
               std::ostream& out) {
    const GraphState& s = control.state();
    out << "result " << result << ", run state " << control.runState() << ", version \""
        << s.version.strMainVersion << "\", history maximum " << s.version.lngHistoryMax << "\n";
    printFields("SAMPSETTING", sampSettingFields(s.sampSetting), out);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        const auto i = static_cast<std::size_t>(ch);
        Fields f = chSettingFields(s.chSetting[i]);
        for (auto& field : sampDataFields(s.sampData[i], false))
            f.push_back(field);
        f.emplace_back("dblVertScale", number(s.graphInfo.udtVertScale[i].dblVertScale));
        f.emplace_back("intZeroPos", number(int64_t{s.graphInfo.udtVertScale[i].intZeroPos}));
        printFields("CH" + std::to_string(ch), f, out);
    }
    printFields("HORZSCALE", horzFields(s.graphInfo.udtHorzScale), out);
    printFields("CURSORSTATE", cursorFields(s.graphInfo.udtCursorState), out);
    out << "intChNumber: " << s.graphInfo.intChNumber << "\n";
    printFields("HISTORYSTATE", historyFields(s.graphInfo.udtHistoryState), out);
    for (int slot = 1; slot < kHistorySlots; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        const auto& samples = s.history.udtGraphResultInfo[i].udtSample;
        out << "slot " << slot << ": " << nonZeroRecords(samples) << " records not zero, comment "
            << quoted(s.history.strComments[i]) << "\n";
        const auto show = [&](int index) {
            out << "  [" << index << "]";
            for (int64_t v : recordValues(samples[static_cast<std::size_t>(index)]))
                out << " " << v;
            out << "\n";
        };
        if (o.allRecords)
            for (int r = 0; r < static_cast<int>(samples.size()); ++r)
                show(r);
        else
            for (int r : o.records)
                show(r);
    }
}

}  // namespace

int runInfo(const Args& args, std::ostream& out, std::ostream& err) {
    InfoOptions o;
    if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
        out << kUsage;
        return 0;
    }
    if (auto problem = parseOptions(args, o)) {
        err << "ztgraph info: " << *problem << "\n" << kUsage;
        return 2;
    }
    sim::SimCommonLibrary library;
    auto control = std::make_unique<ztGraphControl>(library);
    connectToLink(*control, library);
    int16_t result = 0;
    if (o.offset) {
        library.sim().setBlockPosition(static_cast<int32_t>(*o.offset + 1));
        VERSION_INFO version;
        PROGRAM_VERSION program;
        program.lngMajor = o.major;
        program.lngMinor = o.minor;
        result = control->LoadKivFile(o.file, version, program);
    } else {
        SYS_INFO sys;
        result = control->ImportFile(o.file, sys);
    }
    if (o.json)
        printJson(*control, result, o, out);
    else
        printText(*control, result, o, out);
    return result == 0 ? 0 : 1;
}

}  // namespace zt::cli
