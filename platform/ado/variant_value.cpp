#include "platform/ado/variant_value.h"

#include <array>
#include <cmath>
#include <cwchar>
#include <limits>
#include <optional>

#include "platform/ado/com_error.h"
#include "platform/ado/date_text.h"
#include "platform/ado/number_text.h"
#include "platform/ado/text.h"
#include "platform/windows/code_page.h"

namespace {

using namespace ADODB;

CVariant WholeVariant(std::int64_t nValue, DBTYPE wType) {
    switch (wType) {
    case DBTYPE_I1:
        return CVariant(static_cast<std::int8_t>(nValue));
    case DBTYPE_I2:
        return CVariant(static_cast<std::int16_t>(nValue));
    case DBTYPE_UI1:
        return CVariant(static_cast<std::uint8_t>(nValue));
    case DBTYPE_UI4:
        return CVariant(static_cast<std::uint32_t>(nValue));
    case DBTYPE_BOOL:
        return CVariant(nValue != 0);
    default:
        break;
    }
    const auto nHeld = static_cast<std::int32_t>(nValue);
    if (nHeld == nValue) return CVariant(nHeld);
    return CVariant(DecimalFromText(std::to_string(nValue)).value_or(DECIMAL()));
}

CVariant RealVariant(double dValue, DBTYPE wType) {
    constexpr double dMax = std::numeric_limits<float>::max();
    if (wType == DBTYPE_R4 && std::fabs(dValue) <= dMax) return CVariant(static_cast<float>(dValue));
    if (wType == DBTYPE_DECIMAL)
        if (const std::optional<DECIMAL> decimal = DecimalFromNumber(dValue)) return CVariant(*decimal);
    return CVariant(dValue);
}

[[noreturn]] void RaiseConversion(const CVariant& value) {
    RaiseAdoError(adErrDataConversion,
                  "The value \"" + GbkFromWide(VariantText(value)) + "\" does not suit the column's type.");
}

[[noreturn]] void RaiseOverflow(const CVariant& value) {
    throw CComError(DB_E_DATAOVERFLOW, L"ADODB",
                    L"The value " + VariantText(value) + L" is out of the column's range.");
}

[[noreturn]] void RaiseNotInCodePage(char32_t character) {
    std::array<wchar_t, 80> szWhy{};
    std::swprintf(szWhy.data(), szWhy.size(), L"character U+%04X is not in the system code page",
                  static_cast<unsigned>(character));
    throw CComError(DB_E_ERRORSOCCURRED, L"ADODB", szWhy.data());
}

/// The value as a whole or a real number.
CDbValue Number(const CVariant& value) {
    switch (value.Type()) {
    case VT_I1:
        return std::int64_t{value.I1()};
    case VT_I2:
    case VT_BOOL:
        return std::int64_t{value.I2()};
    case VT_I4:
    case VT_INT:
        return std::int64_t{value.I4()};
    case VT_UI1:
        return std::int64_t{value.UI1()};
    case VT_UI4:
        return std::int64_t{value.UI4()};
    case VT_R4:
        return static_cast<double>(value.R4());
    case VT_R8:
    case VT_DATE:
        return value.R8();
    case VT_DECIMAL:
    case VT_BSTR: {
        const std::string strNumber = GbkOrRaise(VariantText(value));
        const std::string_view strText = TrimBlanks(strNumber);
        if (const auto nWhole = NumberFromText<std::int64_t>(strText)) return *nWhole;
        if (const auto dReal = NumberFromText<double>(strText)) return *dReal;
        break;
    }
    default:
        break;
    }
    RaiseConversion(value);
}

std::int64_t WholeWithin(const CVariant& value, std::int64_t nMin, std::int64_t nMax) {
    const CDbValue number = Number(value);
    std::int64_t nWhole = 0;
    if (const auto* pReal = std::get_if<double>(&number)) {
        constexpr double dLimit = 9223372036854775808.0;
        const double dRounded = std::nearbyint(*pReal); // half to even, as variants round
        if (!(dRounded >= -dLimit && dRounded < dLimit)) RaiseOverflow(value);
        nWhole = static_cast<std::int64_t>(dRounded);
    } else {
        nWhole = std::get<std::int64_t>(number);
    }
    if (nWhole < nMin || nWhole > nMax) RaiseOverflow(value);
    return nWhole;
}

template <class Whole>
CDbValue WholeFor(const CVariant& value) {
    return WholeWithin(value, std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max());
}

CDbValue RealFor(const CVariant& value) {
    const CDbValue number = Number(value);
    const auto* pWhole = std::get_if<std::int64_t>(&number);
    return pWhole ? CDbValue(static_cast<double>(*pWhole)) : number;
}

CDbValue TruthFor(const CVariant& value) {
    if (value.Type() == VT_BSTR) {
        const std::string strText = GbkFromWide(value.Text());
        if (EqualNoCase(strText, "true")) return std::int64_t{1};
        if (EqualNoCase(strText, "false")) return std::int64_t{0};
    }
    const CDbValue number = Number(value);
    const auto* pWhole = std::get_if<std::int64_t>(&number);
    return std::int64_t{(pWhole ? *pWhole != 0 : std::get<double>(number) != 0.0) ? 1 : 0};
}

CDbValue DateFor(const CVariant& value) {
    if (value.Type() == VT_BSTR) {
        std::string strText = GbkOrRaise(value.Text());
        if (!DaysFromText(strText)) RaiseConversion(value);
        return strText;
    }
    std::string strText = DateText(std::get<double>(RealFor(value)));
    if (strText.empty()) RaiseOverflow(value);
    return strText;
}

/// The value by its own type, for a column without one.
CDbValue AsItIs(const CVariant& value) {
    switch (value.Type()) {
    case VT_BSTR:
        return GbkOrRaise(value.Text());
    case VT_BYTES:
        return value.Bytes();
    case VT_DATE:
        return DateFor(value);
    case VT_BOOL:
        return TruthFor(value);
    default:
        return Number(value);
    }
}

template <class Number>
std::wstring WideShortestText(Number value) {
    return WideFromGbk(ShortestText(value));
}

} // namespace

