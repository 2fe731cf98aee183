#include "host/datamanager/import_report.h"

#include "host/datamanager/failure.h"

namespace {

constexpr std::size_t g_nLongestText = 600; // bytes; what a column can hold is told whole
constexpr std::size_t g_nStart = 400;
constexpr std::size_t g_nEnd = 150;

bool IsInCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// A field may be of any length, the message may not: its start and its end, which says what is wrong.
std::string Shortened(std::string_view strText) {
    if (strText.size() <= g_nLongestText) return std::string(strText);
    std::size_t nStart = g_nStart, nEnd = strText.size() - g_nEnd;
    while (nStart > 0 && IsInCharacter(strText[nStart]))
        --nStart;
    while (nEnd < strText.size() && IsInCharacter(strText[nEnd]))
        ++nEnd;
    return std::string(strText.substr(0, nStart)).append("...").append(strText.substr(nEnd));
}

/// A field's text may have line ends in it, the message may not.
void AppendOnOneLine(std::string* pLine, std::string_view strText) {
    for (const char c : Shortened(strText)) {
        if (c == '\n' || c == '\r')
            pLine->append(c == '\n' ? "\\n" : "\\r");
        else
            pLine->push_back(c);
    }
}

} // namespace

std::string RemarkLine(const CImportRemark& remark) {
    std::string strLine = remark.m_bRefusal ? "" : "warning: ";
    strLine.append(remark.m_strFile).append(":").append(std::to_string(remark.m_nLine)).append(": ");
    AppendOnOneLine(&strLine, remark.m_strColumn);
    strLine.append(": ");
    AppendOnOneLine(&strLine, remark.m_strReason);
    return strLine;
}

void CImportReport::Refuse(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                           std::string_view strReason) {
    ++m_nRefusals;
    m_fnListener({true, std::string(strFile), nLine, std::string(strColumn), std::string(strReason)});
}

void CImportReport::Warn(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                         std::string_view strReason) {
    m_fnListener({false, std::string(strFile), nLine, std::string(strColumn), std::string(strReason)});
}

void CImportReport::TellProgress(std::uintmax_t nRead) const {
    if (m_fnProgress && !m_fnProgress(nRead))
        throw CFailure(ExitStatus::Refused, "the import was cancelled, nothing came in");
}
