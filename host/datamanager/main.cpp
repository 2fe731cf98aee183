#include "host/datamanager/command_line.h"

int main(int nArguments, char** ppArguments) {
    return RunCommandLine(nArguments, ppArguments);
}
