#pragma once

#include "host/files/bytes.h"
#include "host/files/drawing_text.h"
#include "platform/acad/db_object_id.h"
#include "platform/acad/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

/// The code page of the texts that are written.
inline constexpr std::string_view g_szDxfCodePage = "ANSI_936";

/// Writes groups in the text form, one call a group.
class CDxfWriter {
public:
    void Word(int nCode, std::string_view word); ///< ASCII, as it stands
    void Text(int nCode, std::wstring_view text);
    void Real(int nCode, double value); ///< the shortest text that reads back to the same number
    void Whole(int nCode, std::int64_t value);
    void Handle(int nCode, AcDbHandle handle);
    void Bytes(int nCode, CByteView bytes); ///< as many groups as they take
    void Point(int nCode, const AcGePoint2d& point);
    void Point(int nCode, const AcGePoint3d& point);

    const std::string& Bytes() const { return m_strBytes; }
    std::string TakeBytes() { return std::exchange(m_strBytes, {}); } ///< what was written so far
    /// Keeps what was written behind the first nSize bytes, or takes it back: when it is not wanted, or when
    /// a number in it was not finite, which no file can hold. True when it is kept.
    bool KeepIf(bool bWanted, std::size_t nSize);

private:
    void Code(int nCode);

    CDrawingText m_text{CodePageOfDxf(g_szDxfCodePage), CDrawingText::CCarets::Escapes};
    std::string m_strBytes;
    bool m_bFinite = true;
};
