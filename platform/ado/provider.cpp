#include "platform/ado/provider.h"

#include <array>
#include <charconv>

#include "platform/ado/error.h"
#include "platform/ado/odbc_provider.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/ado/text.h"

namespace {
std::array<const CDbProvider*, 2> Providers() {
    return {&SqliteProvider(), &OdbcProvider()};
}
} // namespace

int LockTimeout(const CConnectionText& text) {
    const std::string strTimeout = text.Value("Lock Timeout");
    int nTimeout = g_nLockTimeout;
    std::from_chars(strTimeout.data(), strTimeout.data() + strTimeout.size(), nTimeout);
    return nTimeout;
}

std::string CDbConnection::ProcedureCall(std::string_view strName, std::size_t /*nParameters*/) const {
    throw CDbError(DbFailure::Statement, 0, "Database",
                   "This database has no stored procedures: " + std::string(strName));
}

std::shared_ptr<CDbConnection> OpenDbConnection(std::string_view strConnection) {
    const CConnectionText text(strConnection);
    const std::string strGiven = text.Value("Provider");
    const std::string strName = strGiven.empty() ? std::string(SqliteProvider().Name()) : strGiven;
    std::string strKnown;
    for (const CDbProvider* pProvider : Providers()) {
        if (EqualNoCase(pProvider->Name(), strName)) return pProvider->Open(text);
        strKnown += (strKnown.empty() ? "" : ", ") + std::string(pProvider->Name());
    }
    throw CDbError(DbFailure::General, 0, "Database",
                   "There is no database provider \"" + strName + "\"; there is " + strKnown + ".");
}
