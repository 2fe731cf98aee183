#include "platform/acad/memory_filer.h"

#include "platform/acad/db_object.h"
#include "platform/acad/result_buffer.h"

#include <cstring>
#include <cwchar>
#include <type_traits>
#include <utility>

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

Acad::ErrorStatus CRecordWriter::PutId(CFiledId::CKind kind, const AcDbObjectId& id) {
    m_record.m_arIds.push_back({kind, id});
    return m_status;
}

Acad::ErrorStatus CRecordWriter::writeRest(const CDbRecord& rest) {
    m_record.m_arBytes.insert(m_record.m_arBytes.end(), rest.m_arBytes.begin(), rest.m_arBytes.end());
    m_record.m_arIds.insert(m_record.m_arIds.end(), rest.m_arIds.begin(), rest.m_arIds.end());
    return m_status;
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
    pId->setNull();
    if (m_status != Acad::eOk || m_nNextId >= m_record.m_arIds.size()) return Fail();
    *pId = m_record.m_arIds[m_nNextId++].m_id;
    return Acad::eOk;
}

Acad::ErrorStatus CRecordReader::readRest(CDbRecord* pRest) {
    *pRest = CDbRecord();
    if (m_status != Acad::eOk) return m_status;
    const auto after = [](const auto& list, std::size_t& nAt) {
        return std::decay_t<decltype(list)>(list.begin() + std::exchange(nAt, list.size()), list.end());
    };
    *pRest = {after(m_record.m_arBytes, m_nAt), after(m_record.m_arIds, m_nNextId)};
    return m_status;
}

CDbRecord RecordOf(const AcDbObject& object, AcDb::FilerType type) {
    CRecordWriter writer(type);
    object.dwgOut(&writer);
    return writer.Take();
}
