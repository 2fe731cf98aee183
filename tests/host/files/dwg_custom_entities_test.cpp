#include "host/files/dwg_custom_entities.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_proxy.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

AcRxClass* g_pMarkClass = nullptr;

/// A custom entity with a number and a reference to another entity.
class CMarkEntity : public AcDbEntity {
public:
    AcRxClass* isA() const override { return g_pMarkClass; }
    double m_dSize = 0.0;
    AcDbObjectId m_idOther;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        AcDbEntity::dwgOutFields(pFiler);
        pFiler->writeDouble(m_dSize);
        return pFiler->writeSoftPointerId(m_idOther);
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        AcDbEntity::dwgInFields(pFiler);
        pFiler->readDouble(&m_dSize);
        return pFiler->readSoftPointerId(&m_idOther);
    }

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw*) override { return Adesk::kTrue; }
};

/// The class is registered while a test runs.
class DwgCustomEntities : public testing::Test {
protected:
    void SetUp() override {
        g_pMarkClass = newAcRxClass(
            L"CMarkEntity", L"AcDbEntity", 0, 0, 0x8401, []() -> AcRxObject* { return new CMarkEntity; },
            L"MARK", L"Marks");
        ASSERT_TRUE(g_pMarkClass);
    }
    void TearDown() override { Unregister(); }
    static void Unregister() {
        if (g_pMarkClass) deleteAcRxClass(g_pMarkClass); // which its entities name while they become proxies
        g_pMarkClass = nullptr;
    }

    /// Model space with a mark that refers to a line behind it.
    static void Fill(AcDbDatabase& database) {
        auto* const pMark = new CMarkEntity;
        pMark->m_dSize = -0.0;
        pMark->setColorIndex(3);
        const AcDbObjectId idMark = AppendTo(database.ModelSpaceId(), pMark);
        const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine);
        const CDbOpen<AcDbEntity> mark(idMark, AcDb::kForWrite);
        dynamic_cast<CMarkEntity&>(*mark.Get()).m_idOther = idLine;
    }
};

} // namespace

TEST_F(DwgCustomEntities, ComeBackWithNumbersAndReferences) {
    AcDbDatabase database;
    Fill(database);
    const auto pBack = DrawingOfDwg(ReadDwgFile(WriteDwgFile(DwgFileOf(database))));
    const auto ids = CDbOpen<AcDbBlockTableRecord>(pBack->ModelSpaceId())->EntityIds();
    ASSERT_EQ(ids.size(), 2u);
    const CDbOpen<AcDbEntity> open(ids[0]);
    const auto& mark = dynamic_cast<const CMarkEntity&>(*open.Get());
    EXPECT_TRUE(std::signbit(mark.m_dSize));
    EXPECT_EQ(mark.m_idOther, ids[1]);
    EXPECT_EQ(mark.colorIndex(), 3);
    EXPECT_EQ(mark.layerId(), pBack->clayer());
}

TEST_F(DwgCustomEntities, StandUnderTheirClassWithTheNamesItWasRegisteredWith) {
    AcDbDatabase database;
    Fill(database);
    AppendTo(database.ModelSpaceId(), new CMarkEntity);
    const CDwgFile file = DwgFileOf(database);
    ASSERT_EQ(file.m_arClasses.size(), 4u);
    EXPECT_EQ(file.m_arClasses[3], (CDwgClass{503, 0x8401, "Marks", "CMarkEntity", "MARK", false, true}));
}

TEST_F(DwgCustomEntities, AreRefusedWhenTheirClassIsNotKnown) {
    CDwgFile file;
    {
        AcDbDatabase database;
        Fill(database);
        file = DwgFileOf(database);
        Unregister(); // makes a proxy of the mark
        EXPECT_NE(RefusalOf([&] { DwgFileOf(database); }).find("it cannot be written into a file."),
                  std::string::npos);
    }
    EXPECT_NE(RefusalOf([&] { DrawingOfDwg(file); }).find("an entity of its class cannot be kept."),
              std::string::npos);
}

TEST_F(DwgCustomEntities, AreNotMadeOfAClassThatIsNoEntitys) {
    const CDrawingText text(g_nChinesePage);
    EXPECT_TRUE(MakeDwgCustomEntity({503, 0, "", "CMarkEntity", "", false, true}, text));
    EXPECT_FALSE(MakeDwgCustomEntity({503, 0, "", "CMarkEntity", "", false, false}, text));
    EXPECT_FALSE(MakeDwgCustomEntity({503, 0, "", "AcDbLayerTableRecord", "", false, true}, text));
    EXPECT_FALSE(MakeDwgCustomEntity({503, 0, "", "AcDbEntity", "", false, true}, text));
    EXPECT_FALSE(MakeDwgCustomEntity({503, 0, "", "CNobodys", "", false, true}, text));
}
