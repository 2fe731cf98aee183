#pragma once

#include <filesystem>
#include <string>

#include "host/datamanager/ini_file.h"

/// An installation's folder and what lies in it. File system paths are UTF-8, texts for ini files GBK.
class CInstallation {
public:
    /// The installation at the folder that holds for this process. CFailure where there is none, or where the
    /// path has a character that the code page lacks.
    CInstallation();

    [[nodiscard]] const std::filesystem::path& Root() const { return m_root; }
    /// The running project's ini file.
    [[nodiscard]] CIniFile ProjectIni() const;
    /// The connection text that holds for every project without one of its own; mostly empty.
    [[nodiscard]] std::string ProjectConnect() const;
    [[nodiscard]] std::filesystem::path ProjectsFolder() const { return m_root / "Projects"; }
    [[nodiscard]] std::filesystem::path LogFile() const { return m_root / "datamanager.log"; }
    /// The path of a file named in an ini file or table: below the root unless absolute, GBK.
    [[nodiscard]] std::string Below(const std::string& strName) const;

private:
    std::filesystem::path m_root; ///< absolute
    std::string m_strRoot;        ///< GBK
};

/// The installation's own ini file in a root.
inline constexpr const char* g_pInstallationIni = "tervo.ini";

/// Only one call at a time changes an installation; waits for its turn.
class CInstallationLock {
public:
    explicit CInstallationLock(const CInstallation& installation);
    CInstallationLock(const CInstallationLock&) = delete;
    CInstallationLock& operator=(const CInstallationLock&) = delete;
    ~CInstallationLock();

private:
    int m_nFile;
};
