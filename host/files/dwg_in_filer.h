#pragma once

#include "host/files/drawing_text.h"
#include "host/files/dwg_record_io.h"
#include "platform/acad/reading_filer.h"

#include <functional>

/// Reads what WriteDwgValues wrote. Whatever the record holds, what is not there or makes no sense gives zero
/// and sets the status. The rest of a record cannot be taken unread.
class CDwgInFiler final : public CReadingFiler {
public:
    using CIdOf = std::function<AcDbObjectId(const CDwgHandle&)>; ///< the object of a handle; null for none

    /// All must outlive the filer.
    CDwgInFiler(CDwgRecordReader& io, const CDrawingText& text, const CIdOf& idOf)
        : m_io(io)
        , m_text(text)
        , m_idOf(idOf) {}

    AcDb::FilerType filerType() const override { return AcDb::kFileFiler; }

    Acad::ErrorStatus readBoolean(Adesk::Boolean* pValue) override;
    Acad::ErrorStatus readInt8(Adesk::Int8* pValue) override;
    Acad::ErrorStatus readInt16(Adesk::Int16* pValue) override { return m_io.BS(*pValue), Check(); }
    Acad::ErrorStatus readUInt16(Adesk::UInt16* pValue) override { return m_io.BS(*pValue), Check(); }
    Acad::ErrorStatus readInt32(Adesk::Int32* pValue) override { return m_io.BL(*pValue), Check(); }
    Acad::ErrorStatus readDouble(double* pValue) override { return m_io.BD(*pValue), Check(); }
    Acad::ErrorStatus readPoint2d(AcGePoint2d* pValue) override { return m_io.BD2(*pValue), Check(); }
    Acad::ErrorStatus readPoint3d(AcGePoint3d* pValue) override { return m_io.BD3(*pValue), Check(); }
    Acad::ErrorStatus readVector3d(AcGeVector3d* pValue) override { return m_io.BD3(*pValue), Check(); }
    Acad::ErrorStatus readString(ACHAR** pText) override;
    Acad::ErrorStatus readBytes(void* pBytes, Adesk::UInt32 length) override;
    Acad::ErrorStatus readRest(CDbRecord* pRest) override;
    Acad::ErrorStatus readHardPointerId(AcDbObjectId* pId) override { return Get(pId); }
    Acad::ErrorStatus readSoftPointerId(AcDbObjectId* pId) override { return Get(pId); }
    Acad::ErrorStatus readHardOwnershipId(AcDbObjectId* pId) override { return Get(pId); }
    Acad::ErrorStatus readSoftOwnershipId(AcDbObjectId* pId) override { return Get(pId); }

private:
    Acad::ErrorStatus Check() { return m_io.Failed() ? Fail() : m_status; }
    Acad::ErrorStatus Get(AcDbObjectId* pId);

    CDwgRecordReader& m_io;
    const CDrawingText& m_text;
    const CIdOf& m_idOf;
};
