#pragma once

#include <string>

#include "platform/ado/provider.h"

/// Every database that an ODBC driver reaches: `Provider=ODBC;<what a driver manager takes>`, such as
/// `Provider=ODBC;Driver=PostgreSQL Unicode;Server=127.0.0.1;Database=gc1;Uid=me;Pwd=secret`. All keys but
/// `Provider` and `Lock Timeout` are handed on as they stand. A statement waits up to 10 s for another
/// program's lock, or as many milliseconds as key `Lock Timeout` says, where the engine is known
/// (OdbcEngine); so are rows told apart for storing.
const CDbProvider& OdbcProvider();

/// Where the database of such a connection text is, for messages, GBK: `database gc1 on 127.0.0.1:5432` or
/// `data source gc1`. Never the text itself, which may hold a password under any key.
std::string OdbcPlace(const CConnectionText& text);
