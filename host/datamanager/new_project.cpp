#include "host/datamanager/new_project.h"

#include <algorithm>
#include <ctime>
#include <set>

#include "host/datamanager/database_failure.h"
#include "host/datamanager/layout.h"
#include "host/datamanager/layout_check.h"
#include "host/datamanager/numbers.h"
#include "host/datamanager/project.h"
#include "host/datamanager/terminal_text.h"
#include "host/datamanager/transaction.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/ado/text.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t g_nLongestColumn = 255; // bytes of a text column

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

void CheckNumber(const std::string& strGCBH) {
    if (!CanBeProjectNumber(strGCBH))
        throw CFailure(ExitStatus::Refused,
                       "\"" + ToUtf8(strGCBH) + "\" cannot be a project number: it names a folder");
}

void CheckName(const std::string& strGCMC) {
    if (std::ranges::any_of(strGCMC, IsControl))
        throw CFailure(ExitStatus::Refused, "the name has a control character");
    if (strGCMC.size() > g_nLongestColumn)
        throw CFailure(ExitStatus::Refused, "the name has more than 255 bytes in code page 936");
}

/// Whether a connection text means a file of the embedded database, as one without a provider does.
bool IsFileConnection(const CConnectionText& text) {
    const std::string strProvider = text.Value("Provider");
    return strProvider.empty() || EqualNoCase(strProvider, "SQLite");
}

/// The wished connection text; a relative file counts from here, not from where a program is started later.
std::string SettledConnection(const std::string& strConnect) {
    const CConnectionText text(strConnect);
    const std::string strFile = text.Value("Data Source");
    if (strFile.empty() || !IsFileConnection(text)) return strConnect;
    const std::string strAbsolute = FromTerminal(fs::absolute(ToUtf8(strFile)).lexically_normal().string());
    if (strAbsolute == strFile) return strConnect;
    const std::string strRest = CConnectionText(text.Without("Data Source")).Without("Provider");
    return FileConnection(strAbsolute) + (strRest.empty() ? "" : ";" + strRest);
}

/// Opens the database; a file of the embedded one is made if need be.
std::shared_ptr<CDbConnection> OpenOrMake(const std::string& strConnection) {
    const CConnectionText text(strConnection);
    if (IsFileConnection(text)) CreateSqliteDatabase(text.Value("Data Source"));
    return OpenDbConnection(strConnection);
}

/// The projects of a database's register.
std::vector<CProject> ReadRegister(CDbConnection& database) {
    const auto pRows = database.Query("SELECT GCSY, GCBH, GCMC, GCBZ FROM x_GongCheng WHERE GCSY > -1");
    const auto number = [](const CDbCell& cell) { return static_cast<std::int32_t>(CellWhole(cell)); };
    std::vector<CProject> arProjects(pRows->RowCount());
    for (std::size_t i = 0; i < arProjects.size(); ++i) {
        arProjects[i].m_nGCSY = number(pRows->Cell(i, 0));
        arProjects[i].m_strGCBH = CellText(pRows->Cell(i, 1));
        arProjects[i].m_strGCMC = CellText(pRows->Cell(i, 2));
        arProjects[i].m_nGCBZ = number(pRows->Cell(i, 3));
    }
    return arProjects;
}

std::set<std::int32_t> Indices(const std::vector<CProject>& arProjects) {
    std::set<std::int32_t> setUsed;
    for (const CProject& project : arProjects)
        setUsed.insert(project.m_nGCSY);
    return setUsed;
}

/// Enters the project into the register, or joins the one of its number there.
void Register(CDbConnection& database, const std::set<std::int32_t>& setUsedHere, CProject* pProject) {
    const std::vector<CProject> arRegistered = ReadRegister(database);
    const auto it = std::ranges::find(arRegistered, pProject->m_strGCBH, &CProject::m_strGCBH);
    if (it != arRegistered.end()) {
        if (setUsedHere.contains(it->m_nGCSY))
            throw CFailure(ExitStatus::Refused, ToUtf8(pProject->m_strGCBH) + " has index " +
                                                    std::to_string(it->m_nGCSY) +
                                                    " in the database, which another project uses here");
        pProject->m_nGCSY = it->m_nGCSY;
        pProject->m_strGCMC = it->m_strGCMC;
        pProject->m_nGCBZ = it->m_nGCBZ;
        return;
    }
    std::set<std::int32_t> setUsed = Indices(arRegistered);
    setUsed.insert(setUsedHere.begin(), setUsedHere.end());
    pProject->m_nGCSY = 1;
    while (setUsed.contains(pProject->m_nGCSY))
        ++pProject->m_nGCSY;
    const std::vector<CDbValue> arRow = {std::int64_t{pProject->m_nGCSY}, pProject->m_strGCBH,
                                         pProject->m_strGCMC, std::int64_t{pProject->m_nGCBZ},
                                         std::int64_t{static_cast<std::int32_t>(std::time(nullptr))}};
    database.Execute("INSERT INTO x_GongCheng (GCSY, GCBH, GCMC, GCBZ, GCSJ) VALUES (?, ?, ?, ?, ?)", arRow);
}

/// Takes away a project's folder, made for it, unless the project came to be.
class CFolderGuard {
public:
    explicit CFolderGuard(fs::path folder)
        : m_folder(std::move(folder))
        , m_bMade(fs::create_directories(m_folder)) {}
    CFolderGuard(const CFolderGuard&) = delete;
    CFolderGuard& operator=(const CFolderGuard&) = delete;
    ~CFolderGuard() {
        std::error_code ignored;
        if (m_bMade) fs::remove_all(m_folder, ignored);
    }
    void Keep() { m_bMade = false; }

private:
    fs::path m_folder;
    bool m_bMade;
};

} // namespace

std::int32_t MakeProject(const CInstallation& installation, const CProjectWish& wish) {
    CheckNumber(wish.m_strGCBH);
    CheckName(wish.m_strGCMC);
    const CInstallationLock lock(installation);
    // Programs of the suite find a folder in any case, so two of one name would be taken for each other.
    for (const std::string& strFolder : FileNames(installation.ProjectsFolder().string()))
        if (SameFileName(strFolder, wish.m_strGCBH) && IsProject(installation, strFolder))
            throw CFailure(ExitStatus::Refused, "there is a project " + ToUtf8(strFolder) + " already");
    CProject project;
    project.m_strGCBH = wish.m_strGCBH;
    project.m_strGCMC = wish.m_strGCMC;
    project.m_nGCBZ = wish.m_nGCBZ;
    project.m_strConnect = SettledConnection(wish.m_strConnect);
    CFolderGuard folder(installation.ProjectsFolder() / ToUtf8(wish.m_strGCBH));
    const std::string strConnection = ProjectConnection(installation, project);
    AtDatabase(strConnection, [&] {
        const auto pDatabase = OpenOrMake(strConnection);
        CDbTransaction transaction(*pDatabase);
        LayOutTables(*pDatabase, ProjectTables());
        CheckLayout(*pDatabase, ProjectTables());
        Register(*pDatabase, Indices(ReadProjects(installation)), &project);
        transaction.Commit();
    });
    WriteProject(installation, project);
    folder.Keep();
    return project.m_nGCSY;
}
