#include "host/files/dxf_binary_reader.h"

#include <bit>
#include <cmath>
#include <cstring>

static_assert(std::endian::native == std::endian::little,
              "numbers are taken from the file as they lie there");

namespace {
constexpr int g_nLongCodeFollows = 255;
}

// The first group is code 0 with a text: a second zero byte belongs to a code of two bytes.
CDxfBinaryReader::CDxfBinaryReader(std::string_view bytes)
    : m_bytes(bytes)
    , m_nNext(g_szDxfBinarySentinel.size())
    , m_bShortCodes(bytes.size() > m_nNext + 1 && bytes[m_nNext + 1] != 0) {}

std::string CDxfBinaryReader::PlaceText(std::size_t nPlace) const {
    return "offset " + std::to_string(nPlace);
}

std::string_view CDxfBinaryReader::Take(std::size_t nBytes) {
    if (nBytes > m_bytes.size() - m_nNext) Fail(m_nNext, "the file ends within a group");
    const std::string_view taken = m_bytes.substr(m_nNext, nBytes);
    m_nNext += nBytes;
    return taken;
}

std::string_view CDxfBinaryReader::TakeText() {
    const std::size_t nEnd = m_bytes.find('\0', m_nNext);
    if (nEnd == std::string_view::npos) Fail(m_nNext, "the file ends within a text");
    const std::string_view text = Take(nEnd - m_nNext);
    Take(1);
    return text;
}

template <class Number>
Number CDxfBinaryReader::TakeNumber() {
    Number value;
    std::memcpy(&value, Take(sizeof value).data(), sizeof value);
    return value;
}

int CDxfBinaryReader::Code() {
    if (!m_bShortCodes) return TakeNumber<std::uint16_t>();
    const int nCode = TakeNumber<std::uint8_t>();
    return nCode == g_nLongCodeFollows ? TakeNumber<std::uint16_t>() : nCode;
}

bool CDxfBinaryReader::Read(CDxfTag* pTag) {
    if (m_nNext == m_bytes.size()) return false;
    pTag->m_nPlace = m_nNext;
    pTag->m_nCode = Code();
    pTag->m_bDigits = false;
    switch (DxfKindOf(pTag->m_nCode)) {
    case CDxfKind::None:
        Fail(pTag->m_nPlace, "no group code: " + std::to_string(pTag->m_nCode));
    case CDxfKind::Text:
        pTag->m_value = TakeText();
        break;
    case CDxfKind::Bytes:
        pTag->m_value = Take(TakeNumber<std::uint8_t>());
        break;
    case CDxfKind::Real:
        pTag->m_value = TakeNumber<double>();
        if (!std::isfinite(std::get<double>(pTag->m_value)))
            Fail(pTag->m_nPlace, "a number that is not finite");
        break;
    case CDxfKind::Flag:
        pTag->m_value = std::int64_t{TakeNumber<std::uint8_t>()};
        break;
    case CDxfKind::Short:
        pTag->m_value = std::int64_t{TakeNumber<std::int16_t>()};
        break;
    case CDxfKind::Long:
        pTag->m_value = std::int64_t{TakeNumber<std::int32_t>()};
        break;
    case CDxfKind::LongLong:
        pTag->m_value = TakeNumber<std::int64_t>();
        break;
    }
    return true;
}
