#include "host/console/answers.h"
#include "host/console/program_options.h"
#include "host/console/scripted_run.h"
#include "platform/windows/runtime_dir.h"

#include <iostream>

int main(int argc, char** argv) {
    EnsureRuntimeDir();
    int nStatus = EXIT_DONE;
    const std::optional<CProgramOptions> options = ReadOptions(argc, argv, &nStatus);
    if (!options) return nStatus;
    if (options->m_strScript.empty()) {
        std::cerr << "tvcad: there is no window yet; give a script with --script FILE" << std::endl;
        return EXIT_BAD_USAGE;
    }
    return RunScript(*options);
}
