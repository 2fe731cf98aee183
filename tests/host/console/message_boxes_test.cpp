#include "host/console/message_boxes.h"

#include <gtest/gtest.h>

#include "tests/host/console/line_answers.h"

namespace {

constexpr unsigned TELLS = 0, OK_CANCEL = 1, YES_NO_CANCEL = 3, YES_NO = 4, QUESTION_ICON = 0x20;

// The result of a box that is answered by one line.
int Answer(unsigned nStyle, const char* line) {
    CLineAnswers answers({line});
    const int nResult = AnswerMessageBox(answers, "Tervo", "text", nStyle);
    EXPECT_EQ(answers.m_status, EXIT_DONE) << line;
    return nResult;
}

} // namespace

TEST(MessageBoxes, OneThatTellsIsOneLineAndTakesNone) {
    CLineAnswers answers({"next"});
    EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "one\r\ntwo\n\nthree", TELLS), 1);
    EXPECT_EQ(answers.m_strPrinted, "[Tervo] one\\ntwo\\n\\nthree\n");
    EXPECT_EQ(answers.m_lines.size(), 1U);
    EXPECT_EQ(answers.m_strPrompts, "");
}

TEST(MessageBoxes, TakeTheAnswersOfTheirButtons) {
    EXPECT_EQ(Answer(OK_CANCEL, "ok"), 1);
    EXPECT_EQ(Answer(OK_CANCEL, "cancel"), 2);
    EXPECT_EQ(Answer(YES_NO | QUESTION_ICON, "yes"), 6);
    EXPECT_EQ(Answer(YES_NO, "no"), 7);
    EXPECT_EQ(Answer(YES_NO_CANCEL, "yes"), 6);
    EXPECT_EQ(Answer(YES_NO_CANCEL, " no "), 7);
    EXPECT_EQ(Answer(YES_NO_CANCEL, "cancel"), 2);
}

TEST(MessageBoxes, AnAnswerThatTheBoxDoesNotHaveFailsTheRun) {
    const struct {
        unsigned m_nStyle;
        const char* m_line;
        int m_nResult;
    } cases[] = {{OK_CANCEL, "yes", 2},     {YES_NO, "cancel", 7}, {YES_NO_CANCEL, "ok", 2}, {YES_NO, "", 7},
                 {YES_NO, "yes please", 7}, {YES_NO, "YES", 7},    {YES_NO, "\"yes\"", 7}};
    for (const auto& each : cases) {
        CLineAnswers answers({each.m_line});
        EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "text", each.m_nStyle), each.m_nResult) << each.m_line;
        EXPECT_EQ(answers.m_status, EXIT_NO_SUCH_ANSWER) << each.m_line;
    }
}

TEST(MessageBoxes, TheEndOfTheInputFailsTheRun) {
    CLineAnswers answers({});
    EXPECT_EQ(AnswerMessageBox(answers, "Tervo", "a\nb", YES_NO_CANCEL), 2);
    EXPECT_EQ(answers.m_status, EXIT_INPUT_RAN_OUT);
    EXPECT_EQ(answers.m_strFailure, "input ran out before an answer to the box a\\nb");
}
