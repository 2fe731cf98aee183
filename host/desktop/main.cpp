#include "host/console/answers.h"
#include "host/console/program_options.h"
#include "host/console/scripted_run.h"
#include "host/desktop/desktop_run.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/runtime_dir.h"

#include <iostream>

int main(int argc, char** argv) {
    EnsureRuntimeDir();
    int nStatus = EXIT_DONE;
    const std::optional<CProgramOptions> options = ReadOptions(argc, argv, &nStatus);
    if (!options) return nStatus;
    SetInstallationRoot(options->m_strRoot);
    std::string strRootGbk, strRefused;
    if (!Utf8ToGbk(InstallationRoot(), &strRootGbk, &strRefused)) {
        std::cerr << "tvcad: the system code page lacks the character " << strRefused << " of the root "
                  << InstallationRoot() << std::endl;
        return EXIT_BAD_USAGE;
    }
    if (!options->m_strScript.empty()) return RunScript(*options, strRootGbk);
    if (const std::optional<int> status = RunDesktop(*options, strRootGbk)) return *status;
    std::cerr << "tvcad: there is no display for its window; give a script with --script FILE" << std::endl;
    return EXIT_BAD_USAGE;
}
