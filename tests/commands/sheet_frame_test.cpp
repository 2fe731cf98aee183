#include "commands/sheet_frame.h"

#include "tests/support/drawing.h"
#include "ui/bren_dlg.h"

#include <gtest/gtest.h>

namespace {
class SheetFrame : public testing::Test {
protected:
    CTestDrawing m_drawing;
    CBRENDlg m_dialog{"test"};
    const QYPropty m_sample{"ZK1", "1-1", "固结排水剪", "4.60", "20", "0.5", "12", "粘土"};

    SheetFrame() {
        CBRENFrame::rxInit();
        m_dialog.m_nGCSY = 7;
        m_dialog.m_strGCBH = "GC-1";
        m_dialog.m_strGCMC = "三号线";
        m_dialog.m_bDate = m_dialog.m_bTester = 1;
        m_dialog.m_strTester = "李四";
        m_dialog.m_strUnit = "勘察院";
        m_dialog.m_strChecker = "王五";
        m_dialog.m_tDate = CTime::GetCurrentTime();
        m_dialog.m_nReserved = 5;
    }
    ~SheetFrame() override { CBRENFrame::rxExit(); }
    std::unique_ptr<CBRENFrame> Make(int nGCBZ) {
        m_dialog.m_nGCBZ = nGCBZ;
        return MakeSheetFrame(m_dialog, m_sample, {25.0, 262.0, 0.0}, m_drawing.Database().textstyle(),
                              m_drawing.Database().clayer());
    }
};
} // namespace

TEST_F(SheetFrame, IsFilledFromSampleAndDialogAndWatchedByTheChart) {
    const std::unique_ptr<CBRENFrame> pFrame = Make(0);
    EXPECT_TRUE(pFrame->m_ptBase == AcGePoint3d(25.0, 262.0, 0.0));
    EXPECT_EQ(pFrame->m_nGCSY, 7);
    EXPECT_TRUE(pFrame->m_strZKBH == "ZK1" && pFrame->m_strQYBH == "1-1" &&
                pFrame->m_strSYFF == "固结排水剪");
    EXPECT_TRUE(pFrame->m_strGCBH == "GC-1" && pFrame->m_strGCMC == "三号线" && pFrame->m_strQYSD == "4.60");
    EXPECT_EQ(pFrame->m_dTextHeight, 2.5);
    EXPECT_EQ(pFrame->m_idTextStyle, m_drawing.Database().textstyle());
    EXPECT_EQ(pFrame->m_idBannerStyle, m_drawing.Database().textstyle());
    EXPECT_EQ(pFrame->colorIndex(), 3);
    EXPECT_EQ(pFrame->m_bRQ, 1);
    EXPECT_EQ(pFrame->m_bJCZ, 0);
    EXPECT_EQ(pFrame->m_bSYZ, 1);
    EXPECT_EQ(pFrame->m_bWCDW, 0);
    EXPECT_EQ(pFrame->m_bReserved, 5);
    EXPECT_TRUE(pFrame->m_sSYZ == "李四" && pFrame->m_sWCDW == "勘察院" && pFrame->m_sJCZ == "王五");
    EXPECT_EQ(pFrame->m_nYear, m_dialog.m_tDate.GetYear());
    EXPECT_EQ(pFrame->m_nMonth, m_dialog.m_tDate.GetMonth());
    EXPECT_EQ(pFrame->m_nDay, m_dialog.m_tDate.GetDay());
    EXPECT_TRUE(pFrame->hasPersistentReactor(m_drawing.Database().clayer()));
    EXPECT_TRUE(pFrame->objectId().isNull());
}

TEST_F(SheetFrame, OfStandardTwoHasNoSignaturesOfItsOwn) {
    const std::unique_ptr<CBRENFrame> pFrame = Make(2);
    EXPECT_EQ(pFrame->m_nGCBZ, 2);
    EXPECT_EQ(pFrame->m_bRQ, 0);
    EXPECT_EQ(pFrame->m_bReserved, 0);
    EXPECT_EQ(pFrame->m_nYear, 0);
    EXPECT_TRUE(pFrame->m_sSYZ.IsEmpty());
}
