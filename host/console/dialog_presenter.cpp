#include "host/console/dialog_presenter.h"

#include "host/console/dialog_lines.h"
#include "host/console/dialog_text.h"

void CConsoleDialogPresenter::RunModal(CModalWindow& window) {
    while (window.ContinueModal()) {
        if (TakeLine(window)) continue;
        if (window.ContinueModal()) window.OnCommand(ID_CANCEL, BN_CLICKED);
        return; // one that does not take the cancel is closed all the same
    }
}

bool CConsoleDialogPresenter::TakeLine(CModalWindow& window) {
    const std::string strDialog = "dialog " + std::to_string(window.GetNumber());
    const auto line = m_answers.Next(strDialog + "> ");
    if (!line) {
        CString caption;
        window.GetWindowText(caption);
        m_answers.Fail(EXIT_INPUT_RAN_OUT, "input ran out in " + strDialog + " " + QuotedText(caption));
        return false;
    }
    try {
        for (const std::string& strPrinted : RunDialogLine(window, *line))
            m_answers.Print(strPrinted);
    } catch (const CBadDialogLine& bad) {
        m_answers.Fail(EXIT_NO_SUCH_ANSWER, strDialog + ": " + bad.what());
        return false;
    }
    return true;
}
