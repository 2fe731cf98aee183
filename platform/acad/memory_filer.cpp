#include "platform/acad/memory_filer.h"

#include "platform/acad/db_object.h"
#include "platform/acad/result_buffer.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <type_traits>
#include <utility>

Acad::ErrorStatus CRecordWriter::writeBytes(const void* pBytes, Adesk::UInt32 length) {
    m_record.m_arValues.push_back({CKind::Bytes, length});
    return Append(pBytes, length);
}

Acad::ErrorStatus CRecordWriter::Append(const void* pBytes, Adesk::UInt32 length) {
    const auto* const pFirst = static_cast<const std::byte*>(pBytes);
    m_record.m_arBytes.insert(m_record.m_arBytes.end(), pFirst, pFirst + length);
    return m_status;
}

Acad::ErrorStatus CRecordWriter::writePoint2d(const AcGePoint2d& value) {
    writeDouble(value.x);
    return writeDouble(value.y);
}

Acad::ErrorStatus CRecordWriter::writePoint3d(const AcGePoint3d& value) {
    writeDouble(value.x);
    writeDouble(value.y);
    return writeDouble(value.z);
}

Acad::ErrorStatus CRecordWriter::writeVector3d(const AcGeVector3d& value) {
    writeDouble(value.x);
    writeDouble(value.y);
    return writeDouble(value.z);
}

Acad::ErrorStatus CRecordWriter::writeString(const ACHAR* text) {
    const auto nLength = static_cast<Adesk::UInt32>(text ? std::wcslen(text) : 0);
    const auto nTextBytes = nLength * static_cast<Adesk::UInt32>(sizeof(ACHAR));
    m_record.m_arValues.push_back({CKind::String, nTextBytes + static_cast<Adesk::UInt32>(sizeof nLength)});
    Append(&nLength, sizeof nLength);
    return Append(text, nTextBytes);
}

Acad::ErrorStatus CRecordWriter::PutId(CFiledId::CKind kind, const AcDbObjectId& id) {
    m_record.m_arIds.push_back({kind, id});
    return m_status;
}

Acad::ErrorStatus CRecordWriter::writeRest(const CDbRecord& rest) {
    const auto append = [](auto& list, const auto& more) {
        list.insert(list.end(), more.begin(), more.end());
    };
    m_record.m_pForeign = rest.m_pForeign;
    m_record.m_nForeignIds = rest.m_pForeign ? m_record.m_arIds.size() + rest.m_nForeignIds : 0;
    append(m_record.m_arBytes, rest.m_arBytes);
    append(m_record.m_arValues, rest.m_arValues);
    append(m_record.m_arIds, rest.m_arIds);
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

bool CRecordReader::IsAtEnd() const {
    if (m_status != Acad::eOk || Left() != 0) return false;
    if (m_pForeign) return m_pForeign->IsAtEnd();
    return IsBeforeForeign() ? NewForeign()->IsAtEnd() : m_nNextId == m_record.m_arIds.size();
}

bool CRecordReader::IsBeforeForeign() const {
    return m_record.m_pForeign && !m_bRestTaken && Left() == 0 && m_nNextId == m_record.m_nForeignIds;
}

std::unique_ptr<CForeignReader> CRecordReader::NewForeign() const {
    return m_record.m_pForeign->Reader(std::span(m_record.m_arIds).subspan(m_nNextId));
}

AcDbDwgFiler* CRecordReader::Foreign() {
    if (!m_pForeign && IsBeforeForeign()) m_pForeign = NewForeign();
    return m_pForeign ? &m_pForeign->Filer() : nullptr;
}

Acad::ErrorStatus CRecordReader::readBytes(void* pBytes, Adesk::UInt32 length) {
    if (AcDbDwgFiler* const pForeign = Foreign()) return m_status = pForeign->readBytes(pBytes, length);
    return GetBytes(pBytes, length);
}

Acad::ErrorStatus CRecordReader::GetBytes(void* pBytes, Adesk::UInt32 length) {
    if (m_status != Acad::eOk || length > Left()) {
        std::memset(pBytes, 0, length);
        return Fail();
    }
    if (length) std::memcpy(pBytes, m_record.m_arBytes.data() + m_nAt, length);
    m_nAt += length;
    return Acad::eOk;
}

Acad::ErrorStatus CRecordReader::readPoint2d(AcGePoint2d* pValue) {
    readDouble(&pValue->x);
    return readDouble(&pValue->y);
}

Acad::ErrorStatus CRecordReader::readPoint3d(AcGePoint3d* pValue) {
    readDouble(&pValue->x);
    readDouble(&pValue->y);
    return readDouble(&pValue->z);
}

Acad::ErrorStatus CRecordReader::readVector3d(AcGeVector3d* pValue) {
    readDouble(&pValue->x);
    readDouble(&pValue->y);
    return readDouble(&pValue->z);
}

Acad::ErrorStatus CRecordReader::readString(ACHAR** pText) {
    if (AcDbDwgFiler* const pForeign = Foreign()) return m_status = pForeign->readString(pText);
    Adesk::UInt32 nLength = 0;
    GetBytes(&nLength, sizeof nLength);
    std::wstring text;
    if (nLength > Left() / sizeof(ACHAR)) {
        Fail(); // asked before any room is made for it
    } else {
        text.resize(nLength);
        GetBytes(text.data(), nLength * static_cast<Adesk::UInt32>(sizeof(ACHAR)));
    }
    *pText = acutNewString(text.c_str());
    return m_status;
}

Acad::ErrorStatus CRecordReader::GetId(AcDbObjectId* pId, CRead<AcDbObjectId> read) {
    if (AcDbDwgFiler* const pForeign = Foreign()) return m_status = (pForeign->*read)(pId);
    pId->setNull();
    if (m_status != Acad::eOk || m_nNextId >= m_record.m_arIds.size()) return Fail();
    *pId = m_record.m_arIds[m_nNextId++].m_id;
    return Acad::eOk;
}

/// What the bytes not read yet were written as.
std::vector<CFiledValue> CRecordReader::ValuesLeft() const {
    auto value = m_record.m_arValues.begin();
    for (std::size_t nBytes = 0; nBytes < m_nAt && value != m_record.m_arValues.end(); ++value)
        nBytes += value->m_nBytes;
    return {value, m_record.m_arValues.end()};
}

Acad::ErrorStatus CRecordReader::readRest(CDbRecord* pRest) {
    *pRest = CDbRecord();
    if (m_status != Acad::eOk) return m_status;
    const auto after = [](const auto& list, std::size_t& nAt) {
        return std::decay_t<decltype(list)>(list.begin() + std::exchange(nAt, list.size()), list.end());
    };
    pRest->m_arValues = ValuesLeft();
    pRest->m_pForeign = m_record.m_pForeign;
    pRest->m_nForeignIds = m_record.m_pForeign ? m_record.m_nForeignIds - m_nNextId : 0;
    pRest->m_arBytes = after(m_record.m_arBytes, m_nAt);
    pRest->m_arIds = after(m_record.m_arIds, m_nNextId);
    m_bRestTaken = true;
    return m_status;
}

CDbRecord RecordOf(const AcDbObject& object, AcDb::FilerType type) {
    CRecordWriter writer(type);
    object.dwgOut(&writer);
    return writer.Take();
}
