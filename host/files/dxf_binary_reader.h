#pragma once

#include "host/files/dxf_codes.h"
#include "host/files/dxf_reader.h"

/// How a binary file begins.
inline constexpr std::string_view g_szDxfBinarySentinel("AutoCAD Binary DXF\r\n\x1A\0", 22);

/// The binary form, little-endian. Codes have two bytes; before R13 one, or 255 and two.
class CDxfBinaryReader : public CDxfReader {
public:
    explicit CDxfBinaryReader(std::string_view bytes);
    std::string PlaceText(std::size_t nPlace) const override;

private:
    bool Read(CDxfTag* pTag) override;
    int Code();
    std::string_view Take(std::size_t nBytes);
    std::string_view TakeText();
    template <class Number>
    Number TakeNumber();

    std::string_view m_bytes;
    std::size_t m_nNext;
    bool m_bShortCodes;
};
