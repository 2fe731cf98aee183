#include "host/datamanager/terminal_text.h"

#include <algorithm>
#include <cstdio>

#include "host/datamanager/failure.h"
#include "platform/windows/code_page.h"

std::string FromTerminal(const std::string& strUtf8) {
    std::string strText;
    std::string strRefused;
    if (!Utf8ToGbk(strUtf8, &strText, &strRefused))
        throw CFailure(ExitStatus::Refused, strUtf8 + ": \"" + strRefused + "\" is not in code page 936");
    return strText;
}

void Print(const std::string& strUtf8) {
    const bool bWritten = std::fwrite(strUtf8.data(), 1, strUtf8.size(), stdout) == strUtf8.size();
    if (!bWritten || std::fflush(stdout) != 0)
        throw CFailure(ExitStatus::NoAccess, "standard output cannot be written");
}

std::string AlignedTable(const std::vector<std::vector<std::string>>& arRows) {
    // A double-byte character is two columns wide on a terminal, so bytes are columns.
    std::vector<std::size_t> arWidths;
    for (const auto& arRow : arRows) {
        arWidths.resize(std::max(arWidths.size(), arRow.size()));
        for (std::size_t i = 0; i < arRow.size(); ++i)
            arWidths[i] = std::max(arWidths[i], arRow[i].size());
    }
    std::string strTable;
    for (const auto& arRow : arRows) {
        std::string strLine;
        for (std::size_t i = 0; i < arRow.size(); ++i)
            strLine += arRow[i] + std::string(arWidths[i] - arRow[i].size() + 2, ' ');
        strLine.erase(strLine.find_last_not_of(' ') + 1);
        strTable += ToUtf8(strLine) + "\n";
    }
    return strTable;
}
