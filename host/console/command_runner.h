#pragma once

#include "host/console/host.h"

/// Runs command lines until they end, one fails for good, or the user quits. After each, what it deferred is
/// done first: work for the application context, then the texts sent to the command line.
void RunCommands(CHost& host);

/// Runs a command from within the one that runs: the words (GBK) are its name and its first answers, the rest
/// comes from the following lines. What fails there fails the run.
CCommandResult RunNestedCommand(CHost& host, const std::vector<std::string>& arWords);
