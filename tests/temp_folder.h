#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

/// A folder of the test's own, removed with everything in it when the test ends.
class CTempFolder {
public:
    CTempFolder() {
        std::string strName = (std::filesystem::temp_directory_path() / "tervo-test-XXXXXX").string();
        if (!mkdtemp(strName.data())) throw std::runtime_error("no temporary folder");
        m_path = strName;
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;
    ~CTempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    /// The path of a file in it, or of the folder itself.
    [[nodiscard]] std::string Path(std::string_view strName = {}) const {
        return strName.empty() ? m_path.string() : (m_path / strName).string();
    }

    /// Writes a file of these bytes and returns its path.
    std::string Write(std::string_view strName, std::string_view strBytes) const {
        std::ofstream(m_path / strName, std::ios::binary) << strBytes;
        return Path(strName);
    }
    /// The bytes of a file; none where there is no such file.
    [[nodiscard]] std::string Read(std::string_view strName) const {
        std::ostringstream bytes;
        bytes << std::ifstream(m_path / strName, std::ios::binary).rdbuf();
        return bytes.str();
    }

private:
    std::filesystem::path m_path;
};
