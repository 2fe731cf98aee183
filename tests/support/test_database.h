#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <thread>

#include "platform/ado/provider.h"
#include "tests/platform/ado/locking_process.h"
#include "tests/temp_folder.h"

/// The engines that a test runs on.
enum class TestEngine { Sqlite, Postgresql };

void PrintTo(TestEngine engine, std::ostream* pStream);

/// For INSTANTIATE_TEST_SUITE_P: all engines. The tests on PostgreSQL run as one entry of ctest, on one
/// server; they are told by their name (tervo_tests).
inline auto TestEngines() {
    return testing::Values(TestEngine::Sqlite, TestEngine::Postgresql);
}
std::string TestEngineName(const testing::TestParamInfo<TestEngine>& info);

/// An empty database of the test's own, removed when the test ends.
class CTestDatabase {
public:
    /// In a file of that path where the engine is the embedded one, else in one of its own.
    explicit CTestDatabase(TestEngine engine, std::string strFile = {});
    CTestDatabase(const CTestDatabase&) = delete;
    CTestDatabase& operator=(const CTestDatabase&) = delete;
    ~CTestDatabase();

    [[nodiscard]] TestEngine Engine() const { return m_engine; }
    [[nodiscard]] const std::string& ConnectionText() const { return m_strConnection; }
    /// A further connection to it.
    [[nodiscard]] std::shared_ptr<CDbConnection> Connect() const { return OpenDbConnection(m_strConnection); }
    /// Of the embedded engine alone.
    [[nodiscard]] const std::string& File() const { return m_strFile; }
    /// Ends all connections but those of a file.
    void Break() const;

private:
    TestEngine m_engine;
    CTempFolder m_folder;
    std::string m_strFile;
    std::string m_strName; ///< on the server
    std::string m_strConnection;
};

/// Another program that has locked every table of a database until this object goes, or for nMilliseconds if
/// that is not 0.
class CDatabaseLock {
public:
    explicit CDatabaseLock(const CTestDatabase& database, int nMilliseconds = 0);

private:
    std::unique_ptr<CLockingProcess> m_pProcess;
    std::shared_ptr<CDbConnection> m_pOther;
    std::jthread m_release;
};
