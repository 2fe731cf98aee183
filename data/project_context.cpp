#include "data/project_context.h"

#include <array>

#include "data/show_message.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/profile.h"
#include "platform/windows/window_message.h"

CString g_strProjectIni;
CString g_strSettingsIni;
CString g_strMarksIni;

namespace {

constexpr std::size_t g_nConnectionSize = 1024;
constexpr std::size_t g_nProjectTextSize = 1024;

constexpr const char* g_pProjectSection = "Project";

/// What the data manager takes as: a module is going to use the project.
constexpr UINT g_nUseProjectMessage = 2534;

/// Path of the database file of SuiteDb_Common or SuiteDb_Config.
int GetDatabasePath(SuiteDb db, char* pszPath) {
    return db == SuiteDb_Common ? TVToolGetCommonDbPath(pszPath) : TVToolGetConfigDbPath(pszPath);
}

} // namespace

int GetProjectIndex() {
    const int nGCSY = ReadProjectNumber("GCSY");
    if (nGCSY >= 0) return nGCSY;
    ShowMessage("请首先启动【数据管理】并打开工程，再重试此功能！");
    return -1;
}

CString ReadProjectText(const char* pszKey) {
    std::array<char, g_nProjectTextSize> szText{};
    GetPrivateProfileStringA(g_pProjectSection, pszKey, "", szText.data(), static_cast<DWORD>(szText.size()),
                             g_strProjectIni);
    return szText.data();
}

int ReadProjectNumber(const char* pszKey) {
    return static_cast<int>(GetPrivateProfileIntA(g_pProjectSection, pszKey, -1, g_strProjectIni));
}

CString GetDataManagerClass() {
    static constexpr std::array<const char*, 5> s_arClasses = {
        "QMDBMANAGERE0", "QMDBMANAGERE1", "QMDBMANAGERE2", "QMDBMANAGERE3", "QMDBMANAGERE4"};
    const UINT uEdition = GetPrivateProfileIntA("GLOBAL", "LOCALVER", 4, g_strProjectIni);
    return uEdition < s_arClasses.size() ? s_arClasses[uEdition] : "";
}

int CheckDataManager() {
    if (const HWND hManager = FindWindowA(GetDataManagerClass(), nullptr)) {
        SendMessageA(hManager, g_nUseProjectMessage, 1, 0);
        return 1;
    }
    ShowMessage("请首先启动【数据管理】并打开工程，再重试此功能!");
    return 0;
}

int GetRootPath(CString* pRoot) {
    std::array<char, MAX_PATH> szPath{};
    if (TVToolGetRootPath(szPath.data()) != 1) return 0;
    *pRoot = szPath.data();
    return 1;
}

int GetConnectionText(SuiteDb db, CString* pConnection) {
    std::array<char, g_nConnectionSize> szConnection{};
    if (db == SuiteDb_Project) {
        if (!TVToolGetProjectConnect(szConnection.data())) return 0;
    } else {
        std::array<char, MAX_PATH> szPath{};
        if (!GetDatabasePath(db, szPath.data())) return 0;
        if (!TVToolPathToConnect(szPath.data(), szConnection.data())) return 0;
    }
    *pConnection = szConnection.data();
    return 1;
}

int ConnectionChanged(const CString& strRemembered) {
    CString strConnection;
    GetConnectionText(SuiteDb_Project, &strConnection);
    return strConnection == strRemembered ? 0 : 1;
}
