#include "host/datamanager/command_line.h"
#include "host/datamanager/window/run_window.h"

int main(int nArguments, char** ppArguments) {
    if (nArguments == 1)
        if (const auto nStatus = RunWindow(nArguments, ppArguments)) return *nStatus;
    return RunCommandLine(nArguments, ppArguments);
}
