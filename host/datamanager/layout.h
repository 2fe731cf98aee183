#pragma once

#include <span>

#include "host/datamanager/schema.h"
#include "platform/ado/provider.h"

/// Lays out the tables that the database lacks, without constraints, with an index on the sample's key where
/// a table has it. Tables that are there stay as they are. Throws CDbError.
void LayOutTables(CDbConnection& database, std::span<const CTable* const> arTables);
