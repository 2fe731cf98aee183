#pragma once

#include "host/datamanager/installation.h"
#include "host/datamanager/project.h"

/// Makes the project the running one and has a resident data manager for it: the one that runs takes it over,
/// else this process becomes it (bForeground) or starts it in the background. Prints its process id once it
/// answers. Throws CFailure and CDbError.
void OpenProject(const CInstallation& installation, const CProject& project, bool bForeground);

/// Ends the resident data manager, if there is one, and leaves no project running.
void CloseProject(const CInstallation& installation);
