// Sub-commands of the ztgraph command-line program. Each takes its own arguments (after the
// command name) and writes what a person would see to `out`; the result is the exit status.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace zt::cli {

using Args = std::vector<std::string>;

// Builds the control on the simulated host and prints its surface.
int runShow(const Args& args, std::ostream& out, std::ostream& err);

// Draws a simulated drive run and writes the chart to a PNG, SVG or PDF file.
int runRender(const Args& args, std::ostream& out, std::ostream& err);

// Runs a capture end to end on the simulated host and writes the graph as pictures.
int runDemo(const Args& args, std::ostream& out, std::ostream& err);

// Loads a graph text file or a project block and prints the state the control then holds.
int runInfo(const Args& args, std::ostream& out, std::ostream& err);

// Writes one history slot of a graph text file as comma-separated engineering values.
int runExportCsv(const Args& args, std::ostream& out, std::ostream& err);

}  // namespace zt::cli
