#include "host/console/command_input.h"

#include "host/console/script_answers.h"

#include <gtest/gtest.h>

#include <numbers>
#include <sstream>

namespace {

class CommandInput : public testing::Test {
protected:
    explicit CommandInput(const char* szScript = "  raw text \n cancel \n1.5\n\n2,3\n@1,1\n")
        : m_script(szScript) {}
    std::istringstream m_script;
    CTextOutput m_output;
    CScriptAnswers m_answers{"script", m_script, m_output, false, true};
    CCommandInput m_input{m_answers};
};

} // namespace

TEST_F(CommandInput, WordsComeBeforeLinesAndOptionalOnesAreNeverAskedFor) {
    m_input.Begin({{"first", false}, {"", true}, {"third", false}});
    EXPECT_EQ(m_input.Text(""), "first");
    EXPECT_EQ(m_input.WholeText(""), "");
    EXPECT_EQ(m_input.WordOnLine(), "third");
    EXPECT_EQ(m_input.WordOnLine(), std::nullopt);
    EXPECT_NO_THROW(m_input.End());
    EXPECT_EQ(m_input.WholeText(""), "  raw text ");
}

TEST_F(CommandInput, ALineIsReadWhateverWordsThereAre) {
    m_input.Begin({{"word", false}});
    EXPECT_EQ(m_input.Line({""}), "  raw text ");
    EXPECT_EQ(m_input.Text(""), "word");
    EXPECT_THROW(m_input.Line({""}), CCommandCancelled);
}

TEST_F(CommandInput, AnotherCommandsWordsAndItsCancelLeaveTheOuterOnesAlone) {
    m_input.Begin({{"outer", false}});
    {
        const CNestedInput nested(m_input);
        m_input.Begin({{"inner", false}, {"more", false}});
        EXPECT_EQ(m_input.Text(""), "inner");
        m_answers.Next(""); // the raw text
        m_input.Begin({});
        AcGePoint3d point;
        EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Cancel);
        EXPECT_TRUE(m_input.WasCancelled());
    }
    EXPECT_FALSE(m_input.WasCancelled());
    EXPECT_EQ(m_input.Text(""), "outer");
}

TEST_F(CommandInput, EndRefusesWordsThatAreLeft) {
    m_input.Begin({{"left", false}});
    EXPECT_THROW(m_input.End(), CRunFailure);
}

TEST_F(CommandInput, CancelIsEscapeOnALineAndAWordOnTheCommandsLine) {
    m_input.Begin({{"cancel", false}});
    EXPECT_EQ(m_input.Text(""), "cancel");
    EXPECT_EQ(m_input.Text(""), "raw text");
    EXPECT_THROW(m_input.Text(""), CCommandCancelled);
    EXPECT_EQ(m_input.Number(""), 1.5);
    EXPECT_THROW(m_input.Text(""), CRunFailure); // an empty line
}

TEST_F(CommandInput, ANumberThatMustBeAboveZeroIsRefusedWithWhatItIs) {
    m_input.Begin({{"2.5", false}, {"0", false}, {"-1", false}, {"two", false}});
    EXPECT_EQ(m_input.PositiveNumber("", "a radius"), 2.5);
    for (const char* const szReason : {"a radius is above 0", "a radius is above 0", "not a number: two"}) {
        try {
            m_input.PositiveNumber("", "a radius");
            ADD_FAILURE() << szReason;
        } catch (const CRunFailure& failure) {
            EXPECT_EQ(failure.Status(), EXIT_NO_SUCH_ANSWER);
            EXPECT_STREQ(failure.what(), szReason);
        }
    }
}

TEST_F(CommandInput, AnAngleIsAnsweredInDegrees) {
    m_input.Begin({{"180", false}, {"-90", false}});
    EXPECT_DOUBLE_EQ(m_input.Angle(""), std::numbers::pi);
    EXPECT_DOUBLE_EQ(m_input.Angle(""), -std::numbers::pi / 2.0);
}

TEST_F(CommandInput, AnOffsetIsCountedFromItsBaseOrStandsForItself) {
    const AcGePoint3d base(1e9, 2.0, 3.0);
    m_input.Begin({{"1000000005,4", false}, {"@0.1,-0.1", false}, {"@1,1,1", false}, {"far", false}});
    EXPECT_EQ(m_input.Offset("", base), AcGeVector3d(5.0, 2.0, -3.0));
    const AcGeVector3d offset = m_input.Offset("", base);
    EXPECT_EQ(offset.x, 0.1);
    EXPECT_EQ(offset.y, -0.1);
    EXPECT_EQ(offset.z, 0.0);
    EXPECT_EQ(m_input.Point(""), AcGePoint3d(1e9 + 1.1, 2.9, 4.0)) << "the point reached is the last one";
    EXPECT_THROW(m_input.Offset("", base), CRunFailure);
}

TEST_F(CommandInput, AModulesPromptGivesResultsInsteadOfExceptions) {
    m_input.Begin({{"1,1", false}});
    AcGePoint3d point;
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Value);
    m_answers.Next(""); // the raw text
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Cancel);
    EXPECT_TRUE(m_input.WasCancelled());
    m_answers.Next("");
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::None);
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Value);
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Value);
    EXPECT_EQ(point, AcGePoint3d(3.0, 4.0, 0.0));
    EXPECT_FALSE(m_answers.HasFailed());
    EXPECT_EQ(m_input.AskPoint("", nullptr, &point), CPromptResult::Cancel);
    EXPECT_TRUE(m_answers.HasFailed());
}
