#include "drawing/drawing_file.h"

#include "platform/acad/db_line.h"
#include "platform/windows/file_bytes.h"
#include "tests/drawing/insert_block_fixture.h"

namespace {
class DrawingFile : public CInsertBlockTest {
protected:
    void InsertHere() { InsertDwgAsBlock(TemplatePath().c_str(), {1, 2, 3}, 0.5, 1000.0); }
    std::vector<AcDbObjectId> ModelSpace() { return Entities(m_drawing.Database().ModelSpaceId()); }
};
} // namespace

TEST_F(DrawingFile, IsFoundByTheHost) {
    CString strFound = "before";
    EXPECT_EQ(FindDrawingFile("missing.dwg", strFound), 0);
    EXPECT_EQ(strFound, "before");
    m_template.Write(TemplatePath());
    EXPECT_EQ(FindDrawingFile(CString(m_root.Path("TEMPLATE.dwg").c_str()), strFound), 1);
    EXPECT_EQ(strFound, TemplatePath().c_str());
}

TEST_F(DrawingFile, IsCopiedWithoutItsName) {
    m_template.AddText("[A]", {0, 0, 0});
    m_template.Write(TemplatePath());
    const auto pCopy = CopyOfDrawing(TemplatePath().c_str());
    ASSERT_TRUE(pCopy);
    EXPECT_EQ(Entities(pCopy->ModelSpaceId()).size(), 1U);
    std::wstring strName;
    pCopy->getFilename(strName);
    EXPECT_EQ(strName, L"");
    EXPECT_FALSE(CopyOfDrawing(m_root.Path("none.dwg").c_str()));
}

TEST_F(DrawingFile, BecomesABlockOfItsPathAndAReference) {
    m_template.Add(new AcDbLine({0, 0, 0}, {1, 0, 0}));
    m_template.Write(TemplatePath());
    InsertHere();
    ASSERT_EQ(ModelSpace().size(), 1U);
    const CDbOpen<AcDbBlockReference> reference(ModelSpace()[0]);
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->position(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(reference->rotation(), 0.5);
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(1000.0));
    EXPECT_EQ(SymbolName(reference->blockTableRecord()), TemplatePath());
    EXPECT_EQ(Entities(reference->blockTableRecord()).size(), 1U);
}

TEST_F(DrawingFile, ComesTwiceAsTwoReferencesToOneBlock) {
    m_template.Add(new AcDbLine({0, 0, 0}, {1, 0, 0}));
    m_template.Write(TemplatePath());
    InsertHere();
    InsertHere();
    ASSERT_EQ(ModelSpace().size(), 2U);
    const CDbOpen<AcDbBlockReference> first(ModelSpace()[0]), second(ModelSpace()[1]);
    EXPECT_EQ(first->blockTableRecord(), second->blockTableRecord());
    EXPECT_EQ(Entities(first->blockTableRecord()).size(), 1U);
}

TEST_F(DrawingFile, ThatCannotBeReadGivesNothing) {
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), "no drawing"));
    InsertHere();
    InsertDwgAsBlock("", {0, 0, 0}, 0.0, 1.0);
    EXPECT_TRUE(ModelSpace().empty());
}
