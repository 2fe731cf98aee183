// What BREN sends for all samples of a project, through the plain C interface of the database: the same
// statements in the same order, each sample's row committed by itself. bench_bren_plain DATABASE anew|kept
// opens the database anew for each statement, as the module does, or once. The project's index is 1.

#include "bench/sample_names.h"
#include "data/criteria.h"
#include "data/qu_yang_record.h"
#include "data/san_zhou_csxm_record.h"
#include "data/san_zhou_record.h"
#include "data/tu_ceng_record.h"
#include "platform/ado/database_text.h"
#include "platform/ado/sql_dialect.h"
#include "platform/ado/sqlite_functions.h"

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <sqlite3.h>

namespace {
constexpr int g_nGCSY = 1;

struct CSample {
    CString m_strZKBH, m_strQYBH;
};

using CHandle = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

class CPlainProgram {
public:
    CPlainProgram(const char* pszPath, bool bKeep)
        : m_pszPath(pszPath)
        , m_bKeep(bKeep) {}

    /// Runs a statement and hands over each row. Texts are UTF-8.
    void Run(const CString& strSql, const std::function<void(sqlite3_stmt*)>& row) {
        if (!m_pDatabase) Open();
        const std::string strUtf8 = TranslateDialect(StatementToUtf8(strSql.View(), "SQLite"));
        sqlite3_stmt* pStatement = nullptr;
        if (sqlite3_prepare_v2(m_pDatabase.get(), strUtf8.c_str(), -1, &pStatement, nullptr) != SQLITE_OK)
            Fail(sqlite3_errmsg(m_pDatabase.get()));
        int nResult = SQLITE_OK;
        while ((nResult = sqlite3_step(pStatement)) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(pStatement); ++i)
                sqlite3_column_text(pStatement, i);
            row(pStatement);
        }
        if (nResult != SQLITE_DONE) Fail(sqlite3_errmsg(m_pDatabase.get()));
        sqlite3_finalize(pStatement);
        if (!m_bKeep) m_pDatabase.reset();
    }
    void Run(const CString& strSql) {
        Run(strSql, [](sqlite3_stmt*) {});
    }

private:
    void Open() {
        sqlite3* pDatabase = nullptr;
        if (sqlite3_open_v2(m_pszPath, &pDatabase, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
            RegisterDialectFunctions(pDatabase) != SQLITE_OK)
            Fail(sqlite3_errmsg(pDatabase));
        m_pDatabase = CHandle(pDatabase, sqlite3_close);
    }

    const char* m_pszPath;
    bool m_bKeep;
    CHandle m_pDatabase{nullptr, sqlite3_close};
};

CString TextOf(sqlite3_stmt* pStatement, int nColumn) {
    return reinterpret_cast<const char*>(sqlite3_column_text(pStatement, nColumn));
}

/// The samples of a list of readings, one entry for all readings of a sample.
std::vector<CSample> ListSamples(CPlainProgram& program, const CString& strCriterion) {
    std::vector<CSample> samples;
    program.Run(CSanZhouCSXMRecord().QueryFor(strCriterion), [&samples](sqlite3_stmt* pStatement) {
        const CString strZKBH = TextOf(pStatement, 1), strQYBH = TextOf(pStatement, 2);
        if (samples.empty() || samples.back().m_strQYBH != strQYBH || samples.back().m_strZKBH != strZKBH)
            samples.push_back({strZKBH, strQYBH});
    });
    return samples;
}

CString RowOf(const CSample& sample) {
    return CSanZhouRecord().QueryFor(SampleCriterion(g_nGCSY, sample.m_strZKBH, sample.m_strQYBH));
}

std::vector<CSample> ListBorehole(CPlainProgram& program, const CString& strZKBH) {
    std::vector<CSample> samples = ListSamples(program, BoreholeListCriterion(g_nGCSY, strZKBH));
    for (const CSample& sample : samples)
        program.Run(RowOf(sample));
    return samples;
}

void ReadContext(CPlainProgram& program, const CSample& sample) {
    double dDepth = 0.0, dThickness = 0.0;
    program.Run(CQuYangRecord().QueryFor(SampleCriterion(g_nGCSY, sample.m_strZKBH, sample.m_strQYBH)),
                [&](sqlite3_stmt* pStatement) {
                    dDepth = static_cast<float>(sqlite3_column_double(pStatement, 3));
                    dThickness = static_cast<float>(sqlite3_column_double(pStatement, 4));
                });
    program.Run(CTuCengRecord().QueryFor(LayerCriterion(g_nGCSY, sample.m_strZKBH, dDepth, dThickness)));
}

void StoreValues(CPlainProgram& program, const CSample& sample) {
    program.Run(
        CSanZhouCSXMRecord().QueryFor(ReadingsCriterion(g_nGCSY, sample.m_strZKBH, sample.m_strQYBH)));
    program.Run(RowOf(sample));
    program.Run("UPDATE z_c_SanZhou SET SYRQ='2026.1.1',UUC=NULL,UUF=NULL,CUC=1.5,CUF=2.5,CUCE=3.5,CUFE=4.5,"
                "CDC=NULL,CDF=NULL WHERE " +
                SampleCriterion(g_nGCSY, sample.m_strZKBH, sample.m_strQYBH));
}

void GenerateAll(CPlainProgram& program) {
    const std::vector<CSample> all = ListSamples(program, ProjectListCriterion(g_nGCSY));
    if (all.empty()) Fail("the project has no samples");
    ListBorehole(program, all.front().m_strZKBH); // what the sheet shows first
    CString strFormer;
    for (const CSample& sample : all) {
        if (sample.m_strZKBH != strFormer) ListBorehole(program, sample.m_strZKBH);
        strFormer = sample.m_strZKBH;
    }
    for (const CSample& sample : all)
        ReadContext(program, sample);
    for (const CSample& sample : all)
        StoreValues(program, sample);
}
} // namespace

int main(int nArguments, char** arguments) {
    const bool bKeep = nArguments == 3 && std::strcmp(arguments[2], "kept") == 0;
    if (nArguments != 3 || (!bKeep && std::strcmp(arguments[2], "anew") != 0))
        Fail("usage: bench_bren_plain DATABASE anew|kept");
    CPlainProgram program(arguments[1], bKeep);
    GenerateAll(program);
    return 0;
}
