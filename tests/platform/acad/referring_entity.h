#pragma once
// An entity that refers to others, for tests of cloning.

#include "platform/acad/db_entity.h"
#include "platform/acad/db_filer.h"

/// It draws a dot and files a number and two references; it notes what it was last read for.
class CReferringEntity : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(CReferringEntity)
    double m_dValue = 0.0;
    AcDbObjectId m_idHard, m_idSoft;
    AcDb::FilerType m_readFor = AcDb::kFileFiler;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        AcDbEntity::dwgOutFields(pFiler);
        pFiler->writeDouble(m_dValue);
        pFiler->writeHardPointerId(m_idHard);
        return pFiler->writeSoftPointerId(m_idSoft);
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override {
        AcDbEntity::dwgInFields(pFiler);
        m_readFor = pFiler->filerType();
        pFiler->readDouble(&m_dValue);
        pFiler->readHardPointerId(&m_idHard);
        pFiler->readSoftPointerId(&m_idSoft);
        return m_dValue < 0.0 ? Acad::eFilerError : pFiler->filerStatus(); // reads nothing below 0
    }

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        pMode->rawGeometry()->polyline(1, &AcGePoint3d::kOrigin);
        return Adesk::kTrue;
    }
};
