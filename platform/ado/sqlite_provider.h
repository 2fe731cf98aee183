#pragma once

#include <memory>
#include <string_view>

#include "platform/ado/provider.h"

/// The embedded provider, `Provider=SQLite;Data Source=/path/file.db`. A statement waits up to 10 s for
/// another program's lock, or as many milliseconds as key `Lock Timeout` says.
const CDbProvider& SqliteProvider();

/// Makes an empty database file, or opens the one that is there. The path is GBK. Throws CDbError.
std::shared_ptr<CDbConnection> CreateSqliteDatabase(std::string_view strPath);
