#include "platform/ado/binding.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "platform/ado/cursor.h"
#include "platform/ado/dialect_numbers.h"
#include "platform/windows/code_page.h"

namespace {

double CellNumber(const CDbCell& cell) {
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*pWhole);
    if (const auto* pReal = std::get_if<double>(&cell)) return *pReal;
    if (const auto* pText = std::get_if<std::string_view>(&cell)) return LeadingNumber(*pText);
    return 0.0;
}

/// The whole part of a number, held to the range of a type that a double holds exactly.
template <class Whole>
Whole Held(double dValue) {
    constexpr double dMin = std::numeric_limits<Whole>::min();
    constexpr double dMax = std::numeric_limits<Whole>::max();
    return std::isnan(dValue) ? Whole{0} : static_cast<Whole>(std::clamp(dValue, dMin, dMax));
}

template <class Value>
void Put(unsigned char* pPlace, Value value) {
    std::memcpy(pPlace, &value, sizeof value);
}

template <class Value>
Value Get(const unsigned char* pPlace) {
    Value value{};
    std::memcpy(&value, pPlace, sizeof value);
    return value;
}

void PutText(const CDbCell& cell, const CColumnBinding& binding, unsigned char* pPlace) {
    auto* pszPlace = reinterpret_cast<char*>(pPlace);
    const auto* pText = std::get_if<std::string_view>(&cell);
    GbkCopy(pszPlace, binding.m_nLength + 1, pText ? *pText : CellText(cell));
}

float Narrowed(double dValue) {
    constexpr double dMax = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(dValue, -dMax, dMax));
}

bool IsNull(const CColumnBinding& binding, const unsigned char* pBuffer) {
    return binding.m_nStatusOffset != g_nNoStatus &&
           Get<DBSTATUS>(pBuffer + binding.m_nStatusOffset) == DBSTATUS_S_ISNULL;
}

std::string_view BoundText(const CColumnBinding& binding, const unsigned char* pBuffer) {
    const auto* pText = reinterpret_cast<const char*>(pBuffer + binding.m_nValueOffset);
    return {pText, strnlen(pText, binding.m_nLength)};
}

} // namespace

void FetchCell(const CDbCell& cell, const CColumnBinding& binding, unsigned char* pBuffer) {
    unsigned char* pPlace = pBuffer + binding.m_nValueOffset;
    switch (binding.m_wType) {
    case DBTYPE_I4:
        Put(pPlace, Held<std::int32_t>(CellNumber(cell)));
        break;
    case DBTYPE_I2:
        Put(pPlace, Held<std::int16_t>(CellNumber(cell)));
        break;
    case DBTYPE_I1:
        Put(pPlace, Held<std::int8_t>(CellNumber(cell)));
        break;
    case DBTYPE_UI1:
        Put(pPlace, Held<std::uint8_t>(CellNumber(cell)));
        break;
    case DBTYPE_R4:
        Put(pPlace, Narrowed(CellNumber(cell)));
        break;
    case DBTYPE_R8:
        Put(pPlace, CellNumber(cell));
        break;
    default:
        PutText(cell, binding, pPlace);
    }
    const bool bNull = std::holds_alternative<std::monostate>(cell);
    if (binding.m_nStatusOffset != g_nNoStatus)
        Put(pBuffer + binding.m_nStatusOffset, bNull ? DBSTATUS_S_ISNULL : DBSTATUS_S_OK);
}

CDbValue BoundValue(const CColumnBinding& binding, const unsigned char* pBuffer) {
    if (IsNull(binding, pBuffer)) return std::monostate();
    const unsigned char* pPlace = pBuffer + binding.m_nValueOffset;
    switch (binding.m_wType) {
    case DBTYPE_I4:
        return std::int64_t{Get<std::int32_t>(pPlace)};
    case DBTYPE_I2:
        return std::int64_t{Get<std::int16_t>(pPlace)};
    case DBTYPE_I1:
        return std::int64_t{Get<std::int8_t>(pPlace)};
    case DBTYPE_UI1:
        return std::int64_t{Get<std::uint8_t>(pPlace)};
    case DBTYPE_R4:
        return static_cast<double>(Get<float>(pPlace));
    case DBTYPE_R8:
        return Get<double>(pPlace);
    default:
        return std::string(BoundText(binding, pBuffer));
    }
}

bool BoundValueDiffers(const CColumnBinding& binding, const unsigned char* pBuffer,
                       const unsigned char* pOther) {
    const bool bNull = IsNull(binding, pBuffer);
    if (bNull || IsNull(binding, pOther)) return bNull != IsNull(binding, pOther);
    if (binding.m_wType == DBTYPE_STR) return BoundText(binding, pBuffer) != BoundText(binding, pOther);
    return std::memcmp(pBuffer + binding.m_nValueOffset, pOther + binding.m_nValueOffset,
                       binding.m_nLength) != 0;
}
