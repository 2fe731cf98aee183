#pragma once

#include <string>
#include <string_view>

/// The function that stands for `+` where the engine's own `+` knows numbers only: it joins when either value
/// is text, else it adds.
inline constexpr std::string_view g_strAddFunction = "tervo_add";

/// Puts a statement of the suite's SQL dialect, UTF-8, into the engine's words. Two things change, both found
/// token by token, so literals stay as they are: `left(` is quoted, since the engine reserves the word, and
/// `a + b` becomes a call of g_strAddFunction unless both are plain numbers. All else, blanks included, comes
/// out as it went in.
std::string TranslateDialect(std::string_view strSql);
