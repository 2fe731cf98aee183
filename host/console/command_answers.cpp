#include "host/console/command_answers.h"

#include "host/console/texts.h"
#include "platform/acad/ap_document_manager.h"

void CCommandAnswers::Fail(CExitStatus status, const std::string& strWhat) {
    if (!m_fault) m_fault = CRunFault{status, strWhat};
}

std::optional<std::string> CCommandAnswers::TakeTyped(const std::string& strPrompt) {
    AcApDocument* const pDocument = acDocManagerPtr()->curDocument();
    if (!pDocument) return std::nullopt;
    const std::optional<CTypedLine> line = pDocument->TypedText().TakeLine();
    if (!line) return std::nullopt;
    std::string strAnswer = line->m_bEscape ? g_szEscape : Utf8FromWide(line->m_strText);
    if (line->m_bEcho) ShowAnswered(strPrompt, strAnswer);
    return strAnswer;
}
