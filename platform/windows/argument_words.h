#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Divides the arguments of a command line (UTF-8) as a Windows program finds them: blanks and tabs divide
/// outside double quotes; a doubled quote inside quotes is one quote; backslashes are plain but for those
/// before a quote, of which two are one, and one that is left over makes the quote plain. A quote that is
/// never closed runs to the end.
std::vector<std::string> ArgumentWords(std::string_view text);
