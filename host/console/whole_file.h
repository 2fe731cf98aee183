#pragma once

#include <filesystem>
#include <string>

/// Writes the file whole: beside the target first, flushed, then renamed. False with the reason (UTF-8), and
/// what stood there stays.
bool WriteWholeFile(const std::filesystem::path& path, const std::string& strContent, std::string* pReason);
