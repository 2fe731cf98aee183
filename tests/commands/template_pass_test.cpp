#include "commands/template_pass.h"

#include "drawing/xdata.h"
#include "platform/acad/db_block_reference.h"
#include "platform/windows/file_bytes.h"
#include "tests/support/drawing.h"
#include "tests/support/suite_fixture.h"
#include "tests/support/template_file.h"
#include "tests/support/title_config.h"
#include "ui/bren_dlg.h"

namespace {
class TemplatePass : public CSuiteTest {
protected:
    TemplatePass() {
        Execute("insert into x_GongCheng values(1,'G1','一号工程',0,0)");
        m_config.Add({.t_peizhi = "[GCMC]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
        m_config.Add({.t_peizhi = "[ZKBH]", .t_tablename = "", .t_tablefield = ""});
        m_dialog.m_strZKBH = "ZK1";
        m_dialog.m_pageGen.m_strFramePath = (m_root.Path() + "\\Templates\\").c_str();
        m_dialog.m_pageGen.m_strFrameFile = "frame.dwg";
        std::filesystem::create_directory(m_root.Path("Templates"));
    }
    std::string TemplatePath() const { return m_root.Path("Templates/frame.dwg"); }
    /// Writes the template and runs the pass.
    int Load() {
        m_template.Write(TemplatePath());
        return m_pass.Load();
    }
    void AddPeople(const std::string& strRows) {
        const auto pCommon = CreateSqliteDatabase(m_root.Path("Data/common.db"));
        pCommon->Execute("create table g_peizhi_people(CGT text, KEYCGT text, PEOPLETYPE text, "
                         "PEOPLENAME text)");
        pCommon->Execute("insert into g_peizhi_people values" + strRows);
    }
    std::vector<AcDbObjectId> Entities(AcDbObjectId idBlock) const {
        return CDbOpen<AcDbBlockTableRecord>(idBlock)->EntityIds();
    }
    std::vector<AcDbObjectId> ModelSpace() { return Entities(m_drawing.Database().ModelSpaceId()); }
    /// The texts of the block, in order.
    CTexts Texts() {
        CTexts texts;
        AcDbObjectId idBlock;
        CDbOpen<AcDbBlockTable>(m_drawing.Database().blockTableId())->getAt(L"BRMB", idBlock);
        for (const AcDbObjectId id : Entities(idBlock))
            texts.push_back(GbkFromWide(CDbOpen<AcDbText>(id)->textString()));
        return texts;
    }
    bool HasBlock() { return CDbOpen<AcDbBlockTable>(m_drawing.Database().blockTableId())->has(L"BRMB"); }

    CTitleConfig m_config{m_root.Path()};
    CTestDrawing m_drawing;
    CTemplateFile m_template;
    CBRENDlg m_dialog{"test"};
    CTemplatePass m_pass{&m_drawing.Database(), m_dialog};
};

const CTexts g_arCloseIt{"请关闭打开的模板!"};
} // namespace

TEST_F(TemplatePass, FillsTheBlockFromTheProjectAndThePeople) {
    AddPeople("('三轴剪切试验曲线','[SH]','审核','赵一'),('三轴剪试验曲线','[SY]','试验','钱二')");
    for (const char* pText : {"[GCMC]", "[ZKBH]", "[SH]", "[SY]", "[YH]", "[YS]", "图号", "[GCMC]"})
        m_template.AddText(pText, {0, 0, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"一号工程", "ZK1", "赵一", "[SY]", "1", "1", "图号", "[GCMC]"}));
    EXPECT_TRUE(m_arBoxes.empty());
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(TemplatePass, ReadsTheProjectAnewAndHasNoBoreholeForAllSamples) {
    Execute("insert into x_GongCheng values(2,'G2','二号工程',0,0)");
    SetProject("GCSY", "2");
    m_dialog.m_strZKBH.Empty();
    m_template.AddText("[GCMC]", {0, 0, 0});
    m_template.AddText("[ZKBH]", {0, 0, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"二号工程", ""}));
}

TEST_F(TemplatePass, ShowsTheAnnotationsThatAreAskedFor) {
    const std::vector<const char*> arMarks{"[WCDW]", "[SYZ]", "[JCZ]", "[RQ]"};
    m_dialog.m_strUnit = "勘察院";
    m_dialog.m_strTester = "李四";
    m_dialog.m_strChecker = "王五";
    m_dialog.m_strDate = "2024年3月7日";
    for (const char* pMark : arMarks)
        m_template.AddText(pMark, {0, 0, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), CTexts(4)); // none is asked for
    m_dialog.m_bUnit = m_dialog.m_bTester = m_dialog.m_bChecker = m_dialog.m_bDate = 1;
    ASSERT_EQ(m_pass.Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"勘察院", "李四", "王五", "2024年3月7日"}));
}

