#pragma once

#include <string>
#include <string_view>
#include <vector>

// Paths as the suite writes them: in the code page, with either slash, in any case. The file system has UTF-8
// names in one case; a name in its exact spelling is preferred to one that differs by case.

/// The file system (UTF-8) path of a path in the code page. A relative one lies below base, which is such a
/// path too (empty: the current folder). True when it exists. Else *utf8 holds it with its existing folders
/// in their own spelling and the rest as given, so that it can be made; empty when bytes are no character.
/// Two dots lead back out of a folder that is not there too.
bool ResolvePath(std::string_view base, std::string_view path, std::string* utf8);

/// True for a path that begins with a slash of either kind.
bool IsAbsolutePath(std::string_view path);

/// Position of the last slash of either kind that is no trail byte, npos when there is none.
std::size_t LastSlash(std::string_view path);

/// True when two names in the code page differ by case at most.
bool SameFileName(std::string_view left, std::string_view right);

/// Whether a text (UTF-8) can be part of a file name on any system of the suite. An empty one cannot.
bool CanStandInFileName(std::string_view utf8);

/// Names in a folder (UTF-8 path) that the code page has, as code page text, in the order of their capitals,
/// without "." and "..".
std::vector<std::string> FileNames(const std::string& utf8Folder);
