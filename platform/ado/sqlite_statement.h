#pragma once

#include <sqlite3.h>

#include <memory>
#include <span>
#include <string_view>

#include "platform/ado/value.h"

using CSqliteHandle = std::shared_ptr<sqlite3>;

/// Throws the CDbError for an engine's result code.
[[noreturn]] void ThrowSqliteError(sqlite3* pDatabase, int nResult);

/// A prepared statement in the engine's words, UTF-8, with its parameters bound. Failures throw CDbError.
class CSqliteStatement {
public:
    /// Prepares; a statement the engine does not take throws.
    CSqliteStatement(CSqliteHandle pDatabase, std::string_view strSqlUtf8);
    /// Adopts a statement that is prepared already.
    CSqliteStatement(CSqliteHandle pDatabase, sqlite3_stmt* pStatement);

    /// Binds parameter nPlace, counted from 1.
    void Bind(int nPlace, const CDbValue& value);
    void Bind(std::span<const CDbValue> arValues);
    /// Whether there is a further row.
    bool Step();
    [[nodiscard]] sqlite3_stmt* Get() const { return m_pStatement.get(); }

private:
    struct CFinalize {
        void operator()(sqlite3_stmt* pStatement) const { sqlite3_finalize(pStatement); }
    };
    CSqliteHandle m_pDatabase;
    std::unique_ptr<sqlite3_stmt, CFinalize> m_pStatement;
};
