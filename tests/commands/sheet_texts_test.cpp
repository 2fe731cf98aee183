#include "commands/sheet_texts.h"

#include "platform/acad/db_block_reference.h"
#include "platform/windows/code_page.h"
#include "platform/windows/installation_root.h"
#include "tests/support/drawing.h"
#include "tests/support/project.h"
#include "tests/support/template_file.h"
#include "ui/bren_dlg.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>

namespace {
class SheetTexts : public testing::Test {
protected:
    CTestProject m_project;
    CTestDrawing m_drawing;

    /// "x y z height text" of each text of model space.
    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId());
        for (const AcDbObjectId id : pSpace->EntityIds()) {
            const CDbOpen<AcDbText> pText(id);
            const AcGePoint3d pt = pText->position();
            CString strText;
            strText.Format("%g %g %g %g %s", pt.x, pt.y, pt.z, pText->height(),
                           GbkFromWide(pText->textString()).c_str());
            texts.emplace_back(strText.GetString());
        }
        return texts;
    }
};
using CTexts = std::vector<std::string>;
} // namespace

TEST_F(SheetTexts, AreLevelTextsOfHeightTwoAndAHalfWithoutAStyle) {
    AddSheetText({28.0, 251.0, 4.0}, "试样编号：ZK1-1");
    AddSheetText({0.0, 0.0, 0.0}, "");
    EXPECT_EQ(Texts(), (CTexts{"28 251 4 2.5 试样编号：ZK1-1", "0 0 0 2.5 "}));
    const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId());
    const CDbOpen<AcDbText> pText(pSpace->EntityIds().at(0));
    EXPECT_EQ(pText->rotation(), 0.0);
    EXPECT_EQ(pText->StyleName(), "Standard");
}

TEST_F(SheetTexts, AreLeftOutWithoutADrawing) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    AddSheetText({28.0, 251.0, 4.0}, "试样编号：ZK1-1"); // which must not leak
    acdbHostApplicationServices()->setWorkingDatabase(&m_drawing.Database());
    EXPECT_EQ(Texts(), CTexts());
}

TEST_F(SheetTexts, OfAStripShowWhatTheDialogHasShown) {
    CBRENDlg dialog("test");
    std::tm day{};
    day.tm_year = 124;
    day.tm_mon = 2;
    day.tm_mday = 7;
    day.tm_hour = 12;
    dialog.m_tDate = CTime(std::mktime(&day));
    dialog.m_strUnit = "勘察院";
    dialog.m_strTester = "李四";
    dialog.m_strChecker = "王五";
    dialog.m_bUnit = dialog.m_bTester = dialog.m_bChecker = dialog.m_bDate = 1;
    AddTitleStrip({10.0, 297.0, 2.0}, dialog);
    EXPECT_EQ(Texts(), (CTexts{"16 13 2 5 勘察院", "200 13 2 5 李四", "270 13 2 5 王五",
                               "371 13 2 4 2024.3.7", "130 13 2 5 三轴剪切试验成果图"}));
    dialog.m_bUnit = dialog.m_bTester = dialog.m_bChecker = dialog.m_bDate = 0;
    AddTitleStrip({0.0, 0.0, 0.0}, dialog);
    EXPECT_EQ(Texts().size(), 6U);
    EXPECT_EQ(Texts().back(), "120 -284 0 5 三轴剪切试验成果图");
}

TEST_F(SheetTexts, NameASupportDrawingThatIsNotThereWithoutItsFolders) {
    InsertSupportBlock("C:\\somewhere\\strip.dwg", {0, 0, 0}, 0.0, 1.0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n缺图框文件strip.dwg!");
    EXPECT_EQ(Texts(), CTexts());
}

TEST_F(SheetTexts, OfAStripStandOnItsDrawing) {
    CTemplateFile strip;
    strip.AddText("单位", {0, 0, 0});
    std::filesystem::create_directories(m_project.Root() + "/Support/Block");
    strip.Write(m_project.Root() + "/Support/Block/gltka3.dwg");
    AddTitleStrip({10.0, 297.0, 2.0}, CBRENDlg("test"));
    EXPECT_EQ(m_drawing.m_strPrinted, "");
    const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId());
    ASSERT_EQ(pSpace->EntityIds().size(), 2U);
    const CDbOpen<AcDbBlockReference> reference(pSpace->EntityIds()[0]);
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->position(), AcGePoint3d(-14, 5, 0));
    EXPECT_EQ(reference->rotation(), 0.0);
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(1000.0));
}

TEST_F(SheetTexts, SayThatTheSuitesFolderCannotBeHad) {
    SetInstallationRoot(m_project.Root() + "/none");
    InsertSupportBlock("strip.dwg", {0, 0, 0}, 0.0, 1.0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n读取路径出错!");
}
