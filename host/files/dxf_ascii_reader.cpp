#include "host/files/dxf_ascii_reader.h"

#include <charconv>
#include <cmath>

namespace {

std::string_view Trimmed(std::string_view text) {
    const std::size_t nFirst = text.find_first_not_of(" \t");
    if (nFirst == std::string_view::npos) return {};
    return text.substr(nFirst, text.find_last_not_of(" \t") - nFirst + 1);
}

} // namespace

CDxfAsciiReader::CDxfAsciiReader(std::string_view bytes)
    : m_rest(bytes) {
    if (m_rest.starts_with(g_szDxfByteOrderMark)) m_rest.remove_prefix(g_szDxfByteOrderMark.size());
}

std::string CDxfAsciiReader::PlaceText(std::size_t nPlace) const {
    return "line " + std::to_string(nPlace);
}

bool CDxfAsciiReader::Line(std::string_view* pLine) {
    if (m_rest.empty()) return false;
    ++m_nLine;
    const std::size_t nEnd = m_rest.find('\n');
    *pLine = m_rest.substr(0, nEnd);
    m_rest.remove_prefix(nEnd == std::string_view::npos ? m_rest.size() : nEnd + 1);
    if (pLine->ends_with('\r')) pLine->remove_suffix(1);
    return true;
}

template <class Number>
Number CDxfAsciiReader::NumberOf(std::string_view text) const {
    text = Trimmed(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    Number value{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || result.ec != std::errc() || result.ptr != text.data() + text.size())
        Fail(m_nLine, "no number, or one out of range");
    return value;
}

bool CDxfAsciiReader::Read(CDxfTag* pTag) {
    std::string_view line;
    if (!Line(&line)) return false;
    if (m_rest.empty() && Trimmed(line).empty()) return false; // an empty line behind the last group
    pTag->m_nPlace = m_nLine;
    pTag->m_nCode = NumberOf<int>(line);
    const CDxfKind kind = DxfKindOf(pTag->m_nCode);
    if (kind == CDxfKind::None) Fail(m_nLine, "no group code: " + std::to_string(pTag->m_nCode));
    if (!Line(&line)) Fail(m_nLine, "the file ends within a group");
    switch (kind) {
    case CDxfKind::Text:
    case CDxfKind::Bytes:
        pTag->m_value = line;
        break;
    case CDxfKind::Real: {
        const double value = NumberOf<double>(line);
        if (!std::isfinite(value)) Fail(m_nLine, "a number that is not finite");
        pTag->m_value = value;
        break;
    }
    default:
        pTag->m_value = NumberOf<std::int64_t>(line);
    }
    return true;
}
