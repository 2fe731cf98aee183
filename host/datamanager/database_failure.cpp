#include "host/datamanager/database_failure.h"

#include <algorithm>

#include "platform/ado/connection_text.h"
#include "platform/ado/odbc_provider.h"
#include "platform/windows/code_page.h"

std::string DatabasePlace(const std::string& strConnection) {
    const CConnectionText text(strConnection);
    const std::string strFile = text.Value("Data Source");
    if (!strFile.empty()) return ToUtf8(strFile);
    return ToUtf8(OdbcPlace(text));
}

CFailure DatabaseFailure(const std::string& strConnection, const CDbError& error) {
    std::string strWhat =
        error.Failure() == DbFailure::Locked ? "locked by another program" : ToUtf8(error.what());
    std::ranges::replace_if(
        strWhat, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    const std::string strPlace = DatabasePlace(strConnection);
    if (!strWhat.starts_with(strPlace)) strWhat.insert(0, strPlace + ": ");
    return {ExitStatus::NoAccess, strWhat};
}
