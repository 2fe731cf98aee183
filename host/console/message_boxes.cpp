#include "host/console/message_boxes.h"

#include <vector>

#include "host/console/words.h"
#include "platform/windows/code_page.h"

namespace {

struct CButton {
    const char* m_name;
    int m_nResult;
};

constexpr CButton OK{"ok", IDOK}, CANCEL{"cancel", IDCANCEL}, YES{"yes", IDYES}, NO{"no", IDNO};

// The buttons of a box that asks, the one for giving up last; none for a box that only tells.
std::vector<CButton> Buttons(UINT nStyle) {
    switch (nStyle & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {OK, CANCEL};
    case MB_YESNOCANCEL:
        return {YES, NO, CANCEL};
    case MB_YESNO:
        return {YES, NO};
    default:
        return {};
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

std::string Utf8FromWide(const std::wstring& strWide) {
    std::string utf8;
    for (const wchar_t c : strWide)
        AppendUtf8(static_cast<char32_t>(c), &utf8);
    return utf8;
}

} // namespace

int AnswerMessageBox(CAnswers& answers, const std::string& strCaption, const std::string& strText,
                     UINT nStyle) {
    answers.Print("[" + OnOneLine(strCaption) + "] " + OnOneLine(strText));
    const std::vector<CButton> buttons = Buttons(nStyle);
    if (buttons.empty()) return OK.m_nResult;
    std::string names;
    for (const CButton& button : buttons)
        names += (names.empty() ? "" : "/") + std::string(button.m_name);
    const auto answer = answers.Next(names + "> ");
    if (!answer) {
        answers.Fail(EXIT_INPUT_RAN_OUT, "input ran out before an answer to the box " + OnOneLine(strText));
        return buttons.back().m_nResult;
    }
    std::vector<CWord> words;
    std::string reason;
    if (SplitWords(*answer, &words, &reason) && words.size() == 1)
        for (const CButton& button : buttons)
            if (!words[0].m_bQuoted && words[0].m_strText == button.m_name) return button.m_nResult;
    answers.Fail(EXIT_NO_SUCH_ANSWER, "no answer \"" + *answer + "\" to the box; it takes " + names);
    return buttons.back().m_nResult;
}

CMessageBoxHost ConsoleMessageBoxes(CAnswers& answers) {
    CMessageBoxHost host;
    host.m_show = [&answers](HWND, const std::wstring& strText, const std::wstring& strCaption, UINT nStyle) {
        return AnswerMessageBox(answers, Utf8FromWide(strCaption), Utf8FromWide(strText), nStyle);
    };
    return host;
}
