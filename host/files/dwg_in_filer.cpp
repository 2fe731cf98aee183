#include "host/files/dwg_in_filer.h"

#include "platform/acad/db_record.h"
#include "platform/acad/result_buffer.h"

#include <algorithm>
#include <cstring>

Acad::ErrorStatus CDwgInFiler::readBoolean(Adesk::Boolean* pValue) {
    bool b = false;
    m_io.B(b);
    *pValue = b ? Adesk::kTrue : Adesk::kFalse;
    return Check();
}

Acad::ErrorStatus CDwgInFiler::readInt8(Adesk::Int8* pValue) {
    std::uint8_t n = 0;
    m_io.RC(n);
    *pValue = static_cast<Adesk::Int8>(n);
    return Check();
}

Acad::ErrorStatus CDwgInFiler::readString(ACHAR** pText) {
    std::string strBytes;
    m_io.T(strBytes);
    *pText = acutNewString(m_text.Decode(strBytes).c_str());
    return Check();
}

Acad::ErrorStatus CDwgInFiler::readBytes(void* pBytes, Adesk::UInt32 length) {
    CBytes bytes;
    m_io.Raw(bytes, length);
    std::memset(pBytes, 0, length);
    std::copy(bytes.begin(), bytes.end(), static_cast<std::uint8_t*>(pBytes));
    return Check();
}

Acad::ErrorStatus CDwgInFiler::readRest(CDbRecord* pRest) {
    *pRest = {};
    return Fail();
}

Acad::ErrorStatus CDwgInFiler::Get(AcDbObjectId* pId) {
    CDwgHandle handle;
    m_io.Handle(handle);
    *pId = m_io.Failed() ? AcDbObjectId::kNull : m_idOf(handle);
    return Check();
}
