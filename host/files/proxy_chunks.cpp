#include "host/files/proxy_chunks.h"

#include <cmath>

namespace {
constexpr std::size_t g_nAlignment = 4, g_nPointSize = 24;
} // namespace

void CProxyChunkWriter::Real(double d) {
    m_bFinite = m_bFinite && std::isfinite(d);
    m_bits.RD(d);
}

void CProxyChunkWriter::Point(const AcGePoint3d& pt) {
    Real(pt.x);
    Real(pt.y);
    Real(pt.z);
}

void CProxyChunkWriter::Points(const std::vector<AcGePoint3d>& arPoints) {
    Long(static_cast<std::uint32_t>(arPoints.size()));
    for (const AcGePoint3d& pt : arPoints)
        Point(pt);
}

void CProxyChunkWriter::Text(std::string_view bytes) {
    bytes = bytes.substr(0, bytes.find('\0'));
    for (const char c : bytes)
        m_bits.RC(static_cast<std::uint8_t>(c));
    for (std::size_t i = bytes.size() % g_nAlignment; i < g_nAlignment; ++i)
        m_bits.RC(0);
}

std::uint32_t CProxyChunkReader::Long() {
    std::uint32_t n = 0;
    m_bits.RL(n);
    return n;
}

double CProxyChunkReader::Real() {
    double d = 0.0;
    m_bits.RD(d);
    if (!std::isfinite(d)) m_bits.Fail();
    return d;
}

AcGePoint3d CProxyChunkReader::Point() {
    const double x = Real(), y = Real(), z = Real();
    return {x, y, z};
}

std::vector<AcGePoint3d> CProxyChunkReader::Points() {
    const std::uint32_t nCount = Long();
    std::vector<AcGePoint3d> arPoints;
    if (nCount > m_bits.Left() / 8 / g_nPointSize) {
        m_bits.Fail();
        return arPoints;
    }
    arPoints.reserve(nCount);
    for (std::uint32_t i = 0; i < nCount; ++i)
        arPoints.push_back(Point());
    return arPoints;
}

std::string CProxyChunkReader::Text() {
    std::string strText;
    for (std::uint8_t n = 1; n != 0 && !Failed();) {
        m_bits.RC(n);
        if (n != 0) strText += static_cast<char>(n);
    }
    SkipFill();
    return strText;
}

std::wstring CProxyChunkReader::WideText() {
    std::wstring strText;
    for (std::uint16_t n = 1; n != 0 && !Failed();) {
        m_bits.RS(n);
        const bool bSecond = n >= 0xDC00 && n < 0xE000;
        if (bSecond && !strText.empty() && strText.back() >= 0xD800 && strText.back() < 0xDC00)
            strText.back() = static_cast<wchar_t>(0x10000 + ((strText.back() - 0xD800) << 10) + (n - 0xDC00));
        else if (n != 0)
            strText += static_cast<wchar_t>(n);
    }
    SkipFill();
    return strText;
}

void CProxyChunkReader::SkipFill() {
    std::uint8_t n = 0;
    while (m_bits.At() / 8 % g_nAlignment != 0 && m_bits.Left() > 0)
        m_bits.RC(n);
}
