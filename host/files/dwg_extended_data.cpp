#include "host/files/dwg_extended_data.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"

#include <cwchar>

namespace {

constexpr Adesk::Int16 g_nFirstCode = 1000;
// The codes of texts that do not stand as such.
constexpr Adesk::Int16 g_nBrace = 1002, g_nLayer = 1003, g_nHandle = 1005;
constexpr Adesk::Int16 g_nBinary = 1004;
constexpr std::size_t g_nLongestText = 255;

void WriteHandle(CBitWriter& bits, std::uint64_t nHandle) {
    for (int nShift = 56; nShift >= 0; nShift -= 8)
        bits.RC(static_cast<std::uint8_t>(nHandle >> nShift));
}

std::uint64_t ReadHandle(CBitReader& bits) {
    std::uint64_t nHandle = 0;
    for (int i = 0; i < 8; ++i) {
        std::uint8_t byte = 0;
        bits.RC(byte);
        nHandle = nHandle << 8 | byte;
    }
    return nHandle;
}

/// Of a text that is too long the part that fits. Even one that was read may have become too long: where the
/// code page that it came in is not this one, its characters are escapes.
std::string BytesThatFit(std::wstring_view text, const CDrawingText& coder) {
    text = text.substr(0, g_nLongestText);
    std::string strBytes = coder.Encode(text);
    while (strBytes.size() > g_nLongestText) {
        text.remove_suffix(1);
        strBytes = coder.Encode(text);
    }
    return strBytes;
}

struct CPackValue {
    CBitWriter& m_bits;
    Adesk::Int16 m_nCode;
    const CDwgExtendedContext& m_context;

    void operator()(double d) const { m_bits.RD(d); }
    void operator()(const AcGePoint3d& pt) const { m_bits.RD3(pt); }
    void operator()(Adesk::Int16 n) const { m_bits.RS(static_cast<std::uint16_t>(n)); }
    void operator()(Adesk::Int32 n) const { m_bits.RL(n); }
    void operator()(const std::wstring& strText) const {
        if (m_nCode == g_nBrace) return m_bits.RC(strText == L"}" ? 1 : 0);
        if (m_nCode == g_nLayer) return WriteHandle(m_bits, m_context.m_handleOfLayer(strText));
        if (m_nCode == g_nHandle) return WriteHandle(m_bits, std::wcstoull(strText.c_str(), nullptr, 16));
        const std::string strBytes = BytesThatFit(strText, m_context.m_text);
        m_bits.RC(static_cast<std::uint8_t>(strBytes.size()));
        m_bits.RSBig(m_context.m_nCodePage);
        for (const char c : strBytes)
            m_bits.RC(static_cast<std::uint8_t>(c));
    }
};

std::wstring HexText(std::uint64_t nHandle) {
    const std::string strHex = AcDbHandle(nHandle).Hex();
    return {strHex.begin(), strHex.end()};
}

std::wstring UnpackText(CBitReader& bits, Adesk::Int16 nCode, const CDwgExtendedContext& context) {
    std::uint8_t nByte = 0;
    if (nCode == g_nBrace) return bits.RC(nByte), nByte ? L"}" : L"{";
    if (nCode == g_nLayer) return context.m_layerOfHandle(ReadHandle(bits));
    if (nCode == g_nHandle) return HexText(ReadHandle(bits));
    std::uint16_t nCodePage = 0;
    CBytes bytes;
    bits.RC(nByte);
    bits.RSBig(nCodePage);
    bits.Raw(bytes, nByte);
    const std::string strBytes(bytes.begin(), bytes.end());
    return CDrawingText(CodePageOfDwg(nCodePage)).Decode(strBytes);
}

/// Reads the value of a code; false for a code that there is not.
bool UnpackValue(CBitReader& bits, CXDataItem& item, const CDwgExtendedContext& context) {
    const int nCode = item.m_nCode;
    if (nCode == 1000 || (nCode >= g_nBrace && nCode <= 1009)) {
        if (nCode == g_nBinary) return false;
        item.m_value = UnpackText(bits, item.m_nCode, context);
    } else if (nCode >= 1010 && nCode <= 1013) {
        bits.RD3(item.m_value.emplace<AcGePoint3d>());
    } else if (nCode >= 1040 && nCode <= 1042) {
        bits.RD(item.m_value.emplace<double>());
    } else if (nCode == 1070) {
        std::uint16_t nValue = 0;
        bits.RS(nValue);
        item.m_value = static_cast<Adesk::Int16>(nValue);
    } else if (nCode == 1071) {
        bits.RL(item.m_value.emplace<Adesk::Int32>());
    } else {
        return false;
    }
    return !bits.Failed();
}

} // namespace

CBytes PackExtendedData(const std::vector<CXDataItem>& items, const CDwgExtendedContext& context) {
    CBitWriter bits;
    for (const CXDataItem& item : items) {
        bits.RC(static_cast<std::uint8_t>(item.m_nCode - g_nFirstCode));
        std::visit(CPackValue{bits, item.m_nCode, context}, item.m_value);
    }
    return bits.Take();
}

std::vector<CXDataItem> UnpackExtendedData(CByteView bytes, const CDwgExtendedContext& context) {
    std::vector<CXDataItem> items;
    CBitReader bits(bytes);
    while (bits.Left()) {
        CXDataItem item;
        std::uint8_t nCode = 0;
        bits.RC(nCode);
        item.m_nCode = static_cast<Adesk::Int16>(g_nFirstCode + nCode);
        if (!UnpackValue(bits, item, context)) break;
        items.push_back(std::move(item));
    }
    return items;
}
