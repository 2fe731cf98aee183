#pragma once

#include "host/datamanager/database_failure.h"
#include "host/datamanager/project.h"

/// Opens the project's database and does work on it; its failures become the program's.
template <class Work>
auto AtProjectDatabase(const CInstallation& installation, const CProject& project, Work work) {
    const auto pDatabase = OpenProjectDatabase(installation, project);
    return AtDatabase(ProjectConnection(installation, project), [&] { return work(*pDatabase); });
}
