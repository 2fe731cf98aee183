#pragma once

#include "platform/acad/db_database.h"

#include <optional>
#include <string>

/// Why the blocks of a drawing cannot be drawn in reasonable time.
struct CBlockFault {
    std::string m_strBlock; ///< its name
    std::string m_strWhat;
};

/// Holds the blocks of a drawing that was read to what can be drawn. A fault is a block that holds itself,
/// blocks within blocks more than 100 deep, and such that show more than 10 million entities: a small file
/// may ask for any of these.
std::optional<CBlockFault> FindBlockFault(const AcDbDatabase& database);
