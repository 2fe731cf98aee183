#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/datamanager/installation.h"
#include "platform/ado/provider.h"

/// A project of an installation. Texts are GBK.
struct CProject {
    std::int32_t m_nGCSY = -1;
    std::string m_strGCBH;
    std::string m_strGCMC;
    std::int32_t m_nGCBZ = 0;
    std::string
        m_strConnect; ///< its own connection text; empty where the installation says where the database is
};

/// Whether a text can be a project's number, which is a folder's name and a value in ini files; on any system
/// of the suite.
bool CanBeProjectNumber(const std::string& strGCBH);

/// All projects by their index. One whose file has a number that cannot be one has its folder's name for it,
/// so that no file leads out of the projects' folder.
std::vector<CProject> ReadProjects(const CInstallation& installation);

/// The project of that number; CFailure (refused) where there is none.
CProject FindProject(const CInstallation& installation, const std::string& strGCBH);

/// Notes the project in its folder, which makes the folder a project.
void WriteProject(const CInstallation& installation, const CProject& project);

/// Whether the folder of that number is a project.
bool IsProject(const CInstallation& installation, const std::string& strGCBH);

/// The path of the project's own database, below the root.
std::string ProjectDatabase(const std::string& strGCBH);

/// The connection text of the project's database.
std::string ProjectConnection(const CInstallation& installation, const CProject& project);

/// A connection text for a file of the embedded database.
std::string FileConnection(const std::string& strPath);

/// Opens the project's database, which must have the suite's tables. CFailure where it cannot be had.
std::shared_ptr<CDbConnection> OpenProjectDatabase(const CInstallation& installation,
                                                   const CProject& project);
