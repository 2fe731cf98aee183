#pragma once

#include <cstdint>
#include <string>

#include "host/datamanager/installation.h"

/// What a new project shall be, GBK.
struct CProjectWish {
    std::string m_strGCBH;
    std::string m_strGCMC;
    std::int16_t m_nGCBZ = 0;
    std::string m_strConnect; ///< empty for a database of its own in the project's folder
};

/// Makes a project and lays out the tables that its database lacks. A number that stands in the database's
/// register already is joined: its index, name and standard hold. Returns the index. Throws CFailure and
/// CDbError.
std::int32_t MakeProject(const CInstallation& installation, const CProjectWish& wish);
