#include "host/console/drawings.h"

#include <gtest/gtest.h>

#include "platform/acad/host_application.h"

namespace {

std::vector<std::string> Names(const std::vector<AcApDocument*>& documents) {
    std::vector<std::string> names;
    for (const AcApDocument* const pDocument : documents)
        names.push_back(CDrawings::NameOf(*pDocument));
    return names;
}

std::string Current(const CDrawings& drawings) {
    return CDrawings::NameOf(*drawings.CurrentDocument());
}

using CNames = std::vector<std::string>;

} // namespace

TEST(Drawings, BeginWithOneUnchangedWorkingDrawing) {
    const CDrawings drawings;
    EXPECT_EQ(Current(drawings), "Drawing1");
    EXPECT_TRUE(drawings.ChangedDocuments().empty());
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), drawings.CurrentDocument()->database());
}

TEST(Drawings, ANewOneBecomesCurrentAndTheOthersStay) {
    CDrawings drawings;
    drawings.CurrentDocument()->database()->setLtscale(2.0);
    drawings.AddNew();
    EXPECT_EQ(Current(drawings), "Drawing2");
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), drawings.CurrentDocument()->database());
    EXPECT_EQ(Names(drawings.Documents()), (CNames{"Drawing1", "Drawing2"}));
    EXPECT_EQ(Names(drawings.ChangedDocuments()), CNames{"Drawing1"});
}

TEST(Drawings, HaveNumbersThatNoLaterOneGets) {
    CDrawings drawings;
    EXPECT_EQ(drawings.NumberOf(*drawings.CurrentDocument()), 1);
    drawings.AddNew();
    EXPECT_EQ(drawings.NumberOf(*drawings.CurrentDocument()), 2);
    drawings.Close(*drawings.CurrentDocument());
    drawings.AddNew();
    EXPECT_EQ(drawings.NumberOf(*drawings.CurrentDocument()), 3);
    EXPECT_EQ(drawings.NumberOf(*drawings.Documents()[0]), 1);
}

TEST(Drawings, ThatOneIsCurrentThatIsMadeSo) {
    CDrawings drawings;
    drawings.AddNew();
    drawings.MakeCurrent(*drawings.Documents()[0]);
    EXPECT_EQ(Current(drawings), "Drawing1");
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), drawings.CurrentDocument()->database());
    EXPECT_EQ(Names(drawings.Documents()), (CNames{"Drawing1", "Drawing2"}));
}

TEST(Drawings, AfterTheCurrentOneThatOneIsCurrentThatWasBefore) {
    CDrawings drawings;
    drawings.AddNew();
    drawings.AddNew();
    drawings.MakeCurrent(*drawings.Documents()[0]);
    drawings.Close(*drawings.Documents()[1]); // not the current one
    EXPECT_EQ(Current(drawings), "Drawing1");
    drawings.Close(*drawings.CurrentDocument());
    EXPECT_EQ(Current(drawings), "Drawing3");
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), drawings.CurrentDocument()->database());
}

TEST(Drawings, NoneIsLeftAfterTheLast) {
    CDrawings drawings;
    drawings.Close(*drawings.CurrentDocument());
    EXPECT_EQ(drawings.CurrentDocument(), nullptr);
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    EXPECT_EQ(drawings.FolderGbk(), "");
    drawings.AddNew();
    EXPECT_EQ(Current(drawings), "Drawing2");
}

TEST(Drawings, ADrawingWithAFileIsNamedByIt) {
    const CDrawings drawings;
    EXPECT_EQ(drawings.FolderGbk(), "");
    drawings.CurrentDocument()->database()->SetFilename(L"/tmp/室内曲线/a.dwg");
    EXPECT_EQ(Current(drawings), "/tmp/\xE5\xAE\xA4\xE5\x86\x85\xE6\x9B\xB2\xE7\xBA\xBF/a.dwg");
    EXPECT_EQ(drawings.FolderGbk(), "/tmp/室内曲线");
}

TEST(Drawings, NoneIsTheWorkingOneWhenTheyAreGone) {
    { const CDrawings drawings; }
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}
