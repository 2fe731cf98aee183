#pragma once

#include <optional>
#include <string>

/// What the program was called with. Texts are UTF-8.
struct CProgramOptions {
    std::string m_strRoot;    ///< the installation; empty: the one that the environment names
    std::string m_strScript;  ///< "-" is standard input; empty: no script
    std::string m_strDrawing; ///< file of the drawing to begin with; empty: a new one
    std::string m_strModule;  ///< empty: the default one; "none": none
    bool m_bQuiet = false;
};

/// Reads the command line. Instead of options the exit status when the program is to end at once: 0 after
/// --help and --version, 2 after a usage error, which is told on standard error.
std::optional<CProgramOptions> ReadOptions(int argc, char** argv, int* pStatus);
