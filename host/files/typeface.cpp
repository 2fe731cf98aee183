#include "host/files/typeface.h"

namespace {

constexpr Adesk::Int16 g_nNameCode = 1000, g_nTraitsCode = 1071;
constexpr Adesk::Int32 g_nBold = 0x2000000, g_nItalic = 0x1000000, g_nByte = 0xFF;
constexpr int g_nCharsetShift = 8;

/// The value of that kind under that code; null where there is none.
template <class Value>
const Value* ValueAt(const std::vector<CXDataItem>& items, std::size_t nAt, Adesk::Int16 nCode) {
    const bool bThere = nAt < items.size() && items[nAt].m_nCode == nCode;
    return bThere ? std::get_if<Value>(&items[nAt].m_value) : nullptr;
}

} // namespace

std::vector<CXDataItem> TypefaceItems(const AcDbTextStyleTableRecord& style) {
    std::wstring strTypeface;
    Adesk::Boolean bBold = 0, bItalic = 0;
    int nCharset = 0, nPitchAndFamily = 0;
    style.font(strTypeface, bBold, bItalic, nCharset, nPitchAndFamily);
    if (strTypeface.empty()) return {};
    const Adesk::Int32 nTraits = (bBold ? g_nBold : 0) | (bItalic ? g_nItalic : 0) |
                                 (nCharset & g_nByte) << g_nCharsetShift | (nPitchAndFamily & g_nByte);
    return {{g_nNameCode, strTypeface}, {g_nTraitsCode, nTraits}};
}

bool GiveTypeface(AcDbTextStyleTableRecord& style, const std::vector<CXDataItem>& items) {
    const auto* const pName = ValueAt<std::wstring>(items, 0, g_nNameCode);
    const auto* const pTraits = ValueAt<Adesk::Int32>(items, 1, g_nTraitsCode);
    return pName && pTraits &&
           style.setFont(pName->c_str(), (*pTraits & g_nBold) != 0, (*pTraits & g_nItalic) != 0,
                         *pTraits >> g_nCharsetShift & g_nByte, *pTraits & g_nByte) == Acad::eOk;
}
