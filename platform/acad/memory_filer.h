#pragma once
// Records kept in memory: for undo, for copies, and for what outlives its class.

#include "platform/acad/db_filer.h"
#include "platform/acad/db_record.h"
#include "platform/acad/reading_filer.h"

/// Writes a record.
class CRecordWriter final : public AcDbDwgFiler {
public:
    explicit CRecordWriter(AcDb::FilerType type)
        : m_type(type) {
        m_record.m_arBytes.reserve(g_nUsualBytes);
    }
    CDbRecord Take() { return std::move(m_record); }

    AcDb::FilerType filerType() const override { return m_type; }
    Acad::ErrorStatus filerStatus() const override { return m_status; }
    void setFilerStatus(Acad::ErrorStatus status) override { m_status = status; }
    void resetFilerStatus() override { m_status = Acad::eOk; }

    Acad::ErrorStatus writeBoolean(Adesk::Boolean value) override { return Put(CKind::Boolean, value); }
    Acad::ErrorStatus writeInt8(Adesk::Int8 value) override { return Put(CKind::Int8, value); }
    Acad::ErrorStatus writeInt16(Adesk::Int16 value) override { return Put(CKind::Int16, value); }
    Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) override { return Put(CKind::Int16, value); }
    Acad::ErrorStatus writeInt32(Adesk::Int32 value) override { return Put(CKind::Int32, value); }
    Acad::ErrorStatus writeDouble(double value) override { return Put(CKind::Double, value); }
    Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) override;
    Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) override;
    Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) override;
    Acad::ErrorStatus writeString(const ACHAR* text) override;
    Acad::ErrorStatus writeBytes(const void* pBytes, Adesk::UInt32 length) override;
    Acad::ErrorStatus writeRest(const CDbRecord& rest) override;
    Acad::ErrorStatus writeHardPointerId(const AcDbObjectId& id) override {
        return PutId(CFiledId::CKind::HardPointer, id);
    }
    Acad::ErrorStatus writeSoftPointerId(const AcDbObjectId& id) override {
        return PutId(CFiledId::CKind::SoftPointer, id);
    }
    Acad::ErrorStatus writeHardOwnershipId(const AcDbObjectId& id) override {
        return PutId(CFiledId::CKind::HardOwnership, id);
    }
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbObjectId& id) override {
        return PutId(CFiledId::CKind::SoftOwnership, id);
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
    static constexpr std::size_t g_nUsualBytes = 256; ///< most records are written without growing

    using CKind = CFiledValue::CKind;
    template <class T>
    Acad::ErrorStatus Put(CKind kind, const T& value) {
        m_record.m_arValues.push_back({kind, sizeof value});
        return Append(&value, sizeof value);
    }
    Acad::ErrorStatus Append(const void* pBytes, Adesk::UInt32 length);
    template <class T>
    Acad::ErrorStatus Refuse(T* pValue) {
        *pValue = T();
        return m_status = Acad::eFilerError;
    }
    Acad::ErrorStatus PutId(CFiledId::CKind kind, const AcDbObjectId& id);

    AcDb::FilerType m_type;
    Acad::ErrorStatus m_status = Acad::eOk;
    CDbRecord m_record;
};

/// Reads a record, whatever it holds: what is not there, or makes no sense, sets the status. Behind its bytes
/// come its foreign data. The record must outlive the reader.
class CRecordReader final : public CReadingFiler {
public:
    CRecordReader(AcDb::FilerType type, const CDbRecord& record)
        : m_type(type)
        , m_record(record) {}
    /// Whether all was read, and nothing asked for that is not there.
    bool IsAtEnd() const;

    AcDb::FilerType filerType() const override { return m_type; }

    Acad::ErrorStatus readBoolean(Adesk::Boolean* pValue) override {
        return Get(pValue, &AcDbDwgFiler::readBoolean);
    }
    Acad::ErrorStatus readInt8(Adesk::Int8* pValue) override { return Get(pValue, &AcDbDwgFiler::readInt8); }
    Acad::ErrorStatus readInt16(Adesk::Int16* pValue) override {
        return Get(pValue, &AcDbDwgFiler::readInt16);
    }
    Acad::ErrorStatus readUInt16(Adesk::UInt16* pValue) override {
        return Get(pValue, &AcDbDwgFiler::readUInt16);
    }
    Acad::ErrorStatus readInt32(Adesk::Int32* pValue) override {
        return Get(pValue, &AcDbDwgFiler::readInt32);
    }
    Acad::ErrorStatus readDouble(double* pValue) override { return Get(pValue, &AcDbDwgFiler::readDouble); }
    Acad::ErrorStatus readPoint2d(AcGePoint2d* pValue) override;
    Acad::ErrorStatus readPoint3d(AcGePoint3d* pValue) override;
    Acad::ErrorStatus readVector3d(AcGeVector3d* pValue) override;
    Acad::ErrorStatus readString(ACHAR** pText) override;
    Acad::ErrorStatus readBytes(void* pBytes, Adesk::UInt32 length) override;
    Acad::ErrorStatus readRest(CDbRecord* pRest) override;
    Acad::ErrorStatus readHardPointerId(AcDbObjectId* pId) override {
        return GetId(pId, &AcDbDwgFiler::readHardPointerId);
    }
    Acad::ErrorStatus readSoftPointerId(AcDbObjectId* pId) override {
        return GetId(pId, &AcDbDwgFiler::readSoftPointerId);
    }
    Acad::ErrorStatus readHardOwnershipId(AcDbObjectId* pId) override {
        return GetId(pId, &AcDbDwgFiler::readHardOwnershipId);
    }
    Acad::ErrorStatus readSoftOwnershipId(AcDbObjectId* pId) override {
        return GetId(pId, &AcDbDwgFiler::readSoftOwnershipId);
    }

private:
    std::size_t Left() const { return m_record.m_arBytes.size() - m_nAt; } ///< bytes not read yet
    bool IsBeforeForeign() const;
    std::unique_ptr<CForeignReader> NewForeign() const;
    /// The filer of the foreign data once all before them was read; else null.
    AcDbDwgFiler* Foreign();
    template <class T>
    using CRead = Acad::ErrorStatus (AcDbDwgFiler::*)(T*);
    template <class T>
    Acad::ErrorStatus Get(T* pValue, CRead<T> read) {
        if (AcDbDwgFiler* const pForeign = Foreign()) return m_status = (pForeign->*read)(pValue);
        *pValue = T();
        return GetBytes(pValue, sizeof *pValue);
    }
    Acad::ErrorStatus GetId(AcDbObjectId* pId, CRead<AcDbObjectId> read);
    Acad::ErrorStatus GetBytes(void* pBytes, Adesk::UInt32 length);
    std::vector<CFiledValue> ValuesLeft() const;

    AcDb::FilerType m_type;
    const CDbRecord& m_record;
    std::size_t m_nAt = 0, m_nNextId = 0;
    std::unique_ptr<CForeignReader> m_pForeign; ///< from the first value on that is read of them
    bool m_bRestTaken = false;
};

/// The record that an object writes.
CDbRecord RecordOf(const AcDbObject& object, AcDb::FilerType type);
