#pragma once

#include "host/files/dxf_codes.h"
#include "host/files/dxf_reader.h"

/// What a file in UTF-8 may begin with.
inline constexpr std::string_view g_szDxfByteOrderMark = "\xEF\xBB\xBF";

/// The text form: a line with the code, a line with the value. Lines end with LF or CRLF; blanks before and
/// behind a code or a number don't count, nor does a byte order mark.
class CDxfAsciiReader : public CDxfReader {
public:
    explicit CDxfAsciiReader(std::string_view bytes);
    std::string PlaceText(std::size_t nPlace) const override;

private:
    bool Read(CDxfTag* pTag) override;
    bool Line(std::string_view* pLine);
    template <class Number>
    Number NumberOf(std::string_view text) const;

    std::string_view m_rest;
    std::size_t m_nLine = 0; ///< the line taken last, counted from 1
};
