#pragma once

#include "platform/acad/db_filer.h"

/// What the filers that only read have in common: their status, and that writing fails.
class CReadingFiler : public AcDbDwgFiler {
public:
    Acad::ErrorStatus filerStatus() const final { return m_status; }
    void setFilerStatus(Acad::ErrorStatus status) final { m_status = status; }
    void resetFilerStatus() final { m_status = Acad::eOk; }

    Acad::ErrorStatus writeBoolean(Adesk::Boolean) final { return Fail(); }
    Acad::ErrorStatus writeInt8(Adesk::Int8) final { return Fail(); }
    Acad::ErrorStatus writeInt16(Adesk::Int16) final { return Fail(); }
    Acad::ErrorStatus writeUInt16(Adesk::UInt16) final { return Fail(); }
    Acad::ErrorStatus writeInt32(Adesk::Int32) final { return Fail(); }
    Acad::ErrorStatus writeDouble(double) final { return Fail(); }
    Acad::ErrorStatus writePoint2d(const AcGePoint2d&) final { return Fail(); }
    Acad::ErrorStatus writePoint3d(const AcGePoint3d&) final { return Fail(); }
    Acad::ErrorStatus writeVector3d(const AcGeVector3d&) final { return Fail(); }
    Acad::ErrorStatus writeString(const ACHAR*) final { return Fail(); }
    Acad::ErrorStatus writeBytes(const void*, Adesk::UInt32) final { return Fail(); }
    Acad::ErrorStatus writeRest(const CDbRecord&) final { return Fail(); }
    Acad::ErrorStatus writeHardPointerId(const AcDbObjectId&) final { return Fail(); }
    Acad::ErrorStatus writeSoftPointerId(const AcDbObjectId&) final { return Fail(); }
    Acad::ErrorStatus writeHardOwnershipId(const AcDbObjectId&) final { return Fail(); }
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbObjectId&) final { return Fail(); }

protected:
    Acad::ErrorStatus Fail() { return m_status = Acad::eFilerError; }

    Acad::ErrorStatus m_status = Acad::eOk;
};