CVariant VariantOfCell(const CDbCell& cell, DBTYPE wDeclared) {
    const DBTYPE wType = CellType(cell, wDeclared);
    const bool bReal = wType == DBTYPE_R4 || wType == DBTYPE_R8 || wType == DBTYPE_DECIMAL;
    if (const auto* pReal = std::get_if<double>(&cell)) return RealVariant(*pReal, wType);
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) {
        if (wType == DBTYPE_DECIMAL) return CVariant(DecimalFromText(CellText(cell)).value_or(DECIMAL()));
        return bReal ? RealVariant(static_cast<double>(*pWhole), wType) : WholeVariant(*pWhole, wType);
    }
    if (const auto* pBytes = std::get_if<std::span<const unsigned char>>(&cell))
        return CVariant(std::vector<unsigned char>(pBytes->begin(), pBytes->end()));
    const auto* pText = std::get_if<std::string_view>(&cell);
    if (!pText) return CVariant::Null();
    if (wType == DBTYPE_DATE)
        if (const std::optional<double> dDays = DaysFromText(*pText)) return CVariant::Date(*dDays);
    return CVariant(WideFromGbk(*pText));
}

CDbValue ValueForColumn(const CVariant& value, DBTYPE wDeclared) {
    if (value.Type() == VT_EMPTY || value.IsNull()) return std::monostate();
    switch (wDeclared) {
    case DBTYPE_I1:
        return WholeFor<std::int8_t>(value);
    case DBTYPE_I2:
        return WholeFor<std::int16_t>(value);
    case DBTYPE_UI1:
        return WholeFor<std::uint8_t>(value);
    case DBTYPE_UI4:
        return WholeFor<std::uint32_t>(value);
    case DBTYPE_I4: // the embedded engine's columns hold 64 bits, and such a value may go back as it came
        return WholeFor<std::int64_t>(value);
    case DBTYPE_R4:
    case DBTYPE_R8:
        return RealFor(value);
    case DBTYPE_DECIMAL:
        return Number(value);
    case DBTYPE_BOOL:
        return TruthFor(value);
    case DBTYPE_DATE:
        return DateFor(value);
    case DBTYPE_BSTR:
        if (value.Type() == VT_ERROR || value.Type() == VT_BYTES) RaiseConversion(value);
        return GbkOrRaise(VariantText(value));
    case DBTYPE_BYTES:
        if (value.Type() != VT_BYTES) RaiseConversion(value);
        return value.Bytes();
    default:
        return AsItIs(value);
    }
}

std::wstring VariantText(const CVariant& value) {
    switch (value.Type()) {
    case VT_R4:
        return WideShortestText(value.R4());
    case VT_R8:
        return WideShortestText(value.R8());
    case VT_DATE:
        return WideFromGbk(DateText(value.R8()));
    case VT_BSTR:
        return value.Text();
    case VT_BOOL:
        return value.Bool() ? L"True" : L"False";
    case VT_DECIMAL:
        return WideFromGbk(DecimalText(value.Decimal()));
    case VT_BYTES:
        return WideFromGbk(CellText(std::span<const unsigned char>(value.Bytes())));
    case VT_EMPTY:
    case VT_NULL:
        return {};
    case VT_ERROR:
        return L"Error " + WideShortestText(value.I4());
    default:
        return WideShortestText(std::get<std::int64_t>(Number(value)));
    }
}

std::string GbkOrRaise(std::wstring_view strWide) {
    for (const wchar_t character : strWide) {
        BOOL bRefused = FALSE;
        std::array<char, 4> szCharacter{};
        if (static_cast<unsigned>(character) < 0x80U) continue;
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &character, 1, szCharacter.data(),
                            static_cast<int>(szCharacter.size()), nullptr, &bRefused);
        if (bRefused) RaiseNotInCodePage(static_cast<char32_t>(character));
    }
    return GbkFromWide(strWide);
}

std::string GbkFromUtf8OrRaise(std::string_view strUtf8) {
    std::string strGbk;
    std::string strRefused;
    if (Utf8ToGbk(strUtf8, &strGbk, &strRefused)) return strGbk;
    std::size_t nPosition = 0;
    char32_t character = 0xFFFD;
    if (!strRefused.empty()) NextUtf8(strRefused, &nPosition, &character);
    RaiseNotInCodePage(character);
}
