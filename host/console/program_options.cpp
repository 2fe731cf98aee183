#include "host/console/program_options.h"

#include "host/console/answers.h"
#include "host/console/host_commands.h"

#include <CLI/CLI.hpp>

namespace {

std::string CommandHelp() {
    std::string text = "Commands of the host:\n";
    for (const CHostCommand& command : HostCommands())
        text += std::string("  ") + command.m_pName + "  " + command.m_pHelp + "\n";
    return text;
}

} // namespace

std::optional<CProgramOptions> ReadOptions(int argc, char** argv, int* pStatus) {
    CProgramOptions options;
    CLI::App app("Drawing host: runs the commands of a script.", "tvcad");
    app.add_option("--root", options.m_strRoot, "folder of the installation")->type_name("DIR");
    app.add_option("-s,--script", options.m_strScript, "run headless from a script; - reads standard input")
        ->type_name("FILE");
    app.add_option(
           "--load", options.m_strModule,
           "module to load; none loads nothing (default: the chart module beside the program, else in "
           "../lib/tervo)")
        ->type_name("FILE");
    app.add_flag("-q", options.m_bQuiet, "leave out prompts and the answers read");
    app.add_option("DRAWING", options.m_strDrawing, "file of the drawing to begin with, DWG or DXF");
    app.set_version_flag("--version", std::string("tvcad ") + TERVO_VERSION);
    app.footer(CommandHelp);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        *pStatus = app.exit(error) == 0 ? EXIT_DONE : EXIT_BAD_USAGE;
        return std::nullopt;
    }
    return options;
}
