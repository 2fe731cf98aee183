#include "tests/support/project.h"

#include "data/project_context.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sqlite3.h>
#include <stdexcept>

namespace {
constexpr const char* g_pTables = R"(
CREATE TABLE z_c_SanZhou (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, SYFF TEXT, SYRQ TEXT, UUC REAL, UUF REAL, CUC REAL,
    CUF REAL, CUCE REAL, CUFE REAL, CDC REAL, CDF REAL);
CREATE TABLE z_c_SanZhouCSXM (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, SJBH INTEGER, SHJHXH INTEGER, WY REAL, SYGD REAL,
    SYZJ REAL, CLHXS REAL, GJKXYL REAL, CLHDS REAL, ZXBX REAL, JQPS REAL, KXYL REAL, GJPS REAL, JLLX INTEGER);
CREATE TABLE z_c_QuYang (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, QYSD REAL, QYHD REAL, QYHSL REAL, QYLX INTEGER, QYSY REAL,
    QYYX REAL);
CREATE TABLE z_g_TuCeng (GCSY INTEGER, ZKBH TEXT, TCCDSD REAL, TCHD REAL, TCMC TEXT);
CREATE TABLE x_GongCheng (GCSY INTEGER, GCBH TEXT, GCMC TEXT, GCBZ INTEGER, GCSJ INTEGER);
INSERT INTO x_GongCheng VALUES (1, 'GC-1', '', 0, 0);
)";

std::string Quoted(const char* pText) {
    std::string strText = "'";
    for (const char c : ToUtf8(pText))
        strText += c == '\'' ? std::string("''") : std::string(1, c);
    return strText + "'";
}
} // namespace

CTestProject::CTestProject() {
    std::string strPattern = std::filesystem::temp_directory_path() / "tervo-test-XXXXXX";
    if (!mkdtemp(strPattern.data())) throw std::runtime_error("no folder for the test's project");
    m_strRoot = strPattern;
    std::ofstream(m_strRoot + "/tervo.ini") << "[TVTool]\n";
    std::ofstream(m_strRoot + "/Project.ini")
        << "[Project]\nGCSY=1\nGCBH=GC-1\nGCBZ=0\nDatabase=project.db\n[GLOBAL]\nLOCALVER=4\n";
    SetInstallationRoot(m_strRoot);
    g_strProjectIni = (m_strRoot + "/Project.ini").c_str();
    g_strSettingsIni = (m_strRoot + "/Settings.ini").c_str();
    g_strMarksIni = (m_strRoot + "/Marks.ini").c_str();
    if (sqlite3_open((m_strRoot + "/project.db").c_str(), &m_pDatabase) != SQLITE_OK)
        throw std::runtime_error("no database for the test's project");
    Execute(g_pTables);
    CMessageBoxHost host;
    host.m_show = [this](HWND, const std::wstring& strText, const std::wstring&, UINT) {
        m_arBoxes.push_back(GbkFromWide(strText));
        return m_nAnswer;
    };
    SetMessageBoxHost(std::move(host));
}

CTestProject::~CTestProject() {
    SetMessageBoxHost({});
    sqlite3_close(m_pDatabase);
    SetInstallationRoot("");
    for (CString* pIni : {&g_strProjectIni, &g_strSettingsIni, &g_strMarksIni})
        pIni->Empty();
    std::filesystem::remove_all(m_strRoot);
}

void CTestProject::Execute(const std::string& strSql) {
    if (sqlite3_exec(m_pDatabase, strSql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_pDatabase));
}

std::string CTestProject::Query(const std::string& strSql) {
    sqlite3_stmt* pStatement = nullptr;
    if (sqlite3_prepare_v2(m_pDatabase, strSql.c_str(), -1, &pStatement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_pDatabase));
    std::string strValue;
    if (sqlite3_step(pStatement) == SQLITE_ROW)
        if (const unsigned char* pText = sqlite3_column_text(pStatement, 0))
            strValue = reinterpret_cast<const char*>(pText);
    sqlite3_finalize(pStatement);
    return strValue;
}

double CTestProject::Number(const std::string& strSql) {
    sqlite3_stmt* pStatement = nullptr;
    if (sqlite3_prepare_v2(m_pDatabase, strSql.c_str(), -1, &pStatement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_pDatabase));
    const double dValue = sqlite3_step(pStatement) == SQLITE_ROW ? sqlite3_column_double(pStatement, 0) : 0.0;
    sqlite3_finalize(pStatement);
    return dValue;
}

void CTestProject::AddSample(const char* pZKBH, const char* pQYBH, const char* pSYFF) {
    Execute("INSERT INTO z_c_SanZhou (GCSY, ZKBH, QYBH, SYFF) VALUES (1, " + Quoted(pZKBH) + ", " +
            Quoted(pQYBH) + ", " + Quoted(pSYFF) + ")");
}

void CTestProject::AddReading(const char* pZKBH, const char* pQYBH, int nSJBH, int nSHJHXH, double dWY,
                              double dCLHDS, double dZXBX, int nJLLX) {
    Execute("INSERT INTO z_c_SanZhouCSXM VALUES (1, " + Quoted(pZKBH) + ", " + Quoted(pQYBH) + ", " +
            std::to_string(nSJBH) + ", " + std::to_string(nSHJHXH) + ", " + std::to_string(dWY) +
            ", 80, 39.1, 1, 0, " + std::to_string(dCLHDS) + ", " + std::to_string(dZXBX) + ", 0, 0, 0, " +
            std::to_string(nJLLX) + ")");
}
