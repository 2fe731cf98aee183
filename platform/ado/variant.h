#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/ado/decimal.h"

/// What a variant holds.
using VARTYPE = std::uint16_t;

inline constexpr VARTYPE VT_EMPTY = 0;
inline constexpr VARTYPE VT_NULL = 1;
inline constexpr VARTYPE VT_I2 = 2;
inline constexpr VARTYPE VT_I4 = 3;
inline constexpr VARTYPE VT_R4 = 4;
inline constexpr VARTYPE VT_R8 = 5;
inline constexpr VARTYPE VT_DATE = 7;
inline constexpr VARTYPE VT_BSTR = 8;
inline constexpr VARTYPE VT_ERROR = 10;
inline constexpr VARTYPE VT_BOOL = 11;
inline constexpr VARTYPE VT_DECIMAL = 14;
inline constexpr VARTYPE VT_I1 = 16;
inline constexpr VARTYPE VT_UI1 = 17;
inline constexpr VARTYPE VT_UI4 = 19;
inline constexpr VARTYPE VT_INT = 22;
inline constexpr VARTYPE VT_ARRAY = 0x2000;
inline constexpr VARTYPE VT_BYTES = VT_ARRAY | VT_UI1; ///< a safe array of bytes

/// A value with its type. A text is wide. Reading another type than the one held gives what lies in the
/// value's eight bytes, as reading another member of a union does: 0 behind a text, a decimal or bytes.
class CVariant {
public:
    CVariant() = default;
    explicit CVariant(std::int8_t nValue)
        : CVariant(VT_I1, Raw8(nValue)) {}
    explicit CVariant(std::int16_t nValue)
        : CVariant(VT_I2, Raw8(nValue)) {}
    explicit CVariant(std::int32_t nValue)
        : CVariant(VT_I4, Raw8(nValue)) {}
    explicit CVariant(std::uint8_t nValue)
        : CVariant(VT_UI1, Raw8(nValue)) {}
    explicit CVariant(std::uint32_t nValue)
        : CVariant(VT_UI4, Raw8(nValue)) {}
    explicit CVariant(float fValue)
        : CVariant(VT_R4, Raw8(fValue)) {}
    explicit CVariant(double dValue)
        : CVariant(VT_R8, Raw8(dValue)) {}
    /// True is -1.
    explicit CVariant(bool bValue)
        : CVariant(VT_BOOL, Raw8(static_cast<std::int16_t>(bValue ? -1 : 0))) {}
    explicit CVariant(std::wstring strText)
        : m_vt(VT_BSTR)
        , m_strText(std::move(strText)) {}
    explicit CVariant(const wchar_t* pszText)
        : CVariant(std::wstring(pszText)) {}
    CVariant(const char*) = delete; // would be a truth value
    explicit CVariant(const DECIMAL& decimal)
        : m_vt(VT_DECIMAL)
        , m_decimal(decimal) {}
    explicit CVariant(std::vector<unsigned char> arBytes)
        : m_vt(VT_BYTES)
        , m_arBytes(std::move(arBytes)) {}

    static CVariant Null() { return {VT_NULL, 0}; }
    /// The machine's own integer type.
    static CVariant Int(std::int32_t nValue) { return {VT_INT, Raw8(nValue)}; }
    /// Days since 1899-12-30.
    static CVariant Date(double dDays) { return {VT_DATE, Raw8(dDays)}; }
    static CVariant Error(std::int32_t nCode) { return {VT_ERROR, Raw8(nCode)}; }

    [[nodiscard]] VARTYPE Type() const { return m_vt; }
    [[nodiscard]] bool IsNull() const { return m_vt == VT_NULL; }

    [[nodiscard]] std::int8_t I1() const { return As<std::int8_t>(); }
    [[nodiscard]] std::int16_t I2() const { return As<std::int16_t>(); }
    [[nodiscard]] std::int32_t I4() const { return As<std::int32_t>(); } ///< also VT_INT and VT_ERROR
    [[nodiscard]] std::uint8_t UI1() const { return As<std::uint8_t>(); }
    [[nodiscard]] std::uint32_t UI4() const { return As<std::uint32_t>(); }
    [[nodiscard]] float R4() const { return As<float>(); }
    [[nodiscard]] double R8() const { return As<double>(); } ///< also VT_DATE
    [[nodiscard]] bool Bool() const { return I2() != 0; }
    /// Empty for other types; likewise the next two.
    [[nodiscard]] const std::wstring& Text() const { return m_strText; }
    [[nodiscard]] const DECIMAL& Decimal() const { return m_decimal; }
    [[nodiscard]] const std::vector<unsigned char>& Bytes() const { return m_arBytes; }

    bool operator==(const CVariant&) const = default;

private:
    CVariant(VARTYPE vt, std::uint64_t nRaw)
        : m_vt(vt)
        , m_nRaw(nRaw) {}

    template <class Value>
    static std::uint64_t Raw8(Value value) {
        std::uint64_t nRaw = 0;
        std::memcpy(&nRaw, &value, sizeof value);
        return nRaw;
    }
    template <class Value>
    [[nodiscard]] Value As() const {
        Value value{};
        std::memcpy(&value, &m_nRaw, sizeof value);
        return value;
    }

    VARTYPE m_vt = VT_EMPTY;
    std::uint64_t m_nRaw = 0;
    std::wstring m_strText;
    DECIMAL m_decimal;
    std::vector<unsigned char> m_arBytes;
};
