#include "host/files/dwg_out_filer.h"

#include "platform/acad/result_buffer.h"

#include <cstring>

Acad::ErrorStatus CDwgOutFiler::writeString(const ACHAR* text) {
    m_io.T(m_text.Encode(text ? text : L""));
    return m_io.Failed() ? Fail() : m_status;
}

Acad::ErrorStatus CDwgOutFiler::writeBytes(const void* pBytes, Adesk::UInt32 length) {
    m_io.Raw({static_cast<const std::uint8_t*>(pBytes), length}, length);
    return m_status;
}

Acad::ErrorStatus CDwgOutFiler::readString(ACHAR** pText) {
    *pText = acutNewString(L"");
    return Fail();
}

Acad::ErrorStatus CDwgOutFiler::readBytes(void* pBytes, Adesk::UInt32 length) {
    std::memset(pBytes, 0, length);
    return Fail();
}
