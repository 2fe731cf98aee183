#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "data/project_context.h"
#include "platform/ado/provider.h"
#include "platform/ado/report.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "platform/windows/message_box.h"
#include "platform/windows/profile.h"
#include "tests/temp_folder.h"

/// An installation in a folder of the test's own with a running project of index 1 and the suite's tables,
/// empty. It gathers the message boxes shown (GBK) and the lines that the database layer reports.
class CSuiteTest : public testing::Test {
protected:
    CSuiteTest() {
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
    ~CSuiteTest() override {
        SetReportSink(nullptr);
        SetMessageBoxHost({});
        SetInstallationRoot("");
    }

    /// The suite's tables of a project, in the suite's column order.
    static void LayOut(CDbConnection& database) {
        database.BeginTransaction();
        for (const char* pszTable :
             {"z_c_SanZhou(GCSY integer,ZKBH text,QYBH text,SYFF text,SYRQ text,UUC real,UUF real,CUC "
              "real,CUF real,"
              "CUCE real,CUFE real,CDC real,CDF real)",
              "z_c_SanZhouCSXM(GCSY integer,ZKBH text,QYBH text,SJBH integer,SHJHXH integer,WY real,SYGD "
              "real,SYZJ "
              "real,CLHXS real,GJKXYL real,CLHDS real,ZXBX real,JQPS real,KXYL real,GJPS real,JLLX tinyint)",
              "z_c_QuYang(GCSY integer,ZKBH text,QYBH text,QYSD real,QYHD real,QYHSL real,QYLX tinyint,QYSY "
              "real,"
              "QYYX real)",
              "z_g_TuCeng(GCSY integer,ZKBH text,TCCDSD real,TCHD real,TCMC text)",
              "x_GongCheng(GCSY integer,GCBH text,GCMC text,GCBZ smallint,GCSJ integer)"})
            database.Execute(std::string("create table ") + pszTable);
        database.CommitTransaction();
    }

    static void SetProject(const char* pszKey, const char* pszValue) {
        WritePrivateProfileStringA("Project", pszKey, pszValue, g_strProjectIni);
    }

    void Execute(const std::string& strSql) { m_pDatabase->Execute(strSql); }

    /// Every row of a result, its cells joined with '|'.
    std::vector<std::string> Rows(const std::string& strSql) {
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

    CTempFolder m_root;
    std::string m_strDatabase = m_root.Path("project.db");
    std::shared_ptr<CDbConnection> m_pDatabase = CreateSqliteDatabase(m_strDatabase);
    std::vector<std::string> m_arBoxes;
    std::string m_strCaption;
    UINT m_uStyle = 0;
    int m_nAnswer = IDOK;
    std::vector<std::string> m_arLines;
};

using CTexts = std::vector<std::string>;
