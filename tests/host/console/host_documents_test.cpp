#include "host/console/host_documents.h"

#include "tests/host/console/program_run.h"

using HostDocuments = CProgramRun;

TEST_F(HostDocuments, FilesAreOpenedInTheApplicationsContextOnly) {
    WriteFile("present.dwg", "AC1015");
    EXPECT_EQ(RunDocuments("OPENFILES\nDOCUMENTS\n").m_strOut,
              "\nmissing eInvalidContext\npresent eInvalidContext"
              "\nmissing eFileNotFound\npresent eFilerError\n"
              "1 * Drawing1\n");
}

TEST_F(HostDocuments, ADrawingIsOpenedInPlaceInSingleDocumentModeOnly) {
    EXPECT_EQ(RunDocuments("SYNCOPEN\nSETVAR SDI 1\nSYNCOPEN\nDOCUMENTS\n").m_strOut,
              "\nsync eNotApplicable\n\nsync eFileNotFound\n1 * Drawing1\n");
}

TEST_F(HostDocuments, ANewDocumentBecomesCurrentBeforeTheNextLine) {
    EXPECT_EQ(RunDocuments("ADDDOCUMENT\nDOCUMENTS\n").m_strOut, "\nnew eOk\n1   Drawing1\n2 * Drawing2\n");
    EXPECT_EQ(RunDocuments("SETVAR SDI 1\nADDDOCUMENT\nDOCUMENTS\n").m_strOut, "\nnew eOk\n1 * Drawing2\n");
}

TEST_F(HostDocuments, ADocumentThatAModuleClosesIsAskedForWhenItIsChanged) {
    EXPECT_EQ(RunDocuments("CLOSEDOCUMENT\nDOCUMENTS\n").m_strOut, "\nlocked eLockViolation\nclose eOk\n");
    const std::string change = "LINE 0,0 1,1\n";
    EXPECT_EQ(RunDocuments(change + "CLOSEDOCUMENT\nno\nDOCUMENTS\n").m_strOut,
              "\nlocked eLockViolation\nclose eOk\n");
    EXPECT_EQ(RunDocuments(change + "CLOSEDOCUMENT\ncancel\nDOCUMENTS\n").m_strOut,
              "\nlocked eLockViolation\nclose eUserBreak\n1 * Drawing1 (changed)\n");
    const CProgramResult result = RunDocuments(change + "CLOSEDOCUMENT\nperhaps\nDOCUMENTS\n");
    EXPECT_EQ(result.m_strOut, "\nlocked eLockViolation\nclose eUserBreak\n");
    EXPECT_EQ(result.m_nStatus, 5);
    EXPECT_EQ(result.m_strErr, "script:3: neither yes, no nor cancel: perhaps\n");
}
