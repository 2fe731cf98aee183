#pragma once

#include <string>

#include "platform/ado/sqlite_statement.h"

/// The file at this path, UTF-8: the handle on it that was released last, where there is one and nothing
/// about the file has changed since, else a new one. Opening costs several times what reading a sample's rows
/// does, and the record classes connect anew for every sample. A released handle holds no lock and no
/// transaction. The functions of the suite's dialect are there. `nFlags` as for sqlite3_open_v2. Throws
/// CDbError with the engine's code when the file cannot be opened.
CSqliteHandle OpenSqliteFile(const std::string& strPathUtf8, int nFlags);
