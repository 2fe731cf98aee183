#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/ado/provider.h"
#include "platform/ado/report.h"
#include "tests/support/test_database.h"

/// A database of the test's own, and the lines that reach the text window.
class CDatabaseTest : public testing::Test {
protected:
    explicit CDatabaseTest(TestEngine engine = TestEngine::Sqlite)
        : m_database(engine) {
        SetReportSink([this](const std::string& strLine) { m_arLines.push_back(strLine); });
    }
    ~CDatabaseTest() override { SetReportSink(nullptr); }

    [[nodiscard]] std::string ConnectionText() const { return m_database.ConnectionText(); }

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

    CTestDatabase m_database;
    std::shared_ptr<CDbConnection> m_pDatabase = m_database.Connect();
    std::vector<std::string> m_arLines;
};

/// The same on each engine in turn: TEST_P, instantiated with TestEngines().
class CEngineTest : public CDatabaseTest, public testing::WithParamInterface<TestEngine> {
protected:
    CEngineTest()
        : CDatabaseTest(GetParam()) {}

    [[nodiscard]] static bool IsSqlite() { return GetParam() == TestEngine::Sqlite; }
    /// What the engine at hand calls it.
    [[nodiscard]] static const char* In(const char* pszSqlite, const char* pszPostgresql) {
        return IsSqlite() ? pszSqlite : pszPostgresql;
    }
};

using CRows = std::vector<std::string>;
