#include "commands/sheet_maker.h"

#include "drawing/xdata.h"
#include "frame/frame_entity.h"
#include "platform/acad/db_block_reference.h"
#include "platform/windows/code_page.h"
#include "tests/support/drawing.h"
#include "tests/support/project.h"
#include "tests/support/template_file.h"
#include "ui/bren_dlg.h"

#include <gtest/gtest.h>

namespace {
class SheetMaker : public testing::Test {
protected:
    CTestProject m_project;
    CTestDrawing m_drawing;
    CTemplateFile m_template;
    CArray<QYPropty> m_samples;
    CBRENDlg m_dialog{"test"};

    SheetMaker() {
        CBRENChart::rxInit();
        CBRENFrame::rxInit();
        m_dialog.m_nGCSY = 1;
        m_dialog.m_pageGen.m_strFramePath = CString(m_project.Root().c_str()) + "\\";
        m_dialog.m_pageGen.m_strFrameFile = "frame.dwg";
    }
    ~SheetMaker() override {
        CBRENFrame::rxExit();
        CBRENChart::rxExit();
    }

    void Samples(int nSamples) {
        for (int i = 1; i <= nSamples; i++) {
            CString strQYBH;
            strQYBH.Format("1-%d", i);
            m_project.AddMethod("ZK1", strQYBH, g_pMethodUU);
            m_project.AddReading("ZK1", strQYBH, 1, 1, 100, 200, 500, 2);
            m_project.AddReading("ZK1", strQYBH, 2, 1, 200, 300, 500, 2);
            m_samples.Add({"ZK1", strQYBH, g_pMethodUU, "2.00", "20.9", "0.50", "12.00", "粘土"});
        }
    }
    int Place(Adesk::Int32 nGCBZ) {
        m_dialog.m_nGCBZ = nGCBZ;
        m_template.Write(m_project.Root() + "/frame.dwg");
        return CSheetMaker(&m_drawing.Database(), m_dialog, "GC-1").PlaceGroup(m_samples, {0, 0, 4});
    }
    /// What the entities of a class in model space are asked, in order of appending.
    template <class T, class Ask>
    auto Each(const Ask& ask) {
        std::vector<std::invoke_result_t<Ask, const T&>> answers;
        const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId());
        for (const AcDbObjectId id : pSpace->EntityIds())
            if (const CDbOpen<T> pEntity(id); pEntity) answers.push_back(ask(*pEntity.Get()));
        return answers;
    }
    std::vector<AcGePoint3d> Bases() {
        return Each<CBRENChart>([](const CBRENChart& chart) { return chart.m_ptBase; });
    }
    std::vector<AcGePoint3d> BlockPoints() {
        return Each<AcDbBlockReference>([](const AcDbBlockReference& block) { return block.position(); });
    }
    /// "x,y text" of each text.
    std::vector<std::string> Texts() {
        return Each<AcDbText>([](const AcDbText& text) {
            const AcGePoint3d pt = text.position();
            return std::to_string(static_cast<int>(pt.x)) + "," + std::to_string(static_cast<int>(pt.y)) +
                   " " + GbkFromWide(text.textString());
        });
    }
};
using CTexts = std::vector<std::string>;
} // namespace

TEST_F(SheetMaker, PlacesOneChartASheet) {
    Samples(2);
    ASSERT_EQ(Place(0), 1);
    const auto bases = Bases();
    ASSERT_EQ(bases.size(), 2U);
    EXPECT_TRUE(bases[0] == AcGePoint3d(25, 262, 0));
    EXPECT_TRUE(bases[1] == AcGePoint3d(245, 262, 0));
}

TEST_F(SheetMaker, PlacesTwoChartsASheetOfStandardTwoWhereSheetsOverlap) {
    Samples(3);
    ASSERT_EQ(Place(2), 1);
    const auto bases = Bases();
    ASSERT_EQ(bases.size(), 3U);
    EXPECT_EQ(bases[0].x, 13.0);
    EXPECT_EQ(bases[1].x, 233.0);
    EXPECT_EQ(bases[2].x, 233.0); // the second sheet's first chart stands on the first sheet's second
    EXPECT_EQ(bases[0].y, 267.0);
}

