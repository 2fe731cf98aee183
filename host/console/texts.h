#pragma once
// The edge between the process's own texts and UTF-8, for what the host reads and shows.

#include <string>
#include <string_view>

/// A script's text in the system code page; throws CRunFailure that names the character it lacks.
std::string GbkAnswer(std::string_view utf8);

/// The same as wide text.
std::wstring WideAnswer(std::string_view utf8);

/// Wide text as UTF-8; what is no character becomes U+FFFD.
std::string Utf8FromWide(std::wstring_view wide);
