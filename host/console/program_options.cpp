#include "host/console/program_options.h"

#include "host/console/answers.h"
#include "host/console/host_commands.h"

#include <CLI/CLI.hpp>

namespace {

constexpr const char* g_pSurroundings = R"(
Exit status of a run from a script:
  0  it ran to its end
  2  bad usage; also when there is neither a script nor a display for the window
  3  the script ran out in the middle of a command or dialog
  4  a file could not be read or written, or a module did not load
  5  an answer that is none: no such command, control or entry, a bad point

Environment:
  TERVO_ROOT                                 the installation, unless --root names it
  XDG_DATA_HOME (~/.local/share)             without either: the installation is its folder tervo
  XDG_CONFIG_HOME (~/.config)                tervo/tvcad.ini keeps the window's settings
  XDG_STATE_HOME (~/.local/state)            tervo/autosave keeps copies of changed drawings
  XDG_RUNTIME_DIR                            where the data manager is reached
  DISPLAY, WAYLAND_DISPLAY, QT_QPA_PLATFORM  one of them set: there is a display
)";

std::string CommandHelp() {
    std::string text =
        "Commands, one a line of the script or of the command line in the window; modules add theirs:\n";
    for (const CHostCommand& command : HostCommands())
        text += std::string("  ") + command.m_pName + "  " + command.m_pHelp + "\n";
    return text + g_pSurroundings;
}

} // namespace

std::optional<CProgramOptions> ReadOptions(int argc, char** argv, int* pStatus) {
    CProgramOptions options;
    CLI::App app("Draws, opens and plots charts of triaxial tests: at its window, or headless from a script.",
                 "tvcad");
    app.add_option("--root", options.m_strRoot, "folder of the installation")->type_name("DIR");
    app.add_option(
           "-s,--script", options.m_strScript,
           "run headless from a script, then end; - reads standard input; without it the window opens")
        ->type_name("FILE");
    app.add_option(
           "--load", options.m_strModule,
           "module to load; none loads nothing (default: the chart module beside the program, else in "
           "../lib/tervo)")
        ->type_name("FILE");
    app.add_flag("-q", options.m_bQuiet, "leave out prompts and the answers read");
    app.add_option("DRAWING", options.m_strDrawing, "file of the drawing to begin with, DWG or DXF")
        ->type_name("");
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
