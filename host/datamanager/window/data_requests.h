#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/datamanager/listing.h"
#include "host/datamanager/new_project.h"
#include "host/datamanager/row_texts.h"
#include "host/datamanager/window/sample_readings.h"

// What the window asks of the data manager; each runs on the worker's thread, opens what it needs there, and
// throws what the data manager throws. Texts and project numbers are GBK, paths UTF-8.

/// An installation and its projects.
struct CInstallationList {
    std::string m_strRoot;
    std::vector<CListedProject> m_arProjects;
};

/// Goes to the installation of a folder; one without an installation leaves the present one in force.
CInstallationList GoToInstallation(const std::string& strRoot);
/// Makes an installation in a folder and goes to it.
CInstallationList MakeAndGoToInstallation(const std::string& strRoot);
/// The present installation as it is now.
CInstallationList ListInstallation();

/// What the user typed for a new project, UTF-8.
struct CTypedProject {
    std::string m_strGCBH, m_strGCMC, m_strConnect;
    std::int16_t m_nGCBZ = 0;
};
/// Makes a project and gives its number, GBK.
std::string MakeTypedProject(const CTypedProject& typed);

/// Runs the program's own call that makes the project the running one: the resident data manager is a child
/// without threads of its parent, which this process no longer is. Gives what the call printed last.
std::string OpenAsRunning(const std::string& strProgram, const std::string& strGCBH);
/// Leaves no project running; gives true.
bool CloseRunning();

std::vector<CRowTexts> ReadProjectResults(const std::string& strGCBH);
/// Writes results to a file as CSV; gives true.
bool WriteResults(const std::string& strFile, const std::vector<CRowTexts>& arRows);
CSampleReadings ReadSample(const std::string& strGCBH, const std::string& strZKBH,
                           const std::string& strQYBH);
