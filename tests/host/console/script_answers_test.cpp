#include "host/console/script_answers.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

class ScriptAnswers : public testing::Test {
protected:
    CScriptAnswers& Open(const std::string& strScript) {
        m_input.str(strScript);
        return m_answers.emplace("script", m_input, m_output, false, true);
    }
    std::istringstream m_input;
    CTextOutput m_output;
    std::optional<CScriptAnswers> m_answers;
};

} // namespace

TEST_F(ScriptAnswers, GivesTheLinesWithoutCommentsAndCarriageReturns) {
    CScriptAnswers& answers = Open(";c\na\r\n;c\n\n b ;c\n;");
    EXPECT_EQ(answers.Next(""), "a");
    EXPECT_EQ(answers.Next(""), "");
    EXPECT_EQ(answers.NextCommandLine(), " b ;c");
    EXPECT_EQ(answers.NextCommandLine(), std::nullopt);
    EXPECT_FALSE(answers.HasFailed());
}

TEST_F(ScriptAnswers, AnAnswerBeyondTheEndFailsAtTheLineReadLast) {
    CScriptAnswers& answers = Open("a\n;comment\nb\n");
    answers.Next("");
    answers.Next("");
    EXPECT_EQ(answers.Next(""), std::nullopt);
    ASSERT_TRUE(answers.HasFailed());
    EXPECT_EQ(answers.Fault()->m_status, EXIT_INPUT_RAN_OUT);
    EXPECT_EQ(answers.LinesRead(), 3);
}

TEST_F(ScriptAnswers, TheFirstFailureStaysAndNothingMoreIsGiven) {
    CScriptAnswers& answers = Open("a\nb\nc\n");
    answers.Next("");
    answers.Fail(EXIT_NO_SUCH_ANSWER, "first");
    answers.Fail(EXIT_FILE_FAILED, "second");
    EXPECT_EQ(answers.Next(""), std::nullopt);
    EXPECT_EQ(answers.NextCommandLine(), std::nullopt);
    EXPECT_EQ(answers.Fault()->m_strWhat, "first");
    EXPECT_EQ(answers.Fault()->m_status, EXIT_NO_SUCH_ANSWER);
    EXPECT_EQ(answers.LinesRead(), 1);
}