TEST_F(TemplatePass, PrefersFieldsAndPeopleOfTheSameNameToTheAnnotations) {
    AddPeople("('三轴剪切试验曲线','[SYZ]','试验','赵一')");
    m_config.Add({.t_peizhi = "[WCDW]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBH"});
    m_dialog.m_bUnit = m_dialog.m_bTester = m_dialog.m_bChecker = 1;
    m_dialog.m_strUnit = m_dialog.m_strTester = m_dialog.m_strChecker = "标注";
    for (const char* pMark : {"[WCDW]", "[SYZ]", "[JCZ]"})
        m_template.AddText(pMark, {0, 0, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"G1", "赵一", "标注"}));
}

TEST_F(TemplatePass, ReplacesAPlaceholderOnceThatStandsTwice) {
    for (const char* pMark : {"[RQ]", "[GCMC]", "[RQ]", "[GCMC]", "[SYFF]", "[SYFF]"})
        m_template.AddText(pMark, {1.0, 2.0, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"", "一号工程", "[RQ]", "[GCMC]", "", "[SYFF]"}));
}

TEST_F(TemplatePass, ReadsCentredAndRightAlignedMarksAsTemplatesMeanThem) {
    m_template.AddText("[DIST]", {14, 1, 0}, AcDb::kTextCenter);
    m_template.AddText("[SP]", {30, 3, 0}, AcDb::kTextRight);
    m_template.AddText("[SYFF]", {60, 200, 0}, AcDb::kTextMid);
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(g_templateMarks.m_dDist, 7.0);
    EXPECT_EQ(g_templateMarks.m_ptSP, AcGePoint3d(0.2, 3, 0));
    EXPECT_EQ(m_pass.MethodOffset(), AcGeVector3d(30, 201.25, 0));
}

TEST_F(TemplatePass, ClearsTheLayoutMarksAndKeepsWhereTheyStood) {
    m_template.AddText("[DIST]", {7, 1, 0});
    m_template.AddText("[EP]", {8, 2, 0});
    m_template.AddText("[SP]", {9, 3, 1});
    m_template.AddText("[SP1]", {10, 4, 1}, AcDb::kTextCenter);
    m_template.AddText("[SYFF]", {30, 200, 5});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), CTexts(5));
    EXPECT_EQ(g_templateMarks.m_dDist, 7.0);
    EXPECT_EQ(g_templateMarks.m_ptSP, AcGePoint3d(9, 3, 1));
    EXPECT_EQ(g_templateMarks.m_ptSP1, AcGePoint3d(5, 4, 1));
    EXPECT_EQ(m_pass.MethodOffset(), AcGeVector3d(30, 200, 5));
    // A template without them leaves them as they were.
    CTemplateFile plain;
    plain.Write(TemplatePath());
    ASSERT_EQ(m_pass.Load(), 1);
    EXPECT_EQ(g_templateMarks.m_dDist, 7.0);
}

