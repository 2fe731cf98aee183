#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/datamanager/project.h"
#include "platform/ado/provider.h"

/// A sample that any table of a project knows. Texts are GBK.
struct CListedSample {
    std::string m_strZKBH;
    std::string m_strQYBH;
    std::optional<std::string> m_strSYFF; ///< nothing where no method is stored
    std::int64_t m_nReadings = 0;
};

struct CListedProject {
    CProject m_project;
    bool m_bRunning = false;
    std::vector<CListedSample> m_arSamples; ///< in natural order
    std::string m_strFault;                 ///< UTF-8: why the samples could not be read; empty if they were
};

/// The samples of one project, in natural order. Throws CDbError.
std::vector<CListedSample> ReadSamples(CDbConnection& database, std::int32_t nGCSY);

/// All projects of an installation. A database that cannot be read is told in its project's m_strFault.
std::vector<CListedProject> ListProjects(const CInstallation& installation);

/// The list for people and for programs, UTF-8. Samples that could not be read are null in JSON.
std::string ListText(const std::vector<CListedProject>& arProjects);
std::string ListJson(const std::vector<CListedProject>& arProjects);
