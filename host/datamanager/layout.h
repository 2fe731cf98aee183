#pragma once

#include <span>

#include "host/datamanager/schema.h"
#include "platform/ado/provider.h"

/// Lays out what the database lacks: the functions of the suite's dialect, and the tables, without
/// constraints, with an index on the sample's key where a table has it. Tables that are there stay as they
/// are. Throws CDbError.
void LayOutTables(CDbConnection& database, std::span<const CTable* const> arTables);