TEST_F(SheetMaker, GivesEverySampleASheetWithItsFrameAndItsTexts) {
    Samples(2);
    ASSERT_EQ(Place(0), 1);
    const auto blocks = BlockPoints();
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_TRUE(blocks[0] == AcGePoint3d(0, 0, 4));
    EXPECT_TRUE(blocks[1] == AcGePoint3d(220, 0, 4));
    EXPECT_EQ(Texts(), (CTexts{"28,251 试样编号：ZK1-1-1", "0,0 不固结不排水剪", "248,251 试样编号：ZK1-1-2",
                               "220,0 不固结不排水剪"}));
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(SheetMaker, PutsTheMethodWhereTheTemplateHasItsMark) {
    m_template.AddText("[SYFF]", {30, 40, 9});
    Samples(2);
    ASSERT_EQ(Place(0), 1);
    EXPECT_EQ(Texts(), (CTexts{"28,251 试样编号：ZK1-1-1", "30,40 不固结不排水剪",
                               "248,251 试样编号：ZK1-1-2", "250,40 不固结不排水剪"}));
    EXPECT_EQ(Each<AcDbText>([](const AcDbText& text) { return text.position().z; }),
              (std::vector<double>{4, 0, 4, 0}));
}

TEST_F(SheetMaker, NumbersAndNamesTheFramesOfAGroup) {
    m_template.AddText("[TH]", {0, 0, 0});
    Samples(2);
    ASSERT_EQ(Place(0), 1);
    const auto names = Each<AcDbBlockReference>([](const AcDbBlockReference& frame) {
        CString strName;
        GetXDataText(&frame, "NAME", strName);
        return std::string(strName.GetString());
    });
    EXPECT_EQ(names, (CTexts{"三轴剪切-1", "三轴剪切-2"}));
}

TEST_F(SheetMaker, PlacesNothingWithoutATemplate) {
    Samples(1);
    m_dialog.m_pageGen.m_strFrameFile = "other.dwg";
    EXPECT_EQ(Place(0), 0);
    EXPECT_TRUE(BlockPoints().empty());
    EXPECT_TRUE(Bases().empty());
    EXPECT_EQ(m_drawing.m_strPrinted, "\n图框文件" + m_project.Root() + "\\other.dwg不存在!");
}

TEST_F(SheetMaker, GivesSheetsPastTheLastChartAFrameAndEmptyTexts) {
    Samples(3);
    ASSERT_EQ(Place(2), 1);
    EXPECT_EQ(BlockPoints().size(), 3U);
    EXPECT_EQ(BlockPoints().at(2).x, 440.0);
    CTexts expected{"28,251 试样编号：ZK1-1-2",
                    "0,0 不固结不排水剪",
                    "120,13 三轴剪切试验成果图",
                    "248,251 试样编号：ZK1-1-3",
                    "220,0 不固结不排水剪",
                    "340,13 三轴剪切试验成果图",
                    "468,251 ",
                    "440,0 ",
                    "560,13 三轴剪切试验成果图"};
    EXPECT_EQ(Texts(), expected);
}

TEST_F(SheetMaker, PutsOneChartOfStandardTwoOnOneSheetWithItsStrip) {
    Samples(1);
    ASSERT_EQ(Place(2), 1);
    ASSERT_EQ(Bases().size(), 1U);
    EXPECT_TRUE(Bases()[0] == AcGePoint3d(13, 267, 0));
    EXPECT_EQ(BlockPoints().size(), 1U);
    // The dialog shows none of unit, tester, checker and date.
    EXPECT_EQ(Texts(),
              (CTexts{"28,251 试样编号：ZK1-1-1", "0,0 不固结不排水剪", "120,13 三轴剪切试验成果图"}));
    EXPECT_EQ(m_drawing.m_strPrinted, "\n缺图框文件gltka3.dwg!");
}

TEST_F(SheetMaker, FillsTheChartFromTheSample) {
    Samples(1);
    ASSERT_EQ(Place(0), 1);
    const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId());
    const CDbOpen<CBRENChart> pChart(pSpace->EntityIds().at(1));
    ASSERT_TRUE(pChart);
    EXPECT_EQ(pChart->m_nGCSY, 1);
    EXPECT_TRUE(pChart->m_strGCBH == "GC-1");
    EXPECT_TRUE(pChart->m_strQYBH == "1-1");
    EXPECT_TRUE(pChart->m_strWater == "20.9");
    EXPECT_TRUE(pChart->m_strLiquidity == "0.50");
    EXPECT_TRUE(pChart->m_strPlasticity == "12.00");
    EXPECT_TRUE(pChart->m_strSoilName == "粘土");
    EXPECT_EQ(pChart->m_nColor, 3);
    EXPECT_EQ(pChart->colorIndex(), 3);
    EXPECT_EQ(SymbolName(pChart->m_idTextStyle), "QM_PMT_BTFont");
}

TEST_F(SheetMaker, StoresTheValuesOfEveryChart) {
    Samples(2);
    ASSERT_EQ(Place(0), 1);
    EXPECT_EQ(m_project.Query("SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL AND UUF IS NOT NULL"),
              "2");
}

TEST_F(SheetMaker, StopsAtFaultyDataAndKeepsWhatStands) {
    Samples(3);
    m_project.Execute("DELETE FROM z_c_SanZhouCSXM WHERE QYBH='1-2'");
    EXPECT_EQ(Place(0), 0);
    EXPECT_EQ(Bases().size(), 1U);
    EXPECT_EQ(m_project.Boxes(), (std::vector<std::string>{"三轴剪切试验初始数据错误!"}));
    EXPECT_EQ(m_drawing.m_strPrinted, "\n数据库z_c_SanZhouCSXM无初始数据!");
    EXPECT_EQ(m_project.Query("SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL"), "1");
}

TEST_F(SheetMaker, KeepsTheChartWhoseStoreFailed) {
    Samples(1);
    m_project.Execute("DELETE FROM z_c_SanZhou");
    EXPECT_EQ(Place(0), 1);
    EXPECT_EQ(Bases().size(), 1U);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n三轴剪切试验表中无对应项!");
}
