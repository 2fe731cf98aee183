#include "host/datamanager/installation.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>

#include "host/datamanager/failure.h"
#include "host/datamanager/terminal_text.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/path.h"
#include "platform/windows/types.h"

namespace fs = std::filesystem;

CInstallation::CInstallation()
    : m_root(InstallationRoot())
    , m_strRoot(FromTerminal(m_root.string())) {
    if (!fs::is_regular_file(m_root / g_pInstallationIni))
        throw CFailure(ExitStatus::NoAccess, m_root.string() + ": there is no installation (no tervo.ini)");
}

std::string CInstallation::Below(const std::string& strName) const {
    return IsAbsolutePath(strName) ? strName : m_strRoot + "/" + strName;
}

CIniFile CInstallation::ProjectIni() const {
    std::array<char, MAX_PATH> szPath{};
    if (!TVToolGetProjectIni(szPath.data()))
        throw CFailure(ExitStatus::NoAccess, m_root.string() + ": the path of the project ini is too long");
    return CIniFile(szPath.data());
}

std::string CInstallation::ProjectConnect() const {
    return CIniFile(Below(g_pInstallationIni)).Text("TVTool", "ProjectConnect");
}

CInstallationLock::CInstallationLock(const CInstallation& installation)
    : m_nFile(open(installation.Root().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_nFile < 0 || flock(m_nFile, LOCK_EX) != 0)
        throw CFailure(ExitStatus::NoAccess, installation.Root().string() + ": the folder cannot be locked");
}

CInstallationLock::~CInstallationLock() {
    close(m_nFile);
}
