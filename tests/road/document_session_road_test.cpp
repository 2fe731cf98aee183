// What none of the module's commands reaches, reached in real runs by commands of a test's module.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
const std::string g_strDocumentsQuestion =
    Utf8(u8"[Tervo] 现在AutoCAD已经打开了多个文档,\\n\\n本命令只允许在打开一个文档的条件下使用.\\n\\n "
         u8"点击\"是\"程序自动关闭打开的文档,继续执行命令。\\n\\n点击\"否\"取消本命令\n");
const std::string g_strStillOpen = Utf8(u8"\n文档无法自动关闭,请使用sdi命令设置成单位档模式来执行本命令.\n");

class DocumentSessionRoad : public testing::Test {
protected:
    /// What a run prints; prompts and answers are among it unless they are left out by an option.
    std::string Run(const std::string& strScript, const std::string& strOption = "-q") const {
        const CTempFolder& folder = m_project.m_program.Folder();
        const CRun run =
            m_project.m_program.Shell(TERVO_BIN "/tvcad --root \"$ROOT\" --load '" SESSION_MODULE "' " +
                                      strOption + " -s '" + folder.Write("script", strScript) + "'");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        return run.m_strOut;
    }
    std::string Path(const std::string& strName) const { return m_project.m_program.Folder().Path(strName); }
    void Request(const std::string& strRequest) const {
        m_project.m_program.Folder().Write("root/request", strRequest);
    }
    std::string Settings() const { return m_project.m_program.Read("Settings.ini", true); }

    const CBrenProject m_project{g_arOneSample};
};

/// Two drawings in files, of 100 and of 200 units.
class DocumentSessionFiles : public DocumentSessionRoad {
protected:
    DocumentSessionFiles() {
        Run("LINE 0,0 0,100\nSAVEAS " + Path("a.dwg") + "\nNEW\nLINE 0,0 0,200\nSAVEAS " + Path("b.dwg") +
            "\n");
    }
    std::string Paths() const { return Path("a.dwg") + "|" + Path("missing.dwg") + "|" + Path("b.dwg"); }
    std::string Opened() const { return "2   " + Path("a.dwg") + "\n3 * " + Path("b.dwg") + "\n"; }
};
} // namespace

TEST_F(DocumentSessionRoad, FindsTheFolderOfTheProjectsCharts) {
    EXPECT_EQ(Run("HASFOLDER\n"), "\nresult 0\n");
    Run("BREN\n" + Selection("1", "1-1") + "0,0\nSAVECHARTS\n");
    EXPECT_EQ(Run("HASFOLDER\n"), "\nresult 1\n");
}

TEST_F(DocumentSessionRoad, TakesTheModeOfTheSettings) {
    EXPECT_EQ(Run("APPLYSDI\nSETVAR SDI\n"), "1\n");
    m_project.m_program.Folder().Write("root/Settings.ini", "[MDI]\nMDIMODE=0\n");
    EXPECT_EQ(Run("SETVAR SDI 1\nAPPLYSDI\nSETVAR SDI\n"), "0\n");
}

TEST_F(DocumentSessionRoad, GoesOverToASingleDocument) {
    EXPECT_EQ(Run("ENSURESINGLE\nSETVAR SDI\n"), "\nresult 1\n1\n");
    EXPECT_EQ(Run("NEW\nENSURESINGLE\nno\nSETVAR SDI\n"), g_strDocumentsQuestion + "\nresult 0\n0\n");
}

TEST_F(DocumentSessionRoad, ClosesTheOtherDocumentsAndAsksForAChangedOne) {
    const std::string strChanged = "LINE 0,0 1,1\nNEW\nNEW\nACTIVATE 2\nENSURESINGLE\nyes\n";
    EXPECT_EQ(Run(strChanged + "no\nDOCUMENTS\nENSURESINGLE\nSETVAR SDI\n"),
              g_strDocumentsQuestion + g_strStillOpen + "\nresult 0\n1 * Drawing2\n\nresult 1\n1\n");
    EXPECT_EQ(Run(strChanged + "cancel\nDOCUMENTS\n"),
              g_strDocumentsQuestion + g_strStillOpen + "\nresult 0\n1 * Drawing1 (changed)\n2   Drawing2\n");
}

TEST_F(DocumentSessionRoad, TypesACommandBehindAnEscape) {
    EXPECT_EQ(Run("SENDLINE\nDOCUMENTS\n", ""), "Command: SENDLINE\nCommand: cancel\nCommand: LINE 0,0 "
                                                "1,1\nCommand: DOCUMENTS\n1 * Drawing1 (changed)\n");
}

