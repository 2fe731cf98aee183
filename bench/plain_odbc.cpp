#include "bench/plain_odbc.h"

#include "bench/sample_names.h"

#include <benchmark/benchmark.h>
#include <sql.h>
#include <sqlext.h>

#include <array>

namespace {
SQLCHAR* Text(std::string& strText) {
    return reinterpret_cast<SQLCHAR*>(strText.data());
}

struct CPlainRow {
    std::array<SQLINTEGER, 4> m_arWhole; // GCSY, SJBH, SHJHXH, JLLX
    std::array<char, 256> m_szZKBH;
    std::array<char, 256> m_szQYBH;
    std::array<float, 10> m_arValues;
};

void BindPlainRow(SQLHSTMT hStatement, CPlainRow* pRow) {
    static SQLLEN s_nIndicator;
    const auto bind = [&](int nColumn, SQLSMALLINT nType, void* pPlace, std::size_t nBytes) {
        SQLBindCol(hStatement, static_cast<SQLUSMALLINT>(nColumn), nType, pPlace, static_cast<SQLLEN>(nBytes),
                   &s_nIndicator);
    };
    constexpr std::array arWhole = {1, 4, 5, 16};
    for (std::size_t i = 0; i < arWhole.size(); ++i)
        bind(arWhole[i], SQL_C_SLONG, &pRow->m_arWhole[i], sizeof(SQLINTEGER));
    bind(2, SQL_C_CHAR, pRow->m_szZKBH.data(), pRow->m_szZKBH.size());
    bind(3, SQL_C_CHAR, pRow->m_szQYBH.data(), pRow->m_szQYBH.size());
    for (int i = 0; i < 10; ++i)
        bind(6 + i, SQL_C_FLOAT, &pRow->m_arValues[static_cast<std::size_t>(i)], sizeof(float));
}

int ReadPlainSample(SQLHENV hEnvironment, std::string& strConnection, int nSample, double* pSum) {
    SQLHDBC hConnection = nullptr;
    SQLHSTMT hStatement = nullptr;
    SQLAllocHandle(SQL_HANDLE_DBC, hEnvironment, &hConnection);
    if (!SQL_SUCCEEDED(SQLDriverConnect(hConnection, nullptr, Text(strConnection), SQL_NTS, nullptr, 0,
                                        nullptr, SQL_DRIVER_NOPROMPT)))
        Fail("the plain program cannot connect");
    SQLAllocHandle(SQL_HANDLE_STMT, hConnection, &hStatement);
    std::string strSql = "SELECT * FROM z_c_SanZhouCSXM WHERE GCSY > -1 and GCSY = 1 AND ZKBH = '" +
                         BoreholeOf(nSample) + "' AND QYBH = '" + SampleOf(nSample) +
                         "' ORDER BY GCSY,ZKBH,QYBH,SJBH,SHJHXH";
    if (!SQL_SUCCEEDED(SQLExecDirect(hStatement, Text(strSql), SQL_NTS)))
        Fail("the plain program cannot read");
    CPlainRow row;
    BindPlainRow(hStatement, &row);
    int nRows = 0;
    for (; SQL_SUCCEEDED(SQLFetch(hStatement)); ++nRows)
        *pSum += row.m_arValues[5];
    SQLFreeHandle(SQL_HANDLE_STMT, hStatement);
    SQLDisconnect(hConnection);
    SQLFreeHandle(SQL_HANDLE_DBC, hConnection);
    return nRows;
}
} // namespace

void ReadSamplesByPlainOdbc(std::string strConnection) {
    SQLHENV hEnvironment = nullptr;
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &hEnvironment);
    SQLSetEnvAttr(hEnvironment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    double dSum = 0.0;
    int nRows = 0;
    for (int nSample = 0; nSample < g_nSamples; ++nSample)
        nRows += ReadPlainSample(hEnvironment, strConnection, nSample, &dSum);
    if (nRows != g_nSamples * g_nReadings) Fail("the plain program did not read every row");
    benchmark::DoNotOptimize(dSum);
    SQLFreeHandle(SQL_HANDLE_ENV, hEnvironment);
}
