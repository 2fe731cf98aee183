#include "host/datamanager/project.h"

#include <algorithm>
#include <array>

#include "host/datamanager/database_failure.h"
#include "host/datamanager/layout_check.h"
#include "host/datamanager/terminal_text.h"
#include "platform/ado/text.h"
#include "platform/tvtool/tvtool.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* g_pSection = "Project";
constexpr std::size_t g_nLongestName = 255; // bytes of a folder's

CIniFile ProjectFile(const CInstallation& installation, const std::string& strGCBH) {
    return CIniFile(installation.Below("Projects/" + strGCBH + "/project.ini"));
}

CProject ReadProject(const CInstallation& installation, const std::string& strFolder) {
    const CIniFile file = ProjectFile(installation, strFolder);
    CProject project;
    project.m_nGCSY = file.Number(g_pSection, "GCSY", -1);
    project.m_strGCBH = file.Text(g_pSection, "GCBH", strFolder);
    if (!CanBeProjectNumber(project.m_strGCBH)) project.m_strGCBH = strFolder;
    project.m_strGCMC = file.Text(g_pSection, "GCMC");
    project.m_nGCBZ = file.Number(g_pSection, "GCBZ", 0);
    project.m_strConnect = file.Text(g_pSection, "Connect");
    return project;
}

} // namespace

bool CanBeProjectNumber(const std::string& strGCBH) {
    const std::string strUtf8 = ToUtf8(strGCBH);
    return CanStandInFileName(strUtf8) && !IsBlank(strGCBH.front()) && !IsBlank(strGCBH.back()) &&
           strUtf8.back() != '.' && strUtf8.size() <= g_nLongestName;
}

std::vector<CProject> ReadProjects(const CInstallation& installation) {
    std::vector<CProject> arProjects;
    if (!fs::is_directory(installation.ProjectsFolder())) return arProjects;
    for (const auto& entry : fs::directory_iterator(installation.ProjectsFolder())) {
        std::string strFolder;
        // A folder whose name the code page lacks was not made by the suite.
        if (!Utf8ToGbk(entry.path().filename().string(), &strFolder)) continue;
        if (IsProject(installation, strFolder)) arProjects.push_back(ReadProject(installation, strFolder));
    }
    std::ranges::sort(arProjects, [](const CProject& a, const CProject& b) {
        return a.m_nGCSY != b.m_nGCSY ? a.m_nGCSY < b.m_nGCSY : a.m_strGCBH < b.m_strGCBH;
    });
    return arProjects;
}

bool IsProject(const CInstallation& installation, const std::string& strGCBH) {
    return fs::is_regular_file(installation.ProjectsFolder() / ToUtf8(strGCBH) / "project.ini");
}

CProject FindProject(const CInstallation& installation, const std::string& strGCBH) {
    if (!CanBeProjectNumber(strGCBH) || !IsProject(installation, strGCBH))
        throw CFailure(ExitStatus::Refused,
                       "there is no project " + ToUtf8(strGCBH) + " in " + installation.Root().string());
    return ReadProject(installation, strGCBH);
}

void WriteProject(const CInstallation& installation, const CProject& project) {
    const CIniFile file = ProjectFile(installation, project.m_strGCBH);
    file.SetNumber(g_pSection, "GCSY", project.m_nGCSY);
    file.SetText(g_pSection, "GCBH", project.m_strGCBH);
    file.SetText(g_pSection, "GCMC", project.m_strGCMC);
    file.SetNumber(g_pSection, "GCBZ", project.m_nGCBZ);
    file.SetText(g_pSection, "Connect", project.m_strConnect);
}

std::string ProjectDatabase(const std::string& strGCBH) {
    return "Projects/" + strGCBH + "/project.db";
}

std::string FileConnection(const std::string& strPath) {
    std::array<char, 1024> szConnect{};
    if (!TVToolPathToConnect(strPath.c_str(), szConnect.data()))
        throw CFailure(ExitStatus::NoAccess, ToUtf8(strPath) + ": the path is too long");
    return szConnect.data();
}

std::string ProjectConnection(const CInstallation& installation, const CProject& project) {
    if (!project.m_strConnect.empty()) return project.m_strConnect;
    std::string strForAll = installation.ProjectConnect();
    if (!strForAll.empty()) return strForAll;
    return FileConnection(installation.Below(ProjectDatabase(project.m_strGCBH)));
}

std::shared_ptr<CDbConnection> OpenProjectDatabase(const CInstallation& installation,
                                                   const CProject& project) {
    const std::string strConnection = ProjectConnection(installation, project);
    return AtDatabase(strConnection, [&] {
        auto pDatabase = OpenDbConnection(strConnection);
        CheckLayout(*pDatabase, ProjectTables());
        return pDatabase;
    });
}
