#include "host/console/message_boxes.h"

#include <gtest/gtest.h>

#include "platform/windows/code_page.h"
#include "tests/host/console/line_answers.h"

namespace {

// The result of a box that is answered by one line.
int Answer(UINT nStyle, const char* line) {
    CLineAnswers answers({line});
    const int nResult = AnswerMessageBox(answers, "Tervo", "text", nStyle);
    EXPECT_EQ(answers.m_status, EXIT_DONE) << line;
    return nResult;
}

} // namespace

TEST(MessageBoxes, OneThatTellsIsOneLineAndTakesNone) {
    CLineAnswers answers({"next"});
    EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "one\r\ntwo\n\nthree", MB_OK), 1);
    EXPECT_EQ(answers.m_strPrinted, "[Tervo] one\\ntwo\\n\\nthree\n");
    EXPECT_EQ(answers.m_lines.size(), 1U);
    EXPECT_EQ(answers.m_strPrompts, "");
}

TEST(MessageBoxes, ShowWhatIsNoCharacterAsItsReplacement) {
    CLineAnswers answers({});
    const std::wstring strText = {L'a', static_cast<wchar_t>(0xD800), L'b'};
    ConsoleMessageBoxes(answers).m_show(nullptr, strText, L"Tervo", MB_OK);
    EXPECT_EQ(answers.m_strPrinted, "[Tervo] a\xEF\xBF\xBD"
                                    "b\n");
}

TEST(MessageBoxes, TakeTheAnswersOfTheirButtons) {
    EXPECT_EQ(Answer(MB_OKCANCEL, "ok"), 1);
    EXPECT_EQ(Answer(MB_OKCANCEL, "cancel"), 2);
    EXPECT_EQ(Answer(MB_YESNO | MB_ICONQUESTION, "yes"), 6);
    EXPECT_EQ(Answer(MB_YESNO, "no"), 7);
    EXPECT_EQ(Answer(MB_YESNOCANCEL, "yes"), 6);
    EXPECT_EQ(Answer(MB_YESNOCANCEL, " no "), 7);
    EXPECT_EQ(Answer(MB_YESNOCANCEL, "cancel"), 2);
}

TEST(MessageBoxes, AnAnswerThatTheBoxDoesNotHaveFailsTheRun) {
    const struct {
        UINT m_nStyle;
        const char* m_line;
        int m_nResult;
    } cases[] = {{MB_OKCANCEL, "yes", 2}, {MB_YESNO, "cancel", 7},     {MB_YESNOCANCEL, "ok", 2},
                 {MB_YESNO, "", 7},       {MB_YESNO, "yes please", 7}, {MB_YESNO, "YES", 7},
                 {MB_YESNO, "\"yes\"", 7}};
    for (const auto& each : cases) {
        CLineAnswers answers({each.m_line});
        EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "text", each.m_nStyle), each.m_nResult) << each.m_line;
        EXPECT_EQ(answers.m_status, EXIT_NO_SUCH_ANSWER) << each.m_line;
    }
}

TEST(MessageBoxes, TheEndOfTheInputFailsTheRun) {
    CLineAnswers answers({});
    EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "a\nb", MB_YESNOCANCEL), 2);
    EXPECT_EQ(answers.m_status, EXIT_INPUT_RAN_OUT);
    EXPECT_EQ(answers.m_strFailure, "input ran out before an answer to the box a\\nb");
}

TEST(MessageBoxes, AnswerTheBoxesOfTheProcess) {
    CLineAnswers answers({"no"});
    SetMessageBoxHost(ConsoleMessageBoxes(answers));
    EXPECT_EQ(MessageBoxA(nullptr, "是否入库?", "提示", MB_YESNO), IDNO);
    SetMessageBoxHost({});
    EXPECT_EQ(answers.m_strPrinted, ToUtf8("[提示] 是否入库?\n"));
}
