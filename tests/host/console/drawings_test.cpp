#include "host/console/drawings.h"

#include <gtest/gtest.h>

#include "platform/acad/host_application.h"

TEST(Drawings, BeginWithOneUnchangedWorkingDrawing) {
    const CDrawings drawings;
    EXPECT_EQ(drawings.Name(), "Drawing1");
    EXPECT_TRUE(drawings.ChangedNames().empty());
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &drawings.Current());
}

TEST(Drawings, ANewOneBecomesCurrentAndTheOthersStay) {
    CDrawings drawings;
    drawings.Current().setLtscale(2.0);
    drawings.AddNew();
    EXPECT_EQ(drawings.Name(), "Drawing2");
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &drawings.Current());
    EXPECT_EQ(drawings.ChangedNames(), std::vector<std::string>{"Drawing1"});
}

TEST(Drawings, AReplacedOneIsGone) {
    CDrawings drawings;
    drawings.Current().setLtscale(2.0);
    drawings.ReplaceCurrent();
    EXPECT_EQ(drawings.Name(), "Drawing2");
    EXPECT_EQ(drawings.Current().ltscale(), 1.0);
    EXPECT_TRUE(drawings.ChangedNames().empty());
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &drawings.Current());
}

TEST(Drawings, ADrawingWithAFileIsNamedByIt) {
    const CDrawings drawings;
    drawings.Current().SetFilename(L"/tmp/室内曲线/a.dwg");
    EXPECT_EQ(drawings.Name(), "/tmp/\xE5\xAE\xA4\xE5\x86\x85\xE6\x9B\xB2\xE7\xBA\xBF/a.dwg");
    EXPECT_EQ(drawings.FolderGbk(), "/tmp/室内曲线");
}

TEST(Drawings, NoneIsTheWorkingOneWhenTheyAreGone) {
    { const CDrawings drawings; }
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}
