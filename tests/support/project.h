#pragma once
// A project on disk for tests: an installation's ini files and a real database with the suite's tables,
// empty.

#include "platform/ado/provider.h"
#include "platform/windows/message_box.h"
#include "tests/support/test_database.h"
#include "tests/temp_folder.h"

#include <memory>
#include <string>
#include <vector>

/// An installation in a folder of the test's own with project 1 running. The module's ini paths and the
/// installation root point there; message boxes (GBK) and the lines that the database layer reports are kept.
/// Statements are GBK.
class CTestProject {
public:
    explicit CTestProject(TestEngine engine = TestEngine::Sqlite);
    ~CTestProject();
    CTestProject(const CTestProject&) = delete;
    CTestProject& operator=(const CTestProject&) = delete;

    std::string Root() const { return m_root.Path(); }
    const std::vector<std::string>& Boxes() const { return m_arBoxes; }

    /// The suite's tables of a project, in the suite's column order.
    static void LayOut(CDbConnection& database);
    /// Writes a key of section Project of the project ini.
    static void SetProject(const char* pszKey, const char* pszValue);

    void Execute(const std::string& strSql) { m_pDatabase->Execute(strSql); }
    /// Every row of a result, its cells joined with '|'.
    std::vector<std::string> Rows(const std::string& strSql);
    /// The first row; empty when there is none.
    std::string Query(const std::string& strSql);
    void AddMethod(const char* pZKBH, const char* pQYBH, const char* pSYFF);
    /// A reading of a specimen 80 mm by 39.1 mm under a ring of coefficient 1, without water and pore
    /// pressure.
    void AddReading(const char* pZKBH, const char* pQYBH, int nSJBH, int nSHJHXH, double dWY, double dCLHDS,
                    double dZXBX, int nJLLX);

    CTempFolder m_root;
    CTestDatabase m_database;
    std::string m_strDatabase = m_database.File(); ///< of the embedded engine
    std::shared_ptr<CDbConnection> m_pDatabase = m_database.Connect();
    std::vector<std::string> m_arBoxes;
    std::string m_strCaption; ///< of the last box
    UINT m_uStyle = 0;
    int m_nAnswer = IDOK; ///< to the next boxes
    std::vector<std::string> m_arLines;
};
