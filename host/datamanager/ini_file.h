#pragma once

#include <cstdint>
#include <string>

/// One ini file, as the suite's programs read and write it. Path and texts are GBK.
class CIniFile {
public:
    explicit CIniFile(std::string strPath)
        : m_strPath(std::move(strPath)) {}

    [[nodiscard]] const std::string& Path() const { return m_strPath; }
    /// The whole value, however long; strDefault where the key is missing.
    [[nodiscard]] std::string Text(const char* pszSection, const char* pszKey,
                                   const std::string& strDefault = {}) const;
    [[nodiscard]] std::int32_t Number(const char* pszSection, const char* pszKey,
                                      std::int32_t nDefault) const;

    /// Write one key; CFailure when the file cannot be written. A text reads back as it is, blanks and quotes
    /// at its ends included.
    void SetText(const char* pszSection, const char* pszKey, const std::string& strValue) const;
    void SetNumber(const char* pszSection, const char* pszKey, std::int32_t nValue) const;

private:
    std::string m_strPath;
};
