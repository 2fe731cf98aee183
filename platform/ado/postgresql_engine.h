#pragma once

#include "platform/ado/odbc_engine.h"

/// PostgreSQL. A row is known by the place of its version (ctid), the transaction that wrote it (xmin) and
/// the table's file: together they hold for exactly the version that was read, also after VACUUM and VACUUM
/// FULL.
const COdbcEngine& PostgresqlEngine();