TEST_F(TemplatePass, PutsTheMethodWhereTheLastMarkStoodThatWasFound) {
    m_template.AddText("[RQ]", {60, 70, 0}, AcDb::kTextRight);
    m_template.AddText("[SP]", {9, 3, 1});
    m_template.AddText("[GCMC]", {1, 2, 0});
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(m_pass.MethodOffset(), AcGeVector3d(0.2, 70, 0)); // the date's: sought last
}

TEST_F(TemplatePass, PutsTheMethodIntoTheCornerWhereNoMarkIs) {
    m_template.AddText("[GCMC]", {1, 2, 0});
    m_template.AddText("[TH]", {5, 6, 0});
    ASSERT_EQ(Load(), 1);
    m_pass.AddFrame(1, {0, 0, 0});
    EXPECT_EQ(m_pass.MethodOffset(), AcGeVector3d(0, 0, 0)); // a sheet's number is no mark of the pass
    EXPECT_EQ(Texts(), (CTexts{"一号工程", "2"}));
}

TEST_F(TemplatePass, NumbersAllSheetsAsTheFirstOneAndOneTooHigh) {
    m_template.AddText("[TH]", {5, 6, 0});
    ASSERT_EQ(Load(), 1);
    for (const int nSheet : {1, 2, 3})
        m_pass.AddFrame(nSheet, {220.0 * nSheet, 0, 0});
    EXPECT_EQ(Texts(), CTexts{"2"});
    EXPECT_EQ(ModelSpace().size(), 3U);
}

TEST_F(TemplatePass, AddsAFrameWithItsAttributesAndItsStamp) {
    m_template.AddAttribute("[GCMC]", {20, 10, 0});
    m_template.AddAttribute("[X]", {20, 5, 0}, AcDb::kTextLeft, "default");
    ASSERT_EQ(Load(), 1);
    m_pass.AddFrame(3, {100, 200, 7});
    ASSERT_EQ(ModelSpace().size(), 1U);
    const AcDbObjectId idFrame = ModelSpace()[0];
    const CDbOpen<AcDbBlockReference> frame(idFrame);
    EXPECT_EQ(frame->position(), AcGePoint3d(100, 200, 7));
    EXPECT_EQ(frame->scaleFactors(), AcGeScale3d(1.0));
    EXPECT_EQ(frame->rotation(), 0.0);
    ASSERT_EQ(frame->AttributeIds().size(), 2U);
    EXPECT_STREQ(CDbOpen<AcDbAttribute>(frame->AttributeIds()[0])->textString(), L"一号工程");
    EXPECT_STREQ(CDbOpen<AcDbAttribute>(frame->AttributeIds()[1])->textString(), L"default");
    CString strName;
    GetXDataText(idFrame, "NAME", strName);
    EXPECT_EQ(strName, "三轴剪切-3");
    double dFL = 0, dFB = 0, dFA = 0, dX = 1;
    GetXDataDouble(idFrame, "FL", dFL);
    GetXDataDouble(idFrame, "FB", dFB);
    GetXDataDouble(idFrame, "FA", dFA);
    GetXDataDouble(idFrame, "fXDist", dX);
    EXPECT_EQ(dFL, 210.0);
    EXPECT_EQ(dFB, 297.0);
    EXPECT_EQ(dFA, 25.0);
    EXPECT_EQ(dX, 0.0);
}

TEST_F(TemplatePass, FillsTwoHundredPlaceholders) {
    CTexts expected;
    Execute("create table wide(gcsy integer, a text)");
    Execute("insert into wide values(1,'值')");
    for (int i = 0; i < 200; ++i) {
        const std::string strKey = "[P" + std::to_string(i) + "]";
        m_config.Add({.t_peizhi = strKey.c_str(), .t_tablename = "wide", .t_tablefield = "a", .t_hb = i % 2});
        m_template.AddText(strKey.c_str(), {1.0 * i, 0, 0});
        expected.push_back("值");
    }
    ASSERT_EQ(Load(), 1);
    EXPECT_EQ(Texts(), expected);
}

