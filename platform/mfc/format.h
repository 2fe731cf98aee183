#pragma once

#include <cstdarg>
#include <string>

/// Formats as printf does, with a point as decimal sign whatever the locale is. A number that is none gives
/// "nan", never "-nan". "%ls" takes wide text and gives code page text. "%n" is not allowed.
std::string FormatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// The same with a list of arguments; the list is used up.
std::string FormatTextV(const char* format, std::va_list arguments) __attribute__((format(printf, 1, 0)));
