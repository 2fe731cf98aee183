#include "host/console/message_boxes.h"

#include "host/console/texts.h"
#include "host/console/words.h"

#include <vector>

namespace {

// The answer that presses the button.
const char* NameOf(int nButton) {
    switch (nButton) {
    case IDYES:
        return "yes";
    case IDNO:
        return "no";
    case IDCANCEL:
        return "cancel";
    default:
        return "ok";
    }
}

std::string OnOneLine(const std::string& strText) {
    std::string line;
    for (const char c : strText) {
        if (c == '\n') {
            line += "\\n";
        } else if (c != '\r') {
            line += c;
        }
    }
    return line;
}

} // namespace

int AnswerMessageBox(CAnswers& answers, const std::string& strCaption, const std::string& strText,
                     UINT nStyle) {
    answers.Print("[" + OnOneLine(strCaption) + "] " + OnOneLine(strText));
    const std::vector<int> buttons = MessageBoxButtons(nStyle);
    if (buttons.size() == 1) return buttons.front();
    std::string names;
    for (const int nButton : buttons)
        names += (names.empty() ? "" : "/") + std::string(NameOf(nButton));
    const auto answer = answers.Next(names + "> ");
    if (!answer) {
        answers.Fail(EXIT_INPUT_RAN_OUT, "input ran out before an answer to the box " + OnOneLine(strText));
        return buttons.back();
    }
    std::vector<CWord> words;
    std::string reason;
    if (SplitWords(*answer, &words, &reason) && words.size() == 1)
        for (const int nButton : buttons)
            if (!words[0].m_bQuoted && words[0].m_strText == NameOf(nButton)) return nButton;
    answers.Fail(EXIT_NO_SUCH_ANSWER, "no answer \"" + *answer + "\" to the box; it takes " + names);
    return buttons.back();
}

CMessageBoxHost ConsoleMessageBoxes(CAnswers& answers) {
    CMessageBoxHost host;
    host.m_show = [&answers](HWND, const std::wstring& strText, const std::wstring& strCaption, UINT nStyle) {
        return AnswerMessageBox(answers, Utf8FromWide(strCaption), Utf8FromWide(strText), nStyle);
    };
    return host;
}
