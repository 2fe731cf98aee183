#include "frame/frame_picture.h"

#include "drawing/styles.h"
#include "frame/frame_entity.h"
#include "platform/acad/db_polyline.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
/// Notes what it is given, with positions from the frame's base.
class CNotes final : public CFrameSink {
public:
    std::vector<std::string> m_arNotes;

    void Outline(const AcDbPolyline& polyline) override {
        for (const CPolylineVertex& vertex : polyline.Vertices())
            Note("corner %g,%g width %g %g bulge %g", vertex.m_pt.x, vertex.m_pt.y, vertex.m_dStartWidth,
                 vertex.m_dEndWidth, vertex.m_dBulge);
        EXPECT_FALSE(polyline.isClosed());
    }
    void Rule(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override {
        Note("rule %g,%g to %g,%g", ptFrom.x, ptFrom.y, ptTo.x, ptTo.y);
    }
    void Text(const AcGePoint3d& ptPosition, const CString& strText) override {
        Note("%s %g at %g,%g", strText.GetString(), g_ChartTextStyle.textSize(), ptPosition.x, ptPosition.y);
    }
    void Cell(const CTextCell& cell, const AcGiTextStyle& style) override {
        Note("cell %s %g at %g,%g %gx%g for %g", cell.m_strText.GetString(), style.textSize(),
             cell.m_ptTopLeft.x, cell.m_ptTopLeft.y, cell.m_dWidth, cell.m_dHeight, cell.m_dTextHeight);
    }

private:
    template <class... Values>
    void Note(const char* pFormat, Values... values) {
        CString strNote;
        strNote.Format(pFormat, values...);
        m_arNotes.emplace_back(strNote.View());
    }
};

using Notes = std::vector<std::string>;

Notes LinesOf(const CBRENFrame& frame) {
    CNotes notes;
    DescribeFrameLines(notes, frame);
    return notes.m_arNotes;
}

Notes TextsOf(const CBRENFrame& frame, const CFrameForm& form = g_frameWorldForm) {
    CNotes notes;
    DescribeFrameTexts(notes, frame, form);
    return notes.m_arNotes;
}

void FillForPicture(CBRENFrame& frame) {
    frame.m_ptBase.set(1000.0, 2000.0, 0.0);
    frame.m_strGCBH = "GC-1";
    frame.m_strGCMC = "地铁";
    frame.m_strSYFF = "固结排水剪";
    frame.m_strZKBH = "ZK1";
    frame.m_strQYBH = "3";
    frame.m_strQYSD = "4.5";
    frame.m_sWCDW = "勘察院";
    frame.m_sSYZ = "张三";
    frame.m_sJCZ = "李四";
    frame.m_nYear = 2024;
    frame.m_nMonth = 3;
    frame.m_nDay = 9;
    frame.m_bRQ = frame.m_bJCZ = frame.m_bSYZ = frame.m_bWCDW = 1;
}

bool Has(const Notes& notes, const std::string& strNote) {
    return std::find(notes.begin(), notes.end(), strNote) != notes.end();
}
} // namespace

TEST(FramePicture, HasTheSheetsRectangleAndARuleBelowItsTop) {
    CBRENFrame frame;
    frame.m_ptBase.set(1000.0, 2000.0, 0.0);
    EXPECT_EQ(LinesOf(frame),
              (Notes{"corner 1000,2000 width 0.5 0.5 bulge 0", "corner 1176,2000 width 0.5 0.5 bulge 0",
                     "corner 1176,1743 width 0.5 0.5 bulge 0", "corner 1000,1743 width 0.5 0.5 bulge 0",
                     "corner 1000,2000.25 width 0.5 0.5 bulge 0", "rule 1000,1987.5 to 1176,1987.5"}));
}

