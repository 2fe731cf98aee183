#include "platform/acad/memory_filer.h"

#include "platform/acad/db_object.h"
#include "platform/acad/result_buffer.h"

#include <cstring>
#include <cwchar>

Acad::ErrorStatus CRecordWriter::writeBytes(const void* pBytes, Adesk::UInt32 length) {
    const auto* const pFirst = static_cast<const std::byte*>(pBytes);
    m_record.m_arBytes.insert(m_record.m_arBytes.end(), pFirst, pFirst + length);
    return m_status;
}

Acad::ErrorStatus CRecordWriter::writePoint2d(const AcGePoint2d& value) {
    Put(value.x);
    return Put(value.y);
}

Acad::ErrorStatus CRecordWriter::writePoint3d(const AcGePoint3d& value) {
    Put(value.x);
    Put(value.y);
    return Put(value.z);
}

Acad::ErrorStatus CRecordWriter::writeVector3d(const AcGeVector3d& value) {
    Put(value.x);
    Put(value.y);
    return Put(value.z);
}

Acad::ErrorStatus CRecordWriter::writeString(const ACHAR* text) {
    const auto nLength = static_cast<Adesk::UInt32>(text ? std::wcslen(text) : 0);
    Put(nLength);
    return writeBytes(text, nLength * static_cast<Adesk::UInt32>(sizeof(ACHAR)));
}

Acad::ErrorStatus CRecordWriter::PutId(const AcDbObjectId& id) {
    const auto nPlace = static_cast<Adesk::UInt32>(m_record.m_arIds.size());
    m_record.m_arIds.push_back(id);
    return Put(nPlace);
}

Acad::ErrorStatus CRecordWriter::readString(ACHAR** pText) {
    *pText = acutNewString(L"");
    return m_status = Acad::eFilerError;
}

Acad::ErrorStatus CRecordWriter::readBytes(void* pBytes, Adesk::UInt32 length) {
    std::memset(pBytes, 0, length);
    return m_status = Acad::eFilerError;
}

Acad::ErrorStatus CRecordReader::readBytes(void* pBytes, Adesk::UInt32 length) {
    if (m_status != Acad::eOk || length > Left()) {
        std::memset(pBytes, 0, length);
        return Fail();
    }
    if (length) std::memcpy(pBytes, m_record.m_arBytes.data() + m_nAt, length);
    m_nAt += length;
    return Acad::eOk;
}

Acad::ErrorStatus CRecordReader::readPoint2d(AcGePoint2d* pValue) {
    Get(&pValue->x);
    return Get(&pValue->y);
}

Acad::ErrorStatus CRecordReader::readPoint3d(AcGePoint3d* pValue) {
    Get(&pValue->x);
    Get(&pValue->y);
    return Get(&pValue->z);
}

Acad::ErrorStatus CRecordReader::readVector3d(AcGeVector3d* pValue) {
    Get(&pValue->x);
    Get(&pValue->y);
    return Get(&pValue->z);
}

Acad::ErrorStatus CRecordReader::readString(ACHAR** pText) {
    Adesk::UInt32 nLength = 0;
    Get(&nLength);
    std::wstring text;
    if (nLength > Left() / sizeof(ACHAR)) {
        Fail(); // asked before any room is made for it
    } else {
        text.resize(nLength);
        readBytes(text.data(), nLength * static_cast<Adesk::UInt32>(sizeof(ACHAR)));
    }
    *pText = acutNewString(text.c_str());
    return m_status;
}

Acad::ErrorStatus CRecordReader::GetId(AcDbObjectId* pId) {
    Adesk::UInt32 nPlace = 0;
    pId->setNull();
    if (Get(&nPlace) != Acad::eOk) return m_status;
    if (nPlace >= m_record.m_arIds.size()) return Fail();
    *pId = m_record.m_arIds[nPlace];
    return Acad::eOk;
}

CDbRecord RecordOf(const AcDbObject& object, AcDb::FilerType type) {
    CRecordWriter writer(type);
    object.dwgOut(&writer);
    return writer.Take();
}
