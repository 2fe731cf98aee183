#pragma once

#include "host/console/host.h"

/// Runs the script's command lines until it ends, fails or quits.
void RunCommands(CHost& host);
