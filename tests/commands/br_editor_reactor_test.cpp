#include "commands/br_editor_reactor.h"

#include "commands/session_flags.h"
#include "drawing/chart_text.h"
#include "tests/commands/chart_command_fixture.h"

namespace {
class EditorReactor : public CChartCommandTest {
protected:
    /// The command starts; the lines play a dialog that this brings.
    void Start(const ACHAR* pName, const std::vector<std::string>& lines = {}) {
        s_pName = pName;
        Run(
            [] {
                CEdBRReactor reactor;
                reactor.commandWillStart(s_pName);
            },
            lines);
    }
    std::size_t Questions() const { return m_project.Boxes().size(); }

    static inline const ACHAR* s_pName = nullptr;
};
} // namespace

TEST_F(EditorReactor, KnowsOfQuittingUntilTheNextCommand) {
    g_bChartDataChanged = 0;
    Start(L"QUIT");
    EXPECT_EQ(g_bQuitting, 1);
    Start(L"LINE"); // the QUIT before was cancelled
    EXPECT_EQ(g_bQuitting, 0);
}

TEST_F(EditorReactor, ComparesTheNameExactly) {
    for (const ACHAR* pName : {L"quit", L"Open", L"QUITX", L"BRE"})
        Start(pName);
    EXPECT_EQ(g_bQuitting, 0);
    EXPECT_EQ(Questions(), 0U);
}

TEST_F(EditorReactor, AsksBeforeEachWatchedCommand) {
    m_project.m_nAnswer = 0; // as if no box could be shown
    for (const ACHAR* pName : {L"OPEN", L"NEW", L"QUIT", L"QNEW", L"MVGEN", L"MVEDIT", L"PLGEN", L"PLEDIT",
                               L"NWRPT", L"SWRPT", L"BREN", L"BROPEN"}) {
        const std::size_t nBefore = Questions();
        Start(pName);
        EXPECT_EQ(Questions(), nBefore + 1) << GbkFromWide(pName);
    }
    EXPECT_EQ(m_project.Boxes().back(), "三轴剪切图中有关数据已改变,是否入库?");
    EXPECT_EQ(m_project.m_strCaption, "Tervo");
    EXPECT_EQ(m_project.m_uStyle, MB_YESNO | MB_ICONQUESTION);
    EXPECT_EQ(g_bChartDataChanged, 1);
}

TEST_F(EditorReactor, AsksNothingBeforeOtherCommands) {
    for (const ACHAR* pName : {L"LINE", L"BRCF", L"CLOSE", L"SAVE", L"QSAVE"})
        Start(pName);
    EXPECT_EQ(Questions(), 0U);
    EXPECT_EQ(g_bChartDataChanged, 1);
}

TEST_F(EditorReactor, AsksNothingWhenNothingHasChanged) {
    g_bChartDataChanged = 0;
    Start(L"OPEN");
    EXPECT_EQ(Questions(), 0U);
}

TEST_F(EditorReactor, ForgetsTheChangeOnNo) {
    AddChart(g_pMethodUU);
    m_project.m_nAnswer = IDNO;
    Start(L"NEW");
    EXPECT_EQ(g_bChartDataChanged, 0);
    Start(L"NEW");
    EXPECT_EQ(Questions(), 1U);
    EXPECT_EQ(Stored(), "|||||||");
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(EditorReactor, StoresTheChangeOnYes) {
    AddChart(g_pMethodUU);
    m_project.m_nAnswer = IDYES;
    Start(L"BREN", {"check 1060", "ok"});
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_EQ(Stored(), "14.44|13.33||||||");
    EXPECT_EQ(m_drawing.m_strPrinted, "\n三轴剪切数据存储成功!\n");
    EXPECT_EQ(m_drawing.m_arCommands, std::vector<std::string>{"regen"});
}

TEST_F(EditorReactor, AsksAgainWhenNoChartWasPicked) {
    AddChart(g_pMethodUU);
    m_drawing.m_arPicks.clear();
    m_project.m_nAnswer = IDYES;
    Start(L"OPEN");
    EXPECT_EQ(g_bChartDataChanged, 1);
    Start(L"OPEN");
    EXPECT_EQ(Questions(), 2U);
}

TEST_F(EditorReactor, QuitsAlsoAfterItsQuestion) {
    m_project.m_nAnswer = IDNO;
    Start(L"QUIT");
    EXPECT_EQ(Questions(), 1U);
    EXPECT_EQ(g_bQuitting, 1);
}

TEST_F(EditorReactor, LetsNoTextBeMeasuredWhileTheHostIsQuitting) {
    g_bChartDataChanged = 0;
    Start(L"QUIT");
    EXPECT_EQ(MeasureTextWidth("text", m_drawing.Database().textstyle(), 10.0), 0.0);
    Start(L"LINE");
    EXPECT_GT(MeasureTextWidth("text", m_drawing.Database().textstyle(), 10.0), 0.0);
}
