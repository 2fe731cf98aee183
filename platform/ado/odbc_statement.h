#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/odbc_link.h"
#include "platform/ado/types.h"
#include "platform/ado/value.h"

/// What a driver tells of a column of a result.
struct COdbcColumn {
    std::string m_strName; ///< UTF-8
    DBTYPE m_wType = DBTYPE_EMPTY;
};

/// A statement in the engine's words, UTF-8. Failures throw CDbError.
class COdbcStatement {
public:
    explicit COdbcStatement(COdbcHandle pLink);
    COdbcStatement(const COdbcStatement&) = delete;
    COdbcStatement& operator=(const COdbcStatement&) = delete;
    ~COdbcStatement();

    /// Runs a statement once.
    void Run(std::string_view strSql, std::span<const CDbValue> arParameters);
    /// Has a statement ready for Run with values alone.
    void Prepare(std::string_view strSql);
    void Run(std::span<const CDbValue> arParameters);

    /// The number of rows that the last run inserted, changed or deleted; 0 where it tells none.
    [[nodiscard]] std::int64_t RowCount() const;
    /// The columns of the result; none where the statement gives none.
    [[nodiscard]] std::vector<COdbcColumn> Columns() const;
    /// Whether there is a further row.
    bool Fetch();

    // Columns of the row fetched, from 0; each is read at most once, from left to right. False for NULL.
    bool ReadWhole(std::size_t nColumn, std::int64_t* pValue);
    bool ReadReal(std::size_t nColumn, double* pValue);
    bool ReadText(std::size_t nColumn, std::string* pUtf8);
    bool ReadBytes(std::size_t nColumn, std::vector<unsigned char>* pBytes);

private:
    /// A value as the driver reads it while the statement runs.
    struct CParameter {
        std::u16string m_strText;
        std::span<const unsigned char> m_arBytes;
        SQLLEN m_nIndicator = SQL_NULL_DATA;
    };

    void Bind(std::span<const CDbValue> arParameters);
    void BindOne(SQLUSMALLINT nPlace, const CDbValue& value, CParameter* pParameter);
    void Note(SQLRETURN nResult);
    void Check(SQLRETURN nResult) const { CheckOdbc(nResult, SQL_HANDLE_STMT, m_hStatement); }

    COdbcHandle m_pLink;
    SQLHSTMT m_hStatement = nullptr;
    std::vector<CParameter> m_arParameters;
    std::u16string m_strBuffer; ///< texts on their way from the driver
    bool m_bRun = false;
    bool m_bNoRow = false; ///< a write that found no row opens no result either
};
