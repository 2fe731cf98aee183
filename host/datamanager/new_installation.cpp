#include "host/datamanager/new_installation.h"

#include <filesystem>

#include "host/datamanager/default_rows.h"
#include "host/datamanager/failure.h"
#include "host/datamanager/frame_choice.h"
#include "host/datamanager/frame_templates.h"
#include "host/datamanager/ini_file.h"
#include "host/datamanager/installation.h"
#include "host/datamanager/layout.h"
#include "host/datamanager/line_types.h"
#include "host/datamanager/terminal_text.h"
#include "host/datamanager/transaction.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/windows/file_bytes.h"

namespace fs = std::filesystem;

namespace {

void WriteFile(const fs::path& path, const std::string& strText) {
    if (!WriteFileWhole(path.string(), strText))
        throw CFailure(ExitStatus::NoAccess, path.string() + ": the file cannot be written");
}

void MakeDatabase(const std::string& strPath, std::span<const CTable* const> arTables,
                  void (*pfnFill)(CDbConnection&)) {
    const auto pDatabase = CreateSqliteDatabase(strPath);
    CDbTransaction transaction(*pDatabase);
    LayOutTables(*pDatabase, arTables);
    pfnFill(*pDatabase);
    transaction.Commit();
}

} // namespace

void MakeInstallation(const std::string& strRoot) {
    const fs::path root = fs::absolute(strRoot).lexically_normal();
    const std::string strBelow = FromTerminal(root.string()) + "/";
    if (fs::exists(root / g_pInstallationIni))
        throw CFailure(ExitStatus::Refused, root.string() + ": the folder already holds an installation");
    for (const char* pszFolder : {"Data", "Projects", "Templates", "Support/Block", "Output"})
        fs::create_directories(root / pszFolder);
    MakeDatabase(strBelow + "Data/common.db", CommonTables(), FillCommonDatabase);
    MakeDatabase(strBelow + "Data/config.db", ConfigTables(), FillConfigDatabase);
    WriteFile(root / "Support" / "acad.lin", LineTypeFile());
    WriteFile(root / "Templates" / g_pPortraitFile, PortraitFrame());
    WriteFile(root / "Templates" / g_pLandscapeFile, LandscapeFrame());
    WriteFile(root / "Support" / "Block" / "gltka3.dwg", TitleStrip());
    WriteFile(root / "Settings.ini", "");
    WriteFile(root / "Marks.ini", "");
    const CIniFile project(strBelow + "Project.ini");
    project.SetNumber("GLOBAL", "LOCALVER", 4);
    project.SetNumber("Project", "GCSY", -1);
    // This file makes the folder an installation, so it comes last.
    WriteFile(root / g_pInstallationIni, "[TVTool]\n"
                                         "ProjectIni=Project.ini\n"
                                         "SettingsIni=Settings.ini\n"
                                         "MarksIni=Marks.ini\n"
                                         "CommonDb=Data/common.db\n"
                                         "ConfigDb=Data/config.db\n"
                                         "ProjectConnect=\n"
                                         "Provider=SQLite\n");
}
