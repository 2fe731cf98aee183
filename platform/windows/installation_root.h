#pragma once

#include <string>

/// Sets the installation's folder (UTF-8 path) for this process; empty goes back to the environment's.
void SetInstallationRoot(const std::string& utf8Root);

/// The installation's folder as an absolute UTF-8 path without a slash at its end: what was set, else
/// TERVO_ROOT, else tervo in XDG_DATA_HOME or in ~/.local/share. It need not exist.
std::string InstallationRoot();

/// The same with its links followed, for one name of one folder; as it stands where it doesn't exist.
std::string RealInstallationRoot();
