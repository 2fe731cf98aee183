#pragma once

#include <stdexcept>
#include <string>

/// What a database call can fail for, as far as callers treat it differently.
enum class DbFailure {
    General,       ///< whatever the engine says
    Statement,     ///< the engine does not take the statement
    NoTable,       ///< the statement names a table that is not there
    Constraint,    ///< the table's rules forbid the value
    ReadOnly,      ///< what was to be written cannot be written
    RowGone,       ///< the row was deleted by another program
    Locked,        ///< another program held the lock for the whole wait
    NotInCodePage, ///< a stored text has a character that the system code page lacks
};

/// Thrown by the database layer inside platform/ and host/; never reaches the module. what() is the
/// description, GBK.
class CDbError : public std::runtime_error {
public:
    CDbError(DbFailure failure, long lCode, std::string strSource, const std::string& strDescription)
        : std::runtime_error(strDescription)
        , m_failure(failure)
        , m_lCode(lCode)
        , m_strSource(std::move(strSource)) {}

    [[nodiscard]] DbFailure Failure() const { return m_failure; }
    /// The engine's own error code; 0 where the fault was found before the engine was asked.
    [[nodiscard]] long Code() const { return m_lCode; }
    /// The provider's name, e.g. "SQLite".
    [[nodiscard]] const std::string& Source() const { return m_strSource; }

private:
    DbFailure m_failure;
    long m_lCode;
    std::string m_strSource;
};
