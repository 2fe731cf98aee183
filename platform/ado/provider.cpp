#include "platform/ado/provider.h"

#include <array>

#include "platform/ado/error.h"
#include "platform/ado/sqlite_provider.h"
#include "platform/ado/text.h"

namespace {
std::array<const CDbProvider*, 1> Providers() {
    return {&SqliteProvider()};
}
} // namespace

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
