#pragma once
// A project on disk for tests: an installation's ini files and a SQLite database with the suite's tables.

#include "platform/windows/message_box.h"

#include <string>
#include <vector>

struct sqlite3;

/// An installation in a folder of its own with project 1 running; the module's ini paths and the installation
/// root point there, and message boxes are kept (answered OK, or as told). All of it ends with the object.
class CTestProject {
public:
    CTestProject();
    ~CTestProject();
    CTestProject(const CTestProject&) = delete;
    CTestProject& operator=(const CTestProject&) = delete;

    const std::string& Root() const { return m_strRoot; }
    const std::vector<std::string>& Boxes() const { return m_arBoxes; } ///< texts shown, GBK
    void AnswerBoxes(int nButton) { m_nAnswer = nButton; }

    // Statements are UTF-8; texts of the other calls are GBK, as the module has them.
    void Execute(const std::string& strSql);
    std::string Query(const std::string& strSql); ///< first column of the first row, UTF-8; "" without a row
    double Number(const std::string& strSql);
    void AddSample(const char* pZKBH, const char* pQYBH, const char* pSYFF);
    /// A reading of a specimen 80 mm by 39.1 mm under a ring of coefficient 1, without water and pore
    /// pressure.
    void AddReading(const char* pZKBH, const char* pQYBH, int nSJBH, int nSHJHXH, double dWY, double dCLHDS,
                    double dZXBX, int nJLLX);

private:
    std::string m_strRoot;
    sqlite3* m_pDatabase = nullptr;
    std::vector<std::string> m_arBoxes;
    int m_nAnswer = IDOK;
};
