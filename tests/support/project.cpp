#include "tests/support/project.h"

#include "data/project_context.h"
#include "data/sql_text.h"
#include "platform/ado/report.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/profile.h"

CTestProject::CTestProject()
    : m_pDatabase(CreateSqliteDatabase(m_strDatabase)) {
    SetInstallationRoot(m_root.Path());
    g_strProjectIni = m_root.Path("Project.ini");
    g_strSettingsIni = m_root.Path("Settings.ini");
    g_strMarksIni = m_root.Path("Marks.ini");
    SetProject("GCSY", "1");
    SetProject("Database", "project.db");
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
    database.BeginTransaction();
    for (const char* pszTable :
         {"z_c_SanZhou(GCSY integer,ZKBH text,QYBH text,SYFF text,SYRQ text,UUC real,UUF real,CUC real,CUF "
          "real,"
          "CUCE real,CUFE real,CDC real,CDF real)",
          "z_c_SanZhouCSXM(GCSY integer,ZKBH text,QYBH text,SJBH integer,SHJHXH integer,WY real,SYGD "
          "real,SYZJ "
          "real,CLHXS real,GJKXYL real,CLHDS real,ZXBX real,JQPS real,KXYL real,GJPS real,JLLX tinyint)",
          "z_c_QuYang(GCSY integer,ZKBH text,QYBH text,QYSD real,QYHD real,QYHSL real,QYLX tinyint,QYSY real,"
          "QYYX real)",
          "z_g_TuCeng(GCSY integer,ZKBH text,TCCDSD real,TCHD real,TCMC text)",
          "x_GongCheng(GCSY integer,GCBH text,GCMC text,GCBZ smallint,GCSJ integer)"})
        database.Execute(std::string("create table ") + pszTable);
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
