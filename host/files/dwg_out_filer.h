#pragma once

#include "host/files/drawing_text.h"
#include "host/files/dwg_record_io.h"
#include "platform/acad/memory_filer.h"

#include <functional>

/// Writes what an object writes of itself into its record in a drawing file: numbers in their bit codes,
/// texts in the drawing's code page, references beside them. What stands for an object of an unknown class
/// cannot be written by it.
class CDwgOutFiler final : public AcDbDwgFiler {
public:
    using CHandleOf =
        std::function<std::uint64_t(AcDbObjectId)>; ///< an object's handle in the file; 0 for none

    /// All must outlive the filer.
    CDwgOutFiler(CDwgRecordWriter& io, const CDrawingText& text, const CHandleOf& handleOf)
        : m_io(io)
        , m_text(text)
        , m_handleOf(handleOf) {}

    AcDb::FilerType filerType() const override { return AcDb::kFileFiler; }
    Acad::ErrorStatus filerStatus() const override { return m_status; }
    void setFilerStatus(Acad::ErrorStatus status) override { m_status = status; }
    void resetFilerStatus() override { m_status = Acad::eOk; }

    Acad::ErrorStatus writeBoolean(Adesk::Boolean value) override { return m_io.B(value != 0), m_status; }
    Acad::ErrorStatus writeInt8(Adesk::Int8 value) override {
        return m_io.RC(static_cast<std::uint8_t>(value)), m_status;
    }
    Acad::ErrorStatus writeInt16(Adesk::Int16 value) override { return m_io.BS(value), m_status; }
    Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) override { return m_io.BS(value), m_status; }
    Acad::ErrorStatus writeInt32(Adesk::Int32 value) override { return m_io.BL(value), m_status; }
    Acad::ErrorStatus writeDouble(double value) override { return m_io.BD(value), m_status; }
    Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) override { return m_io.BD2(value), m_status; }
    Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) override { return m_io.BD3(value), m_status; }
    Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) override { return m_io.BD3(value), m_status; }
    Acad::ErrorStatus writeString(const ACHAR* text) override;
    Acad::ErrorStatus writeBytes(const void* pBytes, Adesk::UInt32 length) override;
    Acad::ErrorStatus writeRest(const CDbRecord&) override { return Fail(); }
    Acad::ErrorStatus writeHardPointerId(const AcDbObjectId& id) override {
        return Put(HardPointer(m_handleOf(id)));
    }
    Acad::ErrorStatus writeSoftPointerId(const AcDbObjectId& id) override {
        return Put(SoftPointer(m_handleOf(id)));
    }
    Acad::ErrorStatus writeHardOwnershipId(const AcDbObjectId& id) override {
        return Put(HardOwner(m_handleOf(id)));
    }
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbObjectId& id) override {
        return Put(SoftOwner(m_handleOf(id)));
    }

    Acad::ErrorStatus readBoolean(Adesk::Boolean* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readInt8(Adesk::Int8* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readInt16(Adesk::Int16* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readUInt16(Adesk::UInt16* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readInt32(Adesk::Int32* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readDouble(double* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readPoint2d(AcGePoint2d* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readPoint3d(AcGePoint3d* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readVector3d(AcGeVector3d* pValue) override { return Refuse(pValue); }
    Acad::ErrorStatus readString(ACHAR** pText) override;
    Acad::ErrorStatus readBytes(void* pBytes, Adesk::UInt32 length) override;
    Acad::ErrorStatus readRest(CDbRecord* pRest) override { return Refuse(pRest); }
    Acad::ErrorStatus readHardPointerId(AcDbObjectId* pId) override { return Refuse(pId); }
    Acad::ErrorStatus readSoftPointerId(AcDbObjectId* pId) override { return Refuse(pId); }
    Acad::ErrorStatus readHardOwnershipId(AcDbObjectId* pId) override { return Refuse(pId); }
    Acad::ErrorStatus readSoftOwnershipId(AcDbObjectId* pId) override { return Refuse(pId); }

private:
    Acad::ErrorStatus Fail() { return m_status = Acad::eFilerError; }
    Acad::ErrorStatus Put(const CDwgHandle& handle) { return m_io.Handle(handle), m_status; }
    template <class Value>
    Acad::ErrorStatus Refuse(Value* pValue) {
        *pValue = Value();
        return Fail();
    }

    CDwgRecordWriter& m_io;
    const CDrawingText& m_text;
    const CHandleOf& m_handleOf;
    Acad::ErrorStatus m_status = Acad::eOk;
};
