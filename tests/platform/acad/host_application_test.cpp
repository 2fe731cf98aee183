#include "platform/acad/host_application.h"

#include <gtest/gtest.h>

TEST(HostApplicationServices, KnowTheWorkingDrawingWhileItLives) {
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    {
        AcDbDatabase first, second;
        acdbHostApplicationServices()->setWorkingDatabase(&first);
        EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &first);
    }
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST(EditorHost, IsNoneUnlessRegistered) {
    EXPECT_EQ(EditorHost(), nullptr);
}

TEST(EditorHost, WithoutAUserCancelsPicksAndRunsNoCommand) {
    class CPrintingHost final : public CEditorHost {
        void Print(const std::string&) override {}
        CPromptResult AskPoint(const std::string&, const AcGePoint3d*, AcGePoint3d*) override {
            return CPromptResult::Cancel;
        }
        std::string FindFile(const std::string&) override { return {}; }
    } printing;
    CEditorHost& host = printing;
    AcDbObjectId id;
    AcGePoint3d point;
    std::vector<AcDbObjectId> ids;
    EXPECT_EQ(host.AskEntity("", &id, &point), CPromptResult::Cancel);
    EXPECT_EQ(host.AskSelection("", &ids), CPromptResult::Cancel);
    EXPECT_EQ(host.RunCommand({"regen"}), CCommandResult::Failed);
}
