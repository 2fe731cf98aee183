// The frames that BREN puts its sheets into, from the templates of an installation.

#include "tests/road/bren_project.h"
#include "tests/support/template_file.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
class FramesRoad : public testing::Test {
protected:
    explicit FramesRoad(int nStandard = 0)
        : m_project(CSamples{{"1", "1-1"}, {"1", "1-2"}}, nStandard) {}

    std::string Root() const { return m_project.m_program.Root(); }
    std::string Generate(const std::string& strSamples = "all") const {
        return "BREN\n" + Selection("1", strSamples) + "0,0\n";
    }
    CRun Run(const std::string& strScript) const { return m_project.Run(strScript + m_project.Dump()); }
    CJson Frames() const {
        CJson frames = CJson::array();
        for (const CJson& entity : m_project.Entities())
            if (entity.value("block", "") == "BRMB") frames.push_back(entity);
        return frames;
    }
    /// The attributes of a frame, "tag=text" each.
    static std::vector<std::string> Attributes(const CJson& frame) {
        std::vector<std::string> texts;
        for (const CJson& attribute : frame["attributes"])
            texts.push_back(attribute["tag"].get<std::string>() + "=" + attribute["text"].get<std::string>());
        return texts;
    }
    /// Makes a drawing the template.
    void Choose(CTemplateFile& drawn) const {
        drawn.Write(Root() + "/Templates/own.dwg");
        m_project.m_program.Do("template --root \"$ROOT\" own.dwg");
    }
    /// How often the frames' block has a text.
    int Count(const std::string& strText) const {
        int nCount = 0;
        for (const CJson& entity : m_project.FrameEntities())
            nCount += entity.value("text", "") == strText;
        return nCount;
    }

    const CBrenProject m_project;
};
const std::string g_strCloseIt = Utf8(u8"[Tervo] 请关闭打开的模板!\n");
} // namespace

TEST_F(FramesRoad, ShowProjectBoreholeAndSheet) {
    Run(Generate());
    ASSERT_EQ(Frames().size(), 2U);
    for (const CJson& frame : Frames())
        EXPECT_EQ(Attributes(frame), (std::vector<std::string>{"[GCMC]=test", "[GCBH]=GC1", "[ZKBH]=1"}));
    const CJson stamp = Frames()[1]["xdata"];
    EXPECT_EQ(stamp, (CJson{{"TKCLASS", "TK"},
                            {"NAME", Utf8(u8"三轴剪切-2")},
                            {"BASEPOINT", {220.0, 0.0, 0.0}},
                            {"FL", 210.0},
                            {"FB", 297.0},
                            {"FA", 25.0},
                            {"fXDist", 0.0},
                            {"fYDist", 0.0}}));
    EXPECT_EQ(Count("2"), 1); // the number of every sheet
    EXPECT_EQ(Count("[TH]"), 0);
    EXPECT_EQ(Count(Utf8(u8"三轴剪切试验成果图")), 1);
}

TEST_F(FramesRoad, AreTheSameInTheFileOfTheDrawing) {
    const std::string strFile = m_project.m_program.Folder().Path("sheet.dwg");
    Run(Generate() + "SAVEAS " + strFile + "\n");
    const CJson frames = Frames(), inBlock = m_project.FrameEntities();
    Run("OPEN " + strFile + "\n");
    ASSERT_EQ(Frames().size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(Attributes(Frames()[i]), Attributes(frames[i]));
        EXPECT_EQ(Frames()[i]["xdata"], frames[i]["xdata"]);
        EXPECT_EQ(Frames()[i]["position"], frames[i]["position"]);
    }
    EXPECT_EQ(m_project.FrameEntities().size(), inBlock.size());
}

TEST_F(FramesRoad, AreFilledAnewByASecondRun) {
    m_project.m_program.Do("template --root \"$ROOT\" BREN-A3.dwg");
    Run(Generate("1-1"));
    const std::size_t nEntities = m_project.FrameEntities().size();
    Run(Generate("1-1") + "BREN\n" + Selection("1", "1-2") + "0,300\n");
    EXPECT_EQ(m_project.FrameEntities().size(), nEntities);
    EXPECT_EQ(Frames().size(), 2U);
    EXPECT_EQ(Count("GC1" + Utf8(u8"/土工")), 1);
}

TEST_F(FramesRoad, ArePagesOfTheirSize) {
    const std::string strPdf = m_project.m_program.Folder().Path("sheet.pdf");
    Run(Generate() + "PLOT " + strPdf + "\n");
    const CRun info = m_project.m_program.Shell("pdfinfo " + strPdf);
    EXPECT_NE(info.m_strOut.find("Pages:           2"), std::string::npos) << info.m_strOut;
    EXPECT_NE(info.m_strOut.find("(A4)"), std::string::npos) << info.m_strOut;
}

TEST_F(FramesRoad, NameNoBoreholeForAllSamples) {
    Run("BREN\ncheck 1063\nok\n0,0\n");
    ASSERT_EQ(Frames().size(), 2U);
    EXPECT_EQ(Attributes(Frames()[0]), (std::vector<std::string>{"[GCMC]=test", "[GCBH]=GC1", "[ZKBH]="}));
    EXPECT_EQ(m_project.Charts()[0]["m_strZKBH"], "1");
}

