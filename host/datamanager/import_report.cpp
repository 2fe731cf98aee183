#include "host/datamanager/import_report.h"

#include <string>

namespace {

/// A field's text may have line ends in it, the message may not.
void AppendOnOneLine(std::string* pLine, std::string_view strText) {
    for (const char c : strText) {
        if (c == '\n' || c == '\r')
            pLine->append(c == '\n' ? "\\n" : "\\r");
        else
            pLine->push_back(c);
    }
}

} // namespace

void CImportReport::Refuse(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                           std::string_view strReason) {
    ++m_nRefusals;
    Write("", strFile, nLine, strColumn, strReason);
}

void CImportReport::Warn(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                         std::string_view strReason) {
    Write("warning: ", strFile, nLine, strColumn, strReason);
}

void CImportReport::Write(std::string_view strBegin, std::string_view strFile, std::size_t nLine,
                          std::string_view strColumn, std::string_view strReason) {
    std::string strLine(strBegin);
    strLine.append(strFile).append(":").append(std::to_string(nLine)).append(": ");
    AppendOnOneLine(&strLine, strColumn);
    strLine.append(": ");
    AppendOnOneLine(&strLine, strReason);
    strLine.append("\n");
    std::fwrite(strLine.data(), 1, strLine.size(), m_pOut);
}
