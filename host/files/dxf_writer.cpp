#include "host/files/dxf_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

void CDxfWriter::Code(int nCode) {
    const std::string strCode = std::to_string(nCode);
    if (strCode.size() < 3) m_strBytes.append(3 - strCode.size(), ' ');
    m_strBytes += strCode;
    m_strBytes += '\n';
}

void CDxfWriter::Word(int nCode, std::string_view word) {
    Code(nCode);
    m_strBytes += word;
    m_strBytes += '\n';
}

void CDxfWriter::Text(int nCode, std::wstring_view text) {
    Word(nCode, m_text.Encode(text));
}

void CDxfWriter::Real(int nCode, double value) {
    if (!std::isfinite(value)) m_bFinite = false;
    std::array<char, 32> digits{};
    std::string strNumber(digits.begin(), std::to_chars(digits.begin(), digits.end(), value).ptr);
    if (strNumber.find('.') == std::string::npos)
        strNumber.insert(std::min(strNumber.find('e'), strNumber.size()), ".0");
    Word(nCode, strNumber);
}

void CDxfWriter::Whole(int nCode, std::int64_t value) {
    Word(nCode, std::to_string(value));
}

void CDxfWriter::Handle(int nCode, AcDbHandle handle) {
    Word(nCode, handle.isNull() ? "0" : handle.Hex());
}

void CDxfWriter::Bytes(int nCode, CByteView bytes) {
    constexpr std::size_t nMostOfLine = 127;
    constexpr std::string_view digits = "0123456789ABCDEF";
    while (!bytes.empty()) {
        std::string strLine;
        for (const std::uint8_t n : bytes.first(std::min(nMostOfLine, bytes.size())))
            strLine += {digits[n >> 4], digits[n & 15]};
        Word(nCode, strLine);
        bytes = bytes.subspan(strLine.size() / 2);
    }
}

void CDxfWriter::Point(int nCode, const AcGePoint2d& point) {
    Real(nCode, point.x);
    Real(nCode + 10, point.y);
}

void CDxfWriter::Point(int nCode, const AcGePoint3d& point) {
    Point(nCode, AcGePoint2d(point.x, point.y));
    Real(nCode + 20, point.z);
}

bool CDxfWriter::KeepIf(bool bWanted, std::size_t nSize) {
    const bool bKept = std::exchange(m_bFinite, true) && bWanted;
    if (!bKept) m_strBytes.resize(nSize);
    return bKept;
}
