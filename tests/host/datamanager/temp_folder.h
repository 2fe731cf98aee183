#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/// A folder that lives as long as the object.
class CTempFolder {
public:
    CTempFolder() {
        std::string strPattern = (std::filesystem::temp_directory_path() / "tvdata-XXXXXX").string();
        m_path = mkdtemp(strPattern.data());
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;
    ~CTempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] std::string Path(const std::string& strName = {}) const {
        return strName.empty() ? m_path.string() : (m_path / strName).string();
    }
    /// Writes a file; returns its path.
    [[nodiscard]] std::string Write(const std::string& strName, const std::string& strText) const {
        std::ofstream(m_path / strName, std::ios::binary) << strText;
        return Path(strName);
    }
    [[nodiscard]] std::string Read(const std::string& strName) const {
        std::ostringstream text;
        text << std::ifstream(m_path / strName, std::ios::binary).rdbuf();
        return text.str();
    }

private:
    std::filesystem::path m_path;
};
