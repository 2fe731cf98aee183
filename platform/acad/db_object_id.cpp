#include "platform/acad/db_object_id.h"

#include "platform/acad/db_stub.h"

#include <charconv>

const AcDbObjectId AcDbObjectId::kNull;

std::string AcDbHandle::Hex() const {
    char digits[16];
    const auto result = std::to_chars(digits, digits + sizeof digits, m_nValue, 16);
    std::string strHex(digits, result.ptr);
    for (char& digit : strHex)
        if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
    return strHex;
}

AcDbHandle AcDbObjectId::handle() const {
    return m_pStub ? m_pStub->m_handle : AcDbHandle();
}

AcDbDatabase* AcDbObjectId::database() const {
    return m_pStub ? m_pStub->m_pDatabase : nullptr;
}

bool AcDbObjectId::isErased() const {
    return m_pStub && m_pStub->m_bErased;
}
