// ztgraph: runs the graph component on the simulated host from the command line.
#include <iostream>
#include <string_view>

#include "cli/commands.h"

namespace {

struct Command {
    std::string_view name;
    int (*run)(const zt::cli::Args&, std::ostream&, std::ostream&);
    std::string_view summary;
};

constexpr Command kCommands[] = {
    {"demo", zt::cli::runDemo, "capture a drive run on the simulated host and write its graph"},
    {"show", zt::cli::runShow, "build the control on the simulated host and print its surface"},
    {"render", zt::cli::runRender, "draw a simulated drive run to a PNG, SVG or PDF file"},
    {"export-csv", zt::cli::runExportCsv, "write one graph of a graph text file as CSV"},
    {"info", zt::cli::runInfo, "load a graph text file or project block and print its state"},
};

void usage(std::ostream& out) {
    out << "usage: ztgraph <command> [options]\n\ncommands:\n";
    for (const Command& c : kCommands)
        out << "  " << c.name << "\t" << c.summary << "\n";
    out << "\n'ztgraph <command> --help' describes a command's options.\n";
}

}  // namespace

int main(int argc, char** argv) {
    zt::cli::Args args(argv + 1, argv + argc);
    if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
        usage(std::cout);
        return 0;
    }
    for (const Command& c : kCommands) {
        if (args[0] == c.name) {
            args.erase(args.begin());
            try {
                return c.run(args, std::cout, std::cerr);
            } catch (const std::exception& e) {
                std::cerr << "ztgraph " << c.name << ": " << e.what() << "\n";
                return 1;
            }
        }
    }
    std::cerr << "ztgraph: unknown command '" << args[0] << "'\n";
    usage(std::cerr);
    return 2;
}
