#include "host/datamanager/import_report.h"

#include <string>

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
    strLine.append(strColumn).append(": ").append(strReason).append("\n");
    std::fwrite(strLine.data(), 1, strLine.size(), m_pOut);
}
