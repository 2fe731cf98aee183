#pragma once

#include <span>

#include "host/datamanager/schema.h"
#include "platform/ado/provider.h"

/// Makes sure that the tables are there with their columns in the suite's order, by which its programs read;
/// further columns may follow. Throws CDbError that names the table and the first column that is another, or
/// what the engine says of a table it cannot read.
void CheckLayout(CDbConnection& database, std::span<const CTable* const> arTables);
