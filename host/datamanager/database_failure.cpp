#include "host/datamanager/database_failure.h"

#include <algorithm>

#include "platform/ado/connection_text.h"
#include "platform/windows/code_page.h"

std::string DatabasePlace(const std::string& strConnection) {
    return ToUtf8(CConnectionText(strConnection).DatabaseName());
}

CFailure DatabaseFailure(const std::string& strConnection, const CDbError& error) {
    std::string strWhat =
        error.Failure() == DbFailure::Locked ? "locked by another program" : ToUtf8(error.what());
    std::ranges::replace_if(
        strWhat, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    const std::string strPlace = DatabasePlace(strConnection);
    const bool bNamed = strWhat.find(strPlace) != std::string::npos;
    return {ExitStatus::NoAccess, bNamed ? strWhat : strPlace + ": " + strWhat};
}
