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
