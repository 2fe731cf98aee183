#include "tests/support/project.h"

#include "data/project_context.h"
#include "data/sql_text.h"
#include "platform/ado/report.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/profile.h"

#include <initializer_list>

CTestProject::CTestProject(TestEngine engine)
    : m_database(engine, m_root.Path("project.db")) {
    SetInstallationRoot(m_root.Path());
    g_strProjectIni = m_root.Path("Project.ini");
    g_strSettingsIni = m_root.Path("Settings.ini");
    g_strMarksIni = m_root.Path("Marks.ini");
    SetProject("GCSY", "1");
    SetProject("Database", "project.db");
    if (engine != TestEngine::Sqlite) SetProject("Connect", m_database.ConnectionText().c_str());
    LayOut(*m_pDatabase);
    CMessageBoxHost host;
    host.m_show = [this](HWND, const std::wstring& strText, const std::wstring& strCaption, UINT uStyle) {
        m_arBoxes.push_back(GbkFromWide(strText));
        m_strCaption = GbkFromWide(strCaption);
        m_uStyle = uStyle;
        return m_nAnswer;
    };
    SetMessageBoxHost(host);
    SetReportSink([this](const std::string& strLine) { m_arLines.push_back(strLine); });
}

CTestProject::~CTestProject() {
    SetReportSink(nullptr);
    SetMessageBoxHost({});
    SetInstallationRoot("");
    for (CString* pIni : {&g_strProjectIni, &g_strSettingsIni, &g_strMarksIni})
        pIni->Empty();
}

void CTestProject::LayOut(CDbConnection& database) {
    const std::string strReal(database.RealType());
    const auto reals = [&](std::initializer_list<const char*> arNames) {
        std::string strColumns;
        for (const char* pszName : arNames)
            strColumns += std::string(",") + pszName + " " + strReal;
        return strColumns;
    };
    database.BeginTransaction();
    database.LayOutDialect();
    for (const std::string& strTable :
         {"z_c_SanZhou(GCSY integer,ZKBH text,QYBH text,SYFF text,SYRQ text" +
              reals({"UUC", "UUF", "CUC", "CUF", "CUCE", "CUFE", "CDC", "CDF"}),
          "z_c_SanZhouCSXM(GCSY integer,ZKBH text,QYBH text,SJBH integer,SHJHXH integer" +
              reals({"WY", "SYGD", "SYZJ", "CLHXS", "GJKXYL", "CLHDS", "ZXBX", "JQPS", "KXYL", "GJPS"}) +
              ",JLLX smallint",
          "z_c_QuYang(GCSY integer,ZKBH text,QYBH text" + reals({"QYSD", "QYHD", "QYHSL"}) +
              ",QYLX smallint" + reals({"QYSY", "QYYX"}),
          "z_g_TuCeng(GCSY integer,ZKBH text" + reals({"TCCDSD", "TCHD"}) + ",TCMC text",
          std::string("x_GongCheng(GCSY integer,GCBH text,GCMC text,GCBZ smallint,GCSJ integer")})
        database.Execute("create table " + strTable + ")");
    database.CommitTransaction();
}

void CTestProject::SetProject(const char* pszKey, const char* pszValue) {
    WritePrivateProfileStringA("Project", pszKey, pszValue, g_strProjectIni);
}

std::vector<std::string> CTestProject::Rows(const std::string& strSql) {
    const std::unique_ptr<CDbCursor> pCursor = m_pDatabase->Query(strSql);
    std::vector<std::string> arRows;
    for (std::size_t nRow = 0; nRow < pCursor->RowCount(); ++nRow) {
        std::string strRow;
        for (std::size_t nColumn = 0; nColumn < pCursor->Columns().size(); ++nColumn)
            strRow += (nColumn ? "|" : "") + CellText(pCursor->Cell(nRow, nColumn));
        arRows.push_back(strRow);
    }
    return arRows;
}

std::string CTestProject::Query(const std::string& strSql) {
    const std::vector<std::string> arRows = Rows(strSql);
    return arRows.empty() ? std::string() : arRows.front();
}

void CTestProject::AddMethod(const char* pZKBH, const char* pQYBH, const char* pSYFF) {
    CString strSql;
    strSql.Format("INSERT INTO z_c_SanZhou (GCSY, ZKBH, QYBH, SYFF) VALUES (1, '%s', '%s', '%s')",
                  SqlText(pZKBH).GetString(), SqlText(pQYBH).GetString(), pSYFF);
    Execute(strSql.GetString());
}

void CTestProject::AddReading(const char* pZKBH, const char* pQYBH, int nSJBH, int nSHJHXH, double dWY,
                              double dCLHDS, double dZXBX, int nJLLX) {
    CString strSql;
    strSql.Format(
        "INSERT INTO z_c_SanZhouCSXM VALUES (1, '%s', '%s', %d, %d, %f, 80, 39.1, 1, 0, %f, %f, 0, 0, 0, %d)",
        SqlText(pZKBH).GetString(), SqlText(pQYBH).GetString(), nSJBH, nSHJHXH, dWY, dCLHDS, dZXBX, nJLLX);
    Execute(strSql.GetString());
}