TEST_F(DocumentSessionRoad, ClosesTheDocumentInApplicationContextOnly) {
    EXPECT_EQ(Run("ENDDOCUMENT\nDOCUMENTS\n"), "\nstatus eInvalidContext\nstatus eOk\n");
    const std::string strChanged = "LINE 0,0 1,1\nENDDOCUMENT\n";
    EXPECT_EQ(Run(strChanged + "cancel\nDOCUMENTS\n"),
              "\nstatus eInvalidContext\nstatus eUserBreak\n1 * Drawing1 (changed)\n");
    EXPECT_EQ(Run(strChanged + "no\nDOCUMENTS\n"), "\nstatus eInvalidContext\nstatus eOk\n");
}

TEST_F(DocumentSessionFiles, OpenEachInADocumentWithItsZoom) {
    Request("1 " + Paths());
    EXPECT_EQ(Run("OPENCHARTS\nDOCUMENTS\nSETVAR VIEWSIZE\nACTIVATE 2\nSETVAR VIEWSIZE\n"),
              "\nstatus eOk\n1   Drawing1\n" + Opened() + "200\n100\n");
    EXPECT_EQ(Run("OPENCHARTS\n", ""),
              "Command: OPENCHARTS\n\nstatus eOk\nCommand: zoom e\nCommand: zoom e\n");
    Request("2 " + Paths());
    EXPECT_EQ(Run("OPENCHARTS\n", ""),
              "Command: OPENCHARTS\n\nstatus eOk\nCommand: zoom a\nCommand: zoom a\n");
    Request("0 " + Paths());
    EXPECT_EQ(Run("OPENCHARTS\nDOCUMENTS\n", ""), "Command: OPENCHARTS\n\nstatus eOk\n"
                                                  "Command: DOCUMENTS\n1   Drawing1\n" +
                                                      Opened());
}

TEST_F(DocumentSessionFiles, OpenTheFirstAloneInSingleDocumentMode) {
    Request("1 " + Paths());
    EXPECT_EQ(Run("SETVAR SDI 2\nOPENCHARTS\nDOCUMENTS\nSETVAR VIEWSIZE\n"),
              Utf8(u8"当前是单文档状态,只能打开一个文档\nstatus eOk\n1 * ") + Path("a.dwg") + "\n100\n");
    Request("0 " + Path("missing.dwg"));
    EXPECT_EQ(Run("SETVAR SDI 1\nOPENCHARTS\nDOCUMENTS\n"), "\nstatus eFileNotFound\n1 * Drawing1\n");
}

TEST_F(DocumentSessionRoad, KeepsTheSettingsOfItsPages) {
    const std::string strOther = "page " + Utf8(u8"标注") + "\n";
    Run("PAGES\nset 1058 3\nuncheck 1027\nuncheck 1026\nselect 1028 A2\n" + strOther +
        "set 1019 2024-03-09\nset 1017 " + Utf8(u8"甲") + "\nuncheck 1024\nok\n");
    EXPECT_EQ(Settings(),
              Utf8(u8"[CBRENDlg]\nbWJKX=0\nbYZT=0\nsTF=A2\nnNUM=3\nbRQ=0\nbSYZ=1\nbWCDW=1\nbJCZ=1\n"
                   u8"sJCZ=\nsWCDW=\nsSYZ=甲\nsRQ=2024年3月9日\n"));
    EXPECT_EQ(Run("PAGES\nshow\n" + strOther + "show\ncancel\n"), Utf8(u8R"shown(dialog 12 "设置"
page "选项"
1026 check enabled "加外框线" 0
65535 label enabled "图幅(&S)" ""
1028 combo enabled "" 5
    "A0"
    "A1"
  > "A2"
    "A3"
    "A4"
1027 check enabled "生成一个dwg文件" 0
65535 label enabled "每行图框数(&N)" ""
1058 edit disabled "" "3"
1 button enabled "确定" ""
2 button enabled "取消" ""
dialog 13 "设置"
page "标注"
1021 check enabled "完成单位名称" 1
1016 edit enabled "" ""
1022 check enabled "试验者" 1
1017 edit enabled "" "甲"
1023 check enabled "检查者" 1
1018 edit enabled "" ""
1024 check enabled "日  期" 0
1019 date enabled "" "2024-03-09"
1 button enabled "确定" ""
2 button enabled "取消" ""

result 2
)shown"));
}

TEST_F(DocumentSessionRoad, RefusesANumberOfFramesOutOfRange) {
    EXPECT_EQ(Run("PAGES\nset 1058 0\nok\nset 1058 100001\nok\nset 1058 100000\nok\n"),
              Utf8(u8"[Tervo] 请输入 1 到 100000 之间的整数。\n[Tervo] 请输入 1 到 100000 "
                   u8"之间的整数。\n\nresult 1\n"));
    EXPECT_NE(Settings().find("\nnNUM=100000\n"), std::string::npos) << Settings();
}
