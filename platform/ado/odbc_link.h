#pragma once

#include <sql.h>
#include <sqlext.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform/ado/odbc_engine.h"

/// A text as a driver takes it, or the room in which it puts one.
inline SQLWCHAR* OdbcText(std::u16string& strText) {
    return reinterpret_cast<SQLWCHAR*>(strText.data());
}

/// Throws the CDbError that a driver's diagnostics on a handle tell of. One line, without the names of the
/// parts that handed it on.
[[noreturn]] void ThrowOdbcError(SQLSMALLINT nHandleType, SQLHANDLE hHandle);

/// The same for a call that failed; nothing for one that went well.
void CheckOdbc(SQLRETURN nResult, SQLSMALLINT nHandleType, SQLHANDLE hHandle);

/// An open connection of a driver. Whoever works on it holds it; with the last holder it is closed, and what
/// was not committed is undone.
class COdbcLink {
public:
    /// Connects by what the driver manager takes, UTF-8. Throws CDbError.
    explicit COdbcLink(std::string_view strConnection);
    COdbcLink(const COdbcLink&) = delete;
    COdbcLink& operator=(const COdbcLink&) = delete;
    ~COdbcLink();

    [[nodiscard]] SQLHDBC Get() const { return m_hConnection; }
    [[nodiscard]] const COdbcEngine& Engine() const { return *m_pEngine; }

    /// Statements belong to one transaction from here to EndTransaction.
    void BeginTransaction();
    /// SQL_COMMIT or SQL_ROLLBACK. After a commit that failed everything is undone.
    void EndTransaction(SQLSMALLINT nHow);

private:
    void Connect(std::string_view strConnection);
    void SetAutoCommit(bool bOn);

    std::shared_ptr<void> m_pEnvironment;
    SQLHDBC m_hConnection = nullptr;
    bool m_bConnected = false;
    bool m_bTransaction = false;
    const COdbcEngine* m_pEngine = nullptr;
};
using COdbcHandle = std::shared_ptr<COdbcLink>;