TEST_F(FramesRoad, WithoutMarksHaveTheMethodInTheirCorner) {
    CTemplateFile plain;
    plain.AddText("没有标记", {0, 0, 0});
    Choose(plain);
    Run(Generate());
    std::vector<CJson> methods;
    for (const CJson& entity : m_project.Entities())
        if (entity.value("text", "") == g_strUU) methods.push_back(entity["position"]);
    EXPECT_EQ(methods, (std::vector<CJson>{{0.0, 0.0, 0.0}, {220.0, 0.0, 0.0}}));
    EXPECT_EQ(Count(Utf8(u8"没有标记")), 1);
}

TEST_F(FramesRoad, AreFilledFromTwoHundredFields) {
    CTemplateFile wide;
    for (int i = 0; i < 200; ++i) {
        const std::string strName = "[F" + std::to_string(i) + "]";
        m_project.m_program.Sql(
            "Data/config.db",
            "insert into t_GraphTYPZ(t_peizhi,t_tablename,t_tablefield,t_type,t_fieldtype,t_hb) "
            "values('" +
                strName + "','x_GongCheng','GCBH',0,'" + Utf8(u8"文本") + "'," + std::to_string(i % 2) + ")");
        wide.AddText(strName.c_str(), {1.0 * i, 0, 0});
    }
    Choose(wide);
    Run(Generate("1-1"));
    EXPECT_EQ(Count("GC1"), 200);
}

TEST_F(FramesRoad, NeedATemplateThatIsThere) {
    std::filesystem::remove(Root() + "/Templates/BREN-A4.dwg");
    const CRun run = Run(Generate());
    EXPECT_NE(run.m_strOut.find(Utf8(u8"图框文件") + Root() + Utf8(u8"\\Templates\\BREN-A4.dwg不存在!")),
              std::string::npos)
        << run.m_strOut;
    EXPECT_TRUE(m_project.Entities().empty());
}

TEST_F(FramesRoad, NeedATemplateThatIsNotTheDrawingItself) {
    const CRun run = Run("OPEN " + Root() + "/Templates/BREN-A4.dwg\n" + Generate());
    EXPECT_NE(run.m_strOut.find(g_strCloseIt), std::string::npos) << run.m_strOut;
    EXPECT_TRUE(m_project.Charts().empty());
}

TEST_F(FramesRoad, NeedATemplateThatNoOtherDocumentHasOpen) {
    const std::string strOpen = "OPEN " + Root() + "/Templates/BREN-A4.dwg\n";
    const CRun refused = Run(strOpen + "ACTIVATE 1\n" + Generate());
    EXPECT_NE(refused.m_strOut.find(g_strCloseIt), std::string::npos) << refused.m_strOut;
    EXPECT_TRUE(m_project.Entities().empty());
    const CRun closed = Run(strOpen + "CLOSE\n" + Generate());
    EXPECT_EQ(closed.m_strOut.find(g_strCloseIt), std::string::npos) << closed.m_strOut;
    EXPECT_EQ(Frames().size(), 2U);
}

TEST_F(FramesRoad, NeedATemplateThatMayBeRead) {
    const std::string strTemplate = Root() + "/Templates/BREN-A4.dwg";
    std::filesystem::remove(strTemplate);
    std::filesystem::create_directory(strTemplate); // which nobody reads, an administrator neither
    const CRun run = Run(Generate());
    EXPECT_NE(run.m_strOut.find(g_strCloseIt), std::string::npos) << run.m_strOut;
    EXPECT_TRUE(m_project.Entities().empty());
}

TEST_F(FramesRoad, NeedATemplateThatIsADrawing) {
    EXPECT_FALSE(m_project.m_program.Folder().Write("root/Templates/BREN-A4.dwg", "AC1015").empty());
    const CRun run = Run(Generate());
    EXPECT_NE(run.m_strOut.find(g_strCloseIt), std::string::npos) << run.m_strOut;
    EXPECT_TRUE(m_project.Entities().empty());
}

TEST_F(FramesRoad, DoNotStandWithinThemselves) {
    const std::string strFile = Root() + "/Templates/used.dwg";
    Run(Generate() + "SAVEAS " + strFile + "\n");
    m_project.m_program.Do("template --root \"$ROOT\" used.dwg");
    const CRun run = Run(Generate());
    EXPECT_NE(run.m_strOut.find(g_strCloseIt), std::string::npos) << run.m_strOut;
    EXPECT_TRUE(m_project.Entities().empty());
}

namespace {
class StandardTwoFramesRoad : public FramesRoad {
protected:
    StandardTwoFramesRoad()
        : FramesRoad(2) {
        m_project.m_program.Do("template --root \"$ROOT\" BREN-A3.dwg");
    }
};
} // namespace

TEST_F(StandardTwoFramesRoad, StandOnATitleStripInMillimetres) {
    Run(Generate("1-1"));
    CJson strips = CJson::array();
    for (const CJson& entity : m_project.Entities())
        if (entity["class"] == "AcDbBlockReference" && entity["block"] != "BRMB") strips.push_back(entity);
    ASSERT_EQ(strips.size(), 1U);
    EXPECT_EQ(strips[0]["block"], Root() + "/Support/Block/gltka3.dwg");
    EXPECT_EQ(strips[0]["position"], CJson({-24.0, 5.0, 0.0}));
    EXPECT_EQ(strips[0]["scale"], CJson({1000.0, 1000.0, 1000.0}));
    ASSERT_EQ(Frames().size(), 1U);
    EXPECT_EQ(Attributes(Frames()[0]).size(), 3U);
}