TEST(FramePicture, HasHeadingProjectLinesAndSignatureLine) {
    CBRENFrame frame;
    FillForPicture(frame);
    EXPECT_EQ(TextsOf(frame), (Notes{"cell 三轴剪切试验成果图表 2.5 at 1000,2010 176x10 for 8",
                                     "工程编号 3.8 at 1002,1994.3",
                                     ": 3.8 at 1013,1994.3",
                                     "GC-1 3 at 1015,1994.3",
                                     "工程名称 3.8 at 1002,1988.5",
                                     ": 3.8 at 1013,1988.5",
                                     "地铁 3.8 at 1015,1988.5",
                                     "试验方法 3.8 at 1080,1988.5",
                                     ": 3.8 at 1091,1988.5",
                                     "固结排水剪 3.8 at 1093,1988.5",
                                     "试样编号 3.8 at 1002,1982.7",
                                     ": 3.8 at 1013,1982.7",
                                     "ZK1-3 3 at 1015,1982.7",
                                     "取土深度 3.8 at 1080,1982.7",
                                     ": 3.8 at 1091,1982.7",
                                     "4.5m 3 at 1093,1982.7",
                                     "勘察院 3.8 at 1002,1737.2",
                                     "试验 3.8 at 1056,1737.2",
                                     "rule 1062,1736.8 to 1075,1736.8",
                                     "cell 张三 3.8 at 1062,1741 13x3.8 for 3.8",
                                     "检查 3.8 at 1088,1737.2",
                                     "rule 1094,1736.8 to 1107,1736.8",
                                     "cell 李四 3.8 at 1094,1741 13x3.8 for 3.8",
                                     "rule 1118,1736.8 to 1128,1736.8",
                                     "cell 2024 3 at 1118,1741 10x3.8 for 3.8",
                                     "年 3.8 at 1128,1737.2",
                                     "rule 1131,1736.8 to 1137.5,1736.8",
                                     "cell 3 3 at 1131,1741 6.5x3.8 for 3.8",
                                     "月 3.8 at 1137.5,1737.2",
                                     "rule 1140.5,1736.8 to 1147,1736.8",
                                     "cell 9 3 at 1140.5,1741 6.5x3.8 for 3.8",
                                     "日 3.8 at 1147,1737.2",
                                     "图号 3.8 at 1156,1737.2",
                                     "rule 1162,1736.8 to 1172,1736.8"}));
    EXPECT_EQ(g_ChartTextStyle.textSize(), 3.8) << "what the last text had";
}

TEST(FramePicture, OfTheStandardWithAStripIsTheThreeRowsBesideIt) {
    CBRENFrame frame;
    FillForPicture(frame);
    frame.m_nGCBZ = 2;
    EXPECT_TRUE(LinesOf(frame).empty());
    const Notes notes = TextsOf(frame);
    ASSERT_EQ(notes.size(), 15U);
    EXPECT_EQ(notes[0], "工程编号 3.8 at 1032,1994.3");
    EXPECT_EQ(notes[6], "试验方法 3.8 at 1110,1988.5");
    EXPECT_EQ(notes[14], "4.5m 3 at 1123,1982.7");
    EXPECT_EQ(g_ChartTextStyle.textSize(), 3.0);
}

TEST(FramePicture, LosesANameButNotItsLabelAndRuleWithItsFlag) {
    CBRENFrame frame;
    FillForPicture(frame);
    frame.m_bWCDW = frame.m_bSYZ = frame.m_bJCZ = frame.m_bRQ = 0;
    const Notes notes = TextsOf(frame);
    for (const char* pGone : {"勘察院", "张三", "李四", "2024"})
        for (const std::string& strNote : notes)
            EXPECT_EQ(strNote.find(pGone), std::string::npos) << pGone;
    for (const char* pStays :
         {"试验 3.8 at 1056,1737.2", "rule 1062,1736.8 to 1075,1736.8", "检查 3.8 at 1088,1737.2",
          "rule 1094,1736.8 to 1107,1736.8", "rule 1118,1736.8 to 1128,1736.8", "年 3.8 at 1128,1737.2",
          "月 3.8 at 1137.5,1737.2", "日 3.8 at 1147,1737.2"})
        EXPECT_TRUE(Has(notes, pStays)) << pStays;
}

TEST(FramePicture, WritesADateOfZeroInTheExplodedFormOnly) {
    CBRENFrame frame;
    FillForPicture(frame);
    const Notes dated = TextsOf(frame);
    EXPECT_EQ(TextsOf(frame, g_frameExplodeForm), dated);
    frame.m_nYear = frame.m_nMonth = frame.m_nDay = 0;
    const Notes world = TextsOf(frame), exploded = TextsOf(frame, g_frameExplodeForm);
    EXPECT_EQ(world.size(), dated.size() - 3);
    EXPECT_TRUE(Has(world, "rule 1140.5,1736.8 to 1147,1736.8"));
    EXPECT_EQ(exploded.size(), dated.size());
    EXPECT_TRUE(Has(exploded, "cell 0 3 at 1118,1741 10x3.8 for 3.8"));
    EXPECT_TRUE(Has(exploded, "cell 0 3 at 1131,1741 6.5x3.8 for 3.8"));
    EXPECT_TRUE(Has(exploded, "cell 0 3 at 1140.5,1741 6.5x3.8 for 3.8"));
}
