// Commands run from within commands.

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "tests/platform/acad/fake_editor_host.h"

#include <gtest/gtest.h>

namespace {

class CRunningHost final : public CFakeEditorHost {
public:
    CCommandResult RunCommand(const std::vector<std::string>& arWords) override {
        m_arWords = arWords;
        return m_result;
    }
    std::vector<std::string> m_arWords;
    CCommandResult m_result = CCommandResult::Done;
};

using CWords = std::vector<std::string>;

} // namespace

TEST(AcedCommand, HandsOverNameAndAnswersAsTexts) {
    CRunningHost host;
    const CDocumentContext command;
    EXPECT_EQ(acedCommand(RTSTR, L"regen", RTNONE), RTNORM);
    EXPECT_EQ(host.m_arWords, CWords{"regen"});
    const ads_point point = {1.5, -2.0, 0.0};
    EXPECT_EQ(acedCommand(RTSTR, L"文字", RT3DPOINT, point, RTREAL, 0.1, RTSHORT, 3, RTSTR, L"", 0), RTNORM);
    EXPECT_EQ(host.m_arWords, (CWords{"文字", "1.5,-2,0", "0.1", "3", ""}));
}

TEST(AcedCommand, TellsFailureAndCancelApart) {
    CRunningHost host;
    const CDocumentContext command;
    host.m_result = CCommandResult::Failed;
    EXPECT_EQ(acedCommand(RTSTR, L"regen", RTNONE), RTERROR);
    host.m_result = CCommandResult::Cancelled;
    EXPECT_EQ(acedCommand(RTSTR, L"regen", RTNONE), RTCAN);
}

TEST(AcedCommand, RunsNothingWithoutANameOrOutsideACommand) {
    CRunningHost host;
    EXPECT_EQ(acedCommand(RTSTR, L"regen", RTNONE), RTERROR);
    const CDocumentContext command;
    EXPECT_EQ(acedCommand(RTNONE), RTERROR);
    EXPECT_TRUE(host.m_arWords.empty());
}
