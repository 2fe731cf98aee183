#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/ado/provider.h"
#include "platform/ado/report.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/temp_folder.h"

/// A database of the test's own, and the lines that reach the text window.
class CDatabaseTest : public testing::Test {
protected:
    CDatabaseTest() {
        SetReportSink([this](const std::string& strLine) { m_arLines.push_back(strLine); });
    }
    ~CDatabaseTest() override { SetReportSink(nullptr); }

    [[nodiscard]] std::string ConnectionText() const { return "Provider=SQLite;Data Source=" + m_strPath; }

    /// Every row of a result, its cells joined with '|'.
    static std::vector<std::string> Rows(CDbConnection& connection, std::string_view strSql) {
        const std::unique_ptr<CDbCursor> pCursor = connection.Query(strSql);
        std::vector<std::string> arRows;
        for (std::size_t nRow = 0; nRow < pCursor->RowCount(); ++nRow) {
            std::string strRow;
            for (std::size_t nColumn = 0; nColumn < pCursor->Columns().size(); ++nColumn)
                strRow += (nColumn ? "|" : "") + CellText(pCursor->Cell(nRow, nColumn));
            arRows.push_back(strRow);
        }
        return arRows;
    }

    CTempFolder m_folder;
    std::string m_strPath = m_folder.Path("project.db");
    std::shared_ptr<CDbConnection> m_pDatabase = CreateSqliteDatabase(m_strPath);
    std::vector<std::string> m_arLines;
};

using CRows = std::vector<std::string>;