TEST_F(TemplatePass, NamesATemplateThatIsNotThere) {
    EXPECT_EQ(m_pass.Load(), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n图框文件" + m_root.Path() + "\\Templates\\frame.dwg不存在!");
    EXPECT_TRUE(m_arBoxes.empty());
    EXPECT_FALSE(HasBlock());
}

TEST_F(TemplatePass, NamesNoTemplateWhereNoneIsConfigured) {
    m_dialog.m_pageGen.m_strFramePath.Empty();
    m_dialog.m_pageGen.m_strFrameFile.Empty();
    EXPECT_EQ(m_pass.Load(), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n图框文件不存在!");
}

TEST_F(TemplatePass, AsksForTheTemplateToBeClosedWhereItIsTheDrawingItself) {
    m_template.Write(TemplatePath());
    m_drawing.Database().SetFilename(WideFromGbk(m_root.Path("TEMPLATES/Frame.dwg")).c_str());
    EXPECT_EQ(CheckNotTemplate((m_root.Path() + "\\Templates\\frame.dwg").c_str()), 0);
    EXPECT_EQ(m_pass.Load(), 0);
    EXPECT_EQ(m_arBoxes, g_arCloseIt);
    EXPECT_FALSE(HasBlock());
    m_drawing.Database().SetFilename(L"other.dwg");
    EXPECT_EQ(CheckNotTemplate((m_root.Path() + "\\Templates\\frame.dwg").c_str()), 1);
    EXPECT_EQ(m_pass.Load(), 1);
}

TEST_F(TemplatePass, TellsFirstWhatTheSearchOfTheHostDidNotFind) {
    m_drawing.m_bFindsFiles = false;
    EXPECT_EQ(Load(), 0);
    EXPECT_EQ(m_arBoxes,
              (CTexts{"找不到文件:\r\n" + m_root.Path() + "\\Templates\\frame.dwg", g_arCloseIt[0]}));
}

TEST_F(TemplatePass, AsksForATemplateToBeClosedThatCannotBeRead) {
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), "no drawing"));
    EXPECT_EQ(m_pass.Load(), 0);
    EXPECT_EQ(m_arBoxes, g_arCloseIt);
    EXPECT_FALSE(HasBlock());
}

TEST_F(TemplatePass, AsksForATemplateToBeClosedThatIsEmpty) {
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), ""));
    EXPECT_EQ(m_pass.Load(), 0);
    EXPECT_EQ(m_arBoxes, g_arCloseIt);
    EXPECT_FALSE(HasBlock());
}

TEST_F(TemplatePass, TakesATemplateWithoutAnyText) {
    EXPECT_EQ(Load(), 1);
    m_pass.AddFrame(1, {0, 0, 0});
    EXPECT_EQ(Texts(), CTexts());
    EXPECT_EQ(ModelSpace().size(), 1U);
    EXPECT_TRUE(m_arBoxes.empty());
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(TemplatePass, RewritesTheBlockForTheNextGroup) {
    m_template.AddText("[ZKBH]", {0, 0, 0});
    m_template.AddText("[TH]", {0, 0, 0});
    ASSERT_EQ(Load(), 1);
    m_pass.AddFrame(1, {0, 0, 0});
    m_dialog.m_strZKBH = "ZK2";
    CTemplatePass next(&m_drawing.Database(), m_dialog);
    ASSERT_EQ(next.Load(), 1);
    EXPECT_EQ(Texts(), (CTexts{"ZK2", "[TH]"})); // the first group's frame shows them too
    next.AddFrame(1, {220, 0, 0});
    EXPECT_EQ(Texts(), (CTexts{"ZK2", "2"}));
    EXPECT_EQ(ModelSpace().size(), 2U);
}
