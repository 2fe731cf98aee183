#include "drawing/insert_block.h"

#include "drawing/xdata.h"
#include "platform/acad/db_line.h"
#include "platform/windows/file_bytes.h"
#include "tests/drawing/insert_block_fixture.h"
#include "tests/other_user.h"

namespace {
class InsertBlock : public CInsertBlockTest {
protected:
    int Insert(const std::string& strPath) {
        return m_block.InsertBlockDef(strPath.c_str(), "FRAME", &m_drawing.Database());
    }
    bool HasFrame() { return CDbOpen<AcDbBlockTable>(m_drawing.Database().blockTableId())->has(L"FRAME"); }
    AcDbObjectId Reference(double dRotation = 0.0, double dXScale = 1.0, double dYScale = 1.0) {
        return m_block.InsertReference({10, 20, 30}, dRotation, dXScale, dYScale, &m_drawing.Database());
    }
};
} // namespace

TEST_F(InsertBlock, BringsATemplateIntoTheDrawing) {
    m_template.Add(new AcDbLine({0, 0, 0}, {210, 0, 0}));
    m_template.AddText("[GCMC]", {30, 10, 0}, AcDb::kTextCenter);
    m_template.AddAttribute("[ZKBH]", {40, 10, 0});
    Load();
    EXPECT_EQ(m_block.m_strBlockName, "FRAME");
    EXPECT_EQ(SymbolName(m_block.m_idBlockDef), "FRAME");
    ASSERT_EQ(Entities(m_block.m_idBlockDef).size(), 3U);
    EXPECT_EQ(Texts(), (CTexts{"[GCMC]", ""}));
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(InsertBlock, TakesTheTemplateInPlaceOfTheBlocksFormerContent) {
    m_template.AddText("[A]", {0, 0, 0});
    Load();
    m_block.ReplaceBlockTexts(List({"[A]"}), List({"filled"}));
    const AcDbObjectId idReference = Reference();
    EXPECT_EQ(Insert(TemplatePath()), 1);
    EXPECT_EQ(Texts(), CTexts{"[A]"});
    EXPECT_EQ(CDbOpen<AcDbBlockReference>(idReference)->blockTableRecord(), m_block.m_idBlockDef);
}

TEST_F(InsertBlock, SaysThatAFileIsNotFound) {
    EXPECT_EQ(Insert("C:\\Templates\\none.dwg"), 0);
    EXPECT_EQ(m_arBoxes, CTexts{"找不到文件:\r\nC:\\Templates\\none.dwg"});
    EXPECT_FALSE(HasFrame());
}

TEST_F(InsertBlock, RefusesAFileThatIsNoDrawingInSilence) {
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), "AC1015 and no more"));
    EXPECT_EQ(Insert(TemplatePath()), 0);
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), ""));
    EXPECT_EQ(Insert(TemplatePath()), 0);
    EXPECT_TRUE(m_arBoxes.empty());
    EXPECT_FALSE(HasFrame());
    EXPECT_TRUE(m_block.m_idBlockDef.isNull());
}

TEST_F(InsertBlock, RefusesAFileThatNobodyMayRead) {
    m_template.Write(TemplatePath());
    EXPECT_EQ(AsPlainUser(m_root, [this] { return Insert(TemplatePath()); }), 1);
    std::filesystem::permissions(TemplatePath(), std::filesystem::perms::none);
    EXPECT_EQ(AsPlainUser(m_root, [this] { return 2 * Insert(TemplatePath()) + HasFrame(); }), 0);
}

TEST_F(InsertBlock, KeepsTheFormerBlockWhereTheFileIsNoDrawing) {
    m_template.AddText("[A]", {0, 0, 0});
    Load();
    ASSERT_TRUE(WriteFileWhole(TemplatePath(), "no drawing"));
    EXPECT_EQ(Insert(TemplatePath()), 0);
    EXPECT_EQ(Texts(), CTexts{"[A]"});
}

TEST_F(InsertBlock, TakesAnEmptyTemplate) {
    Load();
    EXPECT_TRUE(Entities(m_block.m_idBlockDef).empty());
    EXPECT_FALSE(Reference().isNull());
}

