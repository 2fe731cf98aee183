#include "host/console/drawing_files.h"

#include "tests/host/console/program_run.h"

using DrawingFiles = CProgramRun;

TEST_F(DrawingFiles, TellAMissingFileFromOneThatIsNotReadHere) {
    AcDbDatabase drawing;
    EXPECT_EQ(ReadDrawingFile(m_folder / "missing.dwg", drawing), Acad::eFileNotFound);
    EXPECT_EQ(ReadDrawingFile(m_folder, drawing), Acad::eFileNotFound);
    WriteFile("present.dwg", "AC1015");
    EXPECT_EQ(ReadDrawingFile(m_folder / "present.dwg", drawing), Acad::eNotImplementedYet);
}

TEST_F(DrawingFiles, WriteNoFormatYet) {
    const AcDbDatabase drawing;
    EXPECT_EQ(WriteDrawingFile(drawing, m_folder / "a.dwg"), Acad::eNotImplementedYet);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "a.dwg"));
}
