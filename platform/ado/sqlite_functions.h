#pragma once

struct sqlite3;

/// Registers the functions of the suite's SQL dialect on a connection: isnumeric (-1 for true), left, val,
/// string, len and the joining or adding tervo_add; trim is the engine's own. Each gives NULL for NULL, but
/// isnumeric, which answers 0. Returns the engine's result code.
int RegisterDialectFunctions(sqlite3* pDatabase);
