// The 200 fields of a title block, in one query and in one query each, against the same statements sent by
// the plain C interface of the databases, over one connection to each.

#include "drawing/title_fields.h"
#include "tests/support/project.h"
#include "tests/support/title_config.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {
constexpr int g_nFields = 200;

[[noreturn]] void Fail(const char* pWhat) {
    std::fprintf(stderr, "bench_fields: %s\n", pWhat);
    std::exit(EXIT_FAILURE);
}

/// How many queries the process has sent.
int g_nQueries = 0;

int Count(unsigned, void*, void* pStatement, void*) {
    g_nQueries += sqlite3_strnicmp(sqlite3_sql(static_cast<sqlite3_stmt*>(pStatement)), "select ", 7) == 0;
    return 0;
}

int CountOf(sqlite3* pDatabase, char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(pDatabase, SQLITE_TRACE_STMT, &Count, nullptr);
}

/// Lets every connection from now on count; each side of a comparison bears the cost of that.
class CCounting {
public:
    CCounting() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&CountOf)); }
};

/// A project with a row of 200 numbers, and a field for each.
class CWideProject {
public:
    CWideProject() {
        std::string strColumns = "gcsy integer", strValues = "1";
        for (int i = 0; i < g_nFields; ++i) {
            strColumns += ", c" + std::to_string(i) + " real";
            strValues += ", " + std::to_string(i) + ".5";
        }
        m_project.Execute("create table wide(" + strColumns + ")");
        m_project.Execute("insert into wide values(" + strValues + ")");
        for (int i = 0; i < g_nFields; ++i) {
            const std::string strColumn = "c" + std::to_string(i), strKey = "[" + strColumn + "]";
            m_config.Add({.t_peizhi = strKey.c_str(),
                          .t_tablename = "wide",
                          .t_tablefield = strColumn.c_str(),
                          .t_fieldtype = "数字",
                          .t_XiaoShu = 2});
        }
    }
    void Share(bool bShared) {
        m_config.m_pDatabase->Execute(std::string("update t_GraphTYPZ set t_hb = ") + (bShared ? "1" : "0"));
    }
    const std::string& Path() const { return m_project.m_strDatabase; }
    std::string ConfigPath() const { return m_project.Root() + "/Data/config.db"; }

private:
    CCounting m_counting; // before any connection is opened
    CTestProject m_project;
    CTitleConfig m_config{m_project.Root()};
};

CWideProject& Project(bool bShared) {
    static CWideProject s_project;
    s_project.Share(bShared);
    return s_project;
}

void Build() {
    CStringArray saKeys, saValues;
    BuildSheetFields("1", "", saKeys, saValues, 1, 1);
    if (saKeys.GetSize() != g_nFields + 3 || saValues[g_nFields - 1] != "199.50")
        Fail("a field is not filled");
}

void Engine(benchmark::State& state, bool bShared) {
    Project(bShared);
    g_nQueries = 0;
    while (state.KeepRunning())
        Build();
    state.counters["queries"] = benchmark::Counter(g_nQueries, benchmark::Counter::kAvgIterations);
}

/// The statements that the engine sends to the project for a title block.
std::vector<std::string> Statements(bool bShared) {
    std::vector<std::string> arStatements;
    std::string strColumns;
    for (int i = 0; i < g_nFields; ++i) {
        const std::string strColumn = "c" + std::to_string(i);
        strColumns += (i ? "," : "") + strColumn;
        if (!bShared) arStatements.push_back("select " + strColumn + " from wide where GCSY = 1");
    }
    if (bShared) arStatements.push_back("select " + strColumns + " from wide where gcsy = 1");
    return arStatements;
}

/// One connection and the statements one after the other: the least that the fields can cost.
class CPlainDatabase {
public:
    explicit CPlainDatabase(const std::string& strPath) {
        if (sqlite3_open_v2(strPath.c_str(), &m_pDatabase, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            Fail(sqlite3_errmsg(m_pDatabase));
    }
    ~CPlainDatabase() { sqlite3_close(m_pDatabase); }
    CPlainDatabase(const CPlainDatabase&) = delete;
    CPlainDatabase& operator=(const CPlainDatabase&) = delete;

    /// Hands each row of the result to take.
    template <class Take>
    void Query(const std::string& strStatement, Take take) {
        sqlite3_stmt* pStatement = nullptr;
        if (sqlite3_prepare_v2(m_pDatabase, strStatement.c_str(), -1, &pStatement, nullptr) != SQLITE_OK)
            Fail(sqlite3_errmsg(m_pDatabase));
        while (sqlite3_step(pStatement) == SQLITE_ROW)
            take(pStatement);
        sqlite3_finalize(pStatement);
    }

private:
    sqlite3* m_pDatabase = nullptr;
};

std::size_t ReadConfigPlainly(const std::string& strPath) {
    std::vector<std::string> arTexts;
    CPlainDatabase(strPath).Query(
        "select * from t_GraphTYPZ where t_tablename <> 'NoTable'", [&](sqlite3_stmt* pRow) {
            for (int i = 0; i < sqlite3_column_count(pRow); ++i)
                arTexts.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(pRow, i)));
        });
    return arTexts.size();
}

std::vector<std::string> ReadFieldsPlainly(const std::string& strPath,
                                           const std::vector<std::string>& arStatements) {
    CPlainDatabase database(strPath);
    std::vector<std::string> arValues;
    for (const std::string& strStatement : arStatements)
        database.Query(strStatement, [&](sqlite3_stmt* pRow) {
            for (int i = 0; i < sqlite3_column_count(pRow); ++i) {
                CString strValue;
                strValue.Format("%.2f", sqlite3_column_double(pRow, i));
                arValues.emplace_back(strValue.GetString());
            }
        });
    return arValues;
}

void Plain(benchmark::State& state, bool bShared) {
    const CWideProject& project = Project(bShared);
    const std::vector<std::string> arStatements = Statements(bShared);
    g_nQueries = 0;
    while (state.KeepRunning()) {
        if (ReadConfigPlainly(project.ConfigPath()) == 0) Fail("the configuration is not read");
        const std::vector<std::string> arValues = ReadFieldsPlainly(project.Path(), arStatements);
        if (arValues.size() != g_nFields || arValues.back() != "199.50") Fail("a value is not read");
    }
    state.counters["queries"] = benchmark::Counter(g_nQueries, benchmark::Counter::kAvgIterations);
}

BENCHMARK_CAPTURE(Plain, Merged, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Engine, Merged, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Plain, Single, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Engine, Single, false)->Unit(benchmark::kMicrosecond);
} // namespace