TEST_F(InsertBlock, RefusesATemplateThatHoldsTheBlockItself) {
    CInsertBlock inner;
    CTemplateFile frame;
    frame.AddText("[A]", {0, 0, 0});
    frame.Write(m_root.Path("inner.dwg"));
    ASSERT_EQ(inner.InsertBlockDef(m_root.Path("inner.dwg").c_str(), "frame", &m_template.m_drawing), 1);
    ASSERT_FALSE(inner.InsertReference({0, 0, 0}, 0.0, 1.0, 1.0, &m_template.m_drawing).isNull());
    m_template.Write(TemplatePath());
    EXPECT_EQ(Insert(TemplatePath()), 0);
    EXPECT_FALSE(HasFrame());
}

TEST_F(InsertBlock, PutsReferencesIntoModelSpace) {
    Load();
    const AcDbObjectId id = Reference(0.5, 2.0, 3.0);
    EXPECT_EQ(m_block.m_idLastRef, id);
    EXPECT_EQ(Entities(m_drawing.Database().ModelSpaceId()), std::vector<AcDbObjectId>{id});
    const CDbOpen<AcDbBlockReference> reference(id, AcDb::kForWrite); // it was closed
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->position(), AcGePoint3d(10, 20, 30));
    EXPECT_EQ(reference->rotation(), 0.5);
    EXPECT_EQ(reference->scaleFactors(), AcGeScale3d(2.0, 3.0, 1.0));
    EXPECT_TRUE(reference->AttributeIds().empty());
}

TEST_F(InsertBlock, LeavesAReferenceOpenWhoseDefinitionCannotBeOpened) {
    Load();
    {
        const CDbOpen<AcDbBlockTableRecord> definition(m_block.m_idBlockDef, AcDb::kForWrite);
        EXPECT_TRUE(Reference().isNull());
    }
    AcDbObject* pReference = nullptr;
    EXPECT_EQ(acdbOpenAcDbObject(pReference, m_block.m_idLastRef, AcDb::kForRead), Acad::eWasOpenForWrite);
}

TEST_F(InsertBlock, StampsTheLastEntityAsAFrame) {
    Load();
    const AcDbObjectId id = Reference();
    EXPECT_EQ(CInsertBlock::StampFrame({12, 25, 1}, "三轴剪切-1", 210, 297, 25), 1);
    CString strText;
    EXPECT_EQ(GetXDataText(id, "TKCLASS", strText), 1);
    EXPECT_EQ(strText, "TK");
    EXPECT_EQ(GetXDataText(id, "NAME", strText), 1);
    EXPECT_EQ(strText, "三轴剪切-1");
    AcGePoint3d ptBase;
    EXPECT_EQ(GetXDataPoint(id, "BASEPOINT", ptBase), 1);
    EXPECT_EQ(ptBase, AcGePoint3d(12, 25, 1));
    const auto real = [id](const char* pKey) {
        double dValue = 0.0;
        EXPECT_EQ(GetXDataDouble(id, pKey, dValue), 1) << pKey;
        return dValue;
    };
    EXPECT_EQ(real("FL"), 210.0);
    EXPECT_EQ(real("FB"), 297.0);
    EXPECT_EQ(real("FA"), 25.0);
    EXPECT_EQ(real("fXDist"), 2.0);
    EXPECT_EQ(real("fYDist"), 5.0);
}

TEST_F(InsertBlock, StampsInTheOrderOtherModulesRead) {
    Load();
    const AcDbObjectId id = Reference();
    CInsertBlock::StampFrame({0, 0, 0}, "a", 1, 2, 3);
    std::string strApps;
    for (const CXDataOfApp& app : CDbOpen<AcDbEntity>(id)->XData().Apps())
        strApps += SymbolName(app.m_idApp) + " ";
    EXPECT_EQ(strApps, "TKCLASS NAME BASEPOINT FL FB FA fXDist fYDist ");
}

TEST_F(InsertBlock, StampsNothingInAnEmptyDrawing) {
    EXPECT_EQ(CInsertBlock::StampFrame({0, 0, 0}, "a", 1, 2, 3), 1);
    EXPECT_TRUE(Entities(m_drawing.Database().ModelSpaceId()).empty());
}

TEST_F(InsertBlock, StampsNothingOnAnEntityThatIsInUse) {
    Load();
    const CDbOpen<AcDbEntity> used(Reference(), AcDb::kForWrite);
    EXPECT_EQ(CInsertBlock::StampFrame({0, 0, 0}, "a", 1, 2, 3), 1);
    EXPECT_TRUE(used->XData().Apps().empty());
}
