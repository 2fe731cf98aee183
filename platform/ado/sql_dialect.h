#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The function that stands for `+` where the engine's own `+` knows numbers only: it joins when either value
/// is text, else it adds.
inline constexpr std::string_view kAddFunction = "tervo_add";

/// Puts a statement of the suite's SQL dialect, UTF-8, into the engine's words. Two things change, both found
/// token by token, so literals stay as they are: `left(` is quoted, since the engine reserves the word, and
/// `a + b` becomes a call of kAddFunction unless both are plain numbers. All else, blanks included, comes out
/// as it went in.
std::string TranslateDialect(std::string_view strSql);

/// The same statement with the hidden row number `rowid` added as the last column, when every row of its
/// result is one row of one table: a SELECT of plain columns, without DISTINCT, grouping or joins. Else
/// nothing.
std::optional<std::string> WithRowNumber(std::string_view strSql);
