#pragma once

#include <string>
#include <string_view>

// Whole files by their file system (UTF-8) path.

/// False when the file can't be read; *bytes is untouched then.
bool ReadFileWhole(const std::string& utf8Path, std::string* bytes);

/// Writes beside the target, flushes to the disk, then renames: a reader sees the old content or the new, and
/// a failure (false, errno tells why) leaves the old. Keeps the mode of a file that is replaced, and its
/// owner where this user may; follows a link.
bool WriteFileWhole(const std::string& utf8Path, std::string_view bytes);

/// The same, and the file that is replaced stays beside the new one with the ending .bak, in place of what
/// had that name. At every moment one of the two is there under the path.
bool WriteFileWithBackup(const std::string& utf8Path, std::string_view bytes);
