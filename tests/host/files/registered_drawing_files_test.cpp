#include "host/files/registered_drawing_files.h"

#include "tests/temp_folder.h"

#include <gtest/gtest.h>

TEST(RegisteredDrawingFiles, AreThoseOfTheDatabaseWhileTheyLive) {
    {
        const CRegisteredDrawingFiles files;
        EXPECT_EQ(DrawingFileHost(), &files);
    }
    EXPECT_EQ(DrawingFileHost(), nullptr);
}

TEST(RegisteredDrawingFiles, AnswerWithAStatus) {
    const CTempFolder folder;
    CRegisteredDrawingFiles files;
    AcDbDatabase database;
    database.setLtscale(3.0);
    for (const char* name : {"a.dwg", "a.DXF"}) {
        EXPECT_EQ(files.Write(database, folder.Path(name)), Acad::eOk) << name;
        std::unique_ptr<AcDbDatabase> pRead;
        ASSERT_EQ(files.Read(folder.Path(name), &pRead), Acad::eOk) << name;
        EXPECT_EQ(pRead->ltscale(), 3.0) << name;
    }
    EXPECT_EQ(files.Write(database, folder.Path("a.txt")), Acad::eInvalidInput);
    EXPECT_EQ(files.Write(database, folder.Path("none/a.dwg")), Acad::eFileAccessErr);
    std::unique_ptr<AcDbDatabase> pRead;
    EXPECT_EQ(files.Read(folder.Path("none.dwg"), &pRead), Acad::eFileNotFound);
    EXPECT_EQ(files.Read(folder.Path(), &pRead), Acad::eFileAccessErr);
    EXPECT_EQ(files.Read(folder.Write("b.dwg", "AC1021"), &pRead), Acad::eFilerError);
    EXPECT_EQ(pRead, nullptr);
}
