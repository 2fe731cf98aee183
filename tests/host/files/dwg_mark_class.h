#pragma once

#include "platform/acad/db_filer.h"
#include "platform/acad/filed_text.h"
#include "platform/acad/rx_class.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

/// A custom entity with one value of each kind and a reference to another entity. Its class is known while
/// CMarkClass lives.
class CMarkEntity : public AcDbEntity {
public:
    AcRxClass* isA() const override { return s_pClass; }
    static inline AcRxClass* s_pClass = nullptr;

    Adesk::Boolean m_bSet = Adesk::kTrue;
    Adesk::Int16 m_nShort = -7;
    Adesk::Int32 m_nLong = 100000;
    double m_dSize = -0.0;
    std::wstring m_strText = L"\u571F";
    AcGePoint3d m_pt{1.0, 2.0, 3.0};
    AcDbObjectId m_idOther;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        AcDbEntity::dwgOutFields(pFiler);
        pFiler->writeBoolean(m_bSet);
        pFiler->writeInt16(m_nShort);
        pFiler->writeInt32(m_nLong);
        pFiler->writeDouble(m_dSize);
        pFiler->writeString(m_strText.c_str());
        pFiler->writePoint3d(m_pt);
        pFiler->writeBytes("\1\2\3", 3);
        return pFiler->writeSoftPointerId(m_idOther);
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        AcDbEntity::dwgInFields(pFiler);
        char bytes[3];
        pFiler->readBoolean(&m_bSet);
        pFiler->readInt16(&m_nShort);
        pFiler->readInt32(&m_nLong);
        pFiler->readDouble(&m_dSize);
        ReadText(pFiler, m_strText);
        pFiler->readPoint3d(&m_pt);
        pFiler->readBytes(bytes, sizeof bytes);
        return pFiler->readSoftPointerId(&m_idOther);
    }

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        const AcGePoint3d points[] = {m_pt, {5.0, 5.0, 0.0}};
        pMode->rawGeometry()->polyline(2, points);
        return Adesk::kTrue;
    }
};

class CMarkClass {
public:
    CMarkClass() {
        CMarkEntity::s_pClass = newAcRxClass(
            L"CMarkEntity", L"AcDbEntity", 0, 0, 0x401, []() -> AcRxObject* { return new CMarkEntity; },
            L"MARK", L"Marks");
    }
    ~CMarkClass() {
        deleteAcRxClass(CMarkEntity::s_pClass); // which its entities name while they become proxies
        CMarkEntity::s_pClass = nullptr;
    }
    CMarkClass(const CMarkClass&) = delete;
    CMarkClass& operator=(const CMarkClass&) = delete;
};

/// Model space with a mark that is of some numbers and refers to a line behind it.
inline void FillWithMark(AcDbDatabase& database) {
    auto* const pMark = new CMarkEntity;
    pMark->m_nShort = 300;
    pMark->m_strText = L"\u56FA\u7ED3";
    pMark->setColorIndex(3);
    const AcDbObjectId idMark = AppendTo(database.ModelSpaceId(), pMark);
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine);
    const CDbOpen<AcDbEntity> mark(idMark, AcDb::kForWrite);
    dynamic_cast<CMarkEntity&>(*mark.Get()).m_idOther = idLine;
}

/// Expects that mark and that line.
inline void ExpectMark(const AcDbDatabase& database) {
    const auto ids = CDbOpen<AcDbBlockTableRecord>(database.ModelSpaceId())->EntityIds();
    ASSERT_EQ(ids.size(), 2u);
    const CDbOpen<AcDbEntity> open(ids[0]);
    const auto* const pMark = dynamic_cast<const CMarkEntity*>(open.Get());
    ASSERT_TRUE(pMark);
    EXPECT_TRUE(pMark->m_bSet);
    EXPECT_EQ(pMark->m_nShort, 300);
    EXPECT_EQ(pMark->m_nLong, 100000);
    EXPECT_TRUE(std::signbit(pMark->m_dSize));
    EXPECT_EQ(pMark->m_strText, L"\u56FA\u7ED3");
    EXPECT_EQ(pMark->m_pt, AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_EQ(pMark->m_idOther, ids[1]);
    EXPECT_EQ(pMark->colorIndex(), 3);
    EXPECT_EQ(pMark->layerId(), database.clayer());
}
