// What the modules hear of drawings that come and go; the questions are tested with the commands.

#include "host/console/drawing_session.h"

#include "tests/host/console/program_run.h"

using DrawingSession = CProgramRun;

TEST_F(DrawingSession, ModulesHearOfEachDrawingThatComesOrGoes) {
    EXPECT_EQ(RunDocuments("TELL\nNEW\nCLOSE\nQUIT\n").m_strOut,
              "\nended TELL\n"
              "\nmessage 3\nended NEW\n"
              "\nmessage 4\nended CLOSE\n"
              "\nended QUIT\n"
              "\nmessage 13\nmessage 4\nmessage 8\nmessage 2\n");
}

TEST_F(DrawingSession, TheEndOfTheScriptIsToldLikeQuit) {
    EXPECT_EQ(RunDocuments("TELL\nNEW\n").m_strOut,
              "\nended TELL\n"
              "\nmessage 3\nended NEW\n"
              "\nmessage 13\nmessage 4\nmessage 4\nmessage 8\nmessage 2\n");
}

TEST_F(DrawingSession, InSingleDocumentModeTheOldDrawingGoesBeforeTheNewOneComes) {
    EXPECT_EQ(RunDocuments("SETVAR SDI 1\nTELL\nNEW\nCLOSE\nQUIT\n").m_strOut,
              "\nended TELL\n"
              "\nmessage 4\nmessage 3\nended NEW\n"
              "\nmessage 4\nended CLOSE\n"
              "\nended QUIT\n"
              "\nmessage 13\nmessage 8\nmessage 2\n");
}

TEST_F(DrawingSession, AnOpenedDrawingIsToldLikeANewOne) {
    ASSERT_EQ(RunDocuments("LINE 0,0 1,1\nSAVEAS a.dwg\n").m_nStatus, 0);
    EXPECT_EQ(RunDocuments("TELL\nOPEN a.dwg\nCLOSE\nQUIT\n").m_strOut,
              "\nended TELL\n"
              "\nmessage 3\nended OPEN\n"
              "\nmessage 4\nended CLOSE\n"
              "\nended QUIT\n"
              "\nmessage 13\nmessage 4\nmessage 8\nmessage 2\n");
}

TEST_F(DrawingSession, TheDrawingThatTheProgramIsCalledWithIsTheOnlyOne) {
    ASSERT_EQ(RunDocuments("LINE 0,0 1,1\nSAVEAS a.dwg\n").m_nStatus, 0);
    EXPECT_EQ(RunDocuments("DOCUMENTS\nUNDO 1\nLIST L\n", "-q a.dwg").m_strOut.substr(0, 5), "1 * /");
    const CProgramResult result = RunDocuments("NOSUCH\n", "-q missing.dwg");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strErr, "tvcad: missing.dwg cannot be opened: there is no such file\n");
    EXPECT_EQ(RunDocuments("DOCUMENTS\n", "-q script").m_strErr,
              "tvcad: script cannot be opened: the file is neither a DWG nor a DXF drawing\n");
}

TEST_F(DrawingSession, InSingleDocumentModeAnOpenedDrawingTakesThePlaceOfTheCurrentOne) {
    ASSERT_EQ(RunDocuments("SAVEAS a.dwg\n").m_nStatus, 0);
    const std::string change = "LINE 0,0 1,1\nSETVAR SDI 1\n", list = "1 * " + (m_folder / "a.dwg").string();
    EXPECT_EQ(RunDocuments(change + "OPEN a.dwg\nno\nDOCUMENTS\n").m_strOut, list + "\n");
    EXPECT_EQ(RunDocuments(change + "OPEN a.dwg\ncancel\nDOCUMENTS\n").m_strOut, "1 * Drawing1 (changed)\n");
    EXPECT_EQ(RunDocuments(change + "OPEN missing.dwg\ncancel\n").m_strErr,
              "script:3: missing.dwg cannot be opened: there is no such file\n")
        << "nothing was asked";
}

TEST_F(DrawingSession, TheFileThatIsSavedByTheQuestionIsOpenedAsItIsThen) {
    ASSERT_EQ(RunDocuments("SAVEAS a.dwg\n").m_nStatus, 0);
    const CProgramResult result =
        RunDocuments("SETVAR SDI 1\nOPEN a.dwg\nLINE 0,0 1,1\nOPEN a.dwg\nyes\nLIST L\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_NE(result.m_strOut.find("AcDbLine"), std::string::npos) << result.m_strOut;
    EXPECT_EQ(result.m_strOut.find("(changed)"), std::string::npos);
}

TEST_F(DrawingSession, AFileOfTheOtherFormatThanItsEndingSaysIsOpenedAndTold) {
    ASSERT_EQ(RunDocuments("LINE 0,0 1,1\nSAVEAS a.dxf\n").m_nStatus, 0);
    std::filesystem::rename(m_folder / "a.dxf", m_folder / "b.dwg");
    const CProgramResult result = RunDocuments("OPEN b.dwg\nQSAVE\nOPEN b.dwg\n");
    EXPECT_EQ(result.m_strErr, "");
    EXPECT_EQ(result.m_strOut, (m_folder / "b.dwg").string() + " holds a DXF drawing, against its ending\n")
        << "once: it was saved by its ending";
}

TEST_F(DrawingSession, EachEntityOfAnOpenedDrawingIsDrawnOnce) {
    ASSERT_EQ(RunScript("SHEET 5,5\nSAVEAS a.dwg\n", "-q").m_nStatus, 0);
    const std::string strDrawn = Quiet("TELL\nOPEN a.dwg\n");
    EXPECT_EQ(strDrawn.find("drawn "), strDrawn.rfind("drawn ")) << strDrawn;
    EXPECT_NE(strDrawn.find("drawn "), std::string::npos) << strDrawn;
    EXPECT_EQ(Quiet("OPEN a.dwg\nTELL\nLINE 0,0 1,1\nDOCUMENTS\n").find("drawn "), std::string::npos);
}
