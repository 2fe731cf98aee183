#pragma once

#include <string>
#include <string_view>

/// Puts a statement of the suite's SQL dialect, UTF-8, into PostgreSQL's words. What postgresql.sql defines
/// goes as it stands; changed are, token by token: `left(`, which is PostgreSQL's own with another meaning;
/// texts made by `string`, `trim` and `left`, which compare by code point whatever the database's collation;
/// literals beside `+`, which become texts; literals with a backslash, which stands for itself under every
/// setting; names in brackets or back quotes, which mean columns in any case; comments, which drivers
/// misread; and the semicolon at the end.
std::string TranslateForPostgresql(std::string_view strSql);

/// An INSERT of one row of parameters, in the engine's words, made to insert nRows of them; empty for any
/// other statement.
std::string InsertOfRows(std::string_view strSql, std::size_t nRows);
