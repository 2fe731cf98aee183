#include "host/files/dxf_record.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr int g_nType = 0, g_nEmbeddedObject = 101, g_nApplicationGroup = 102, g_nFirstXData = 1000;

/// The coordinates of the point that begins at a tag.
AcGePoint3d PointAt(const CDxfTag* pTag, const CDxfTag* pEnd) {
    std::array<double, 3> coordinates{};
    const int nCode = pTag->m_nCode;
    for (int i = 0; i < 3 && pTag != pEnd && pTag->m_nCode == nCode + 10 * i; ++i)
        coordinates[static_cast<std::size_t>(i)] = std::get<double>((pTag++)->m_value);
    return {coordinates[0], coordinates[1], coordinates[2]};
}

/// Appends the tag's binary data; false when they are broken.
bool AppendBytes(const CDxfTag& tag, CBytes& bytes) {
    const std::string_view text = tag.Text();
    if (!tag.m_bDigits) return bytes.insert(bytes.end(), text.begin(), text.end()), true;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        std::uint8_t n = 0;
        if (std::from_chars(&text[i], &text[i] + 2, n, 16).ptr != &text[i] + 2) return false;
        bytes.push_back(n);
    }
    return text.size() % 2 == 0;
}

} // namespace

AcDbHandle DxfHandle(const CDxfTag& tag) {
    const std::string_view text = tag.Text();
    Adesk::UInt64 value = 0;
    std::from_chars(text.data() + std::min(text.find_first_not_of(' '), text.size()),
                    text.data() + text.size(), value, 16);
    return AcDbHandle(value);
}

const CDxfTag* CDxfRecord::Find(int nCode) const {
    const auto found = std::find_if(m_arTags.begin(), m_arTags.end(),
                                    [=](const CDxfTag& tag) { return tag.m_nCode == nCode; });
    return found == m_arTags.end() ? nullptr : &*found;
}

AcDbHandle CDxfRecord::Handle() const {
    constexpr int nHandle = 5;
    const CDxfTag* const pTag = Find(nHandle);
    return pTag ? DxfHandle(*pTag) : AcDbHandle();
}

std::wstring CDxfRecord::Text(int nCode, const std::wstring& strElse) const {
    const CDxfTag* const pTag = Find(nCode);
    return pTag ? m_pEncoding->Decode(pTag->Text()) : strElse;
}

double CDxfRecord::Real(int nCode, double dElse) const {
    const CDxfTag* const pTag = Find(nCode);
    return pTag ? std::get<double>(pTag->m_value) : dElse;
}

std::int64_t CDxfRecord::Whole(int nCode, std::int64_t nElse) const {
    const CDxfTag* const pTag = Find(nCode);
    return pTag ? std::get<std::int64_t>(pTag->m_value) : nElse;
}

AcGePoint3d CDxfRecord::Point(int nCode) const {
    return {Real(nCode), Real(nCode + 10), Real(nCode + 20)};
}

std::vector<double> CDxfRecord::Reals(int nCode) const {
    std::vector<double> values;
    for (const CDxfTag& tag : m_arTags)
        if (tag.m_nCode == nCode) values.push_back(std::get<double>(tag.m_value));
    return values;
}

std::vector<AcGePoint3d> CDxfRecord::Points(int nCode) const {
    std::vector<AcGePoint3d> points;
    for (const CDxfTag& tag : m_arTags)
        if (tag.m_nCode == nCode) points.push_back(PointAt(&tag, m_arTags.data() + m_arTags.size()));
    return points;
}

CBytes CDxfRecord::BytesBehind(const CDxfTag& tag, int nCode) const {
    CBytes bytes;
    const CDxfTag* const pEnd = m_arTags.data() + m_arTags.size();
    for (const CDxfTag* pTag = &tag + 1; pTag != pEnd && pTag->m_nCode == nCode; ++pTag)
        if (!AppendBytes(*pTag, bytes)) break;
    return bytes;
}

CDxfRecords::CDxfRecords(CDxfReader& reader)
    : m_reader(reader)
    , m_bTag(reader.Next(&m_tag)) {
    if (!m_bTag || m_tag.m_nCode != g_nType) m_reader.Fail(m_tag.m_nPlace, "no DXF file");
}

bool CDxfRecords::Next(CDxfRecord* pRecord) {
    if (!m_bTag) return false;
    *pRecord = {m_tag.Text(), m_tag.m_nPlace, {}, {}, {}, &m_encoding};
    bool bEmbedded = false;
    while ((m_bTag = m_reader.Next(&m_tag)) && m_tag.m_nCode != g_nType) {
        if (m_tag.m_nCode == g_nApplicationGroup)
            SkipApplicationGroup(*pRecord);
        else if (m_tag.m_nCode >= g_nFirstXData)
            pRecord->m_arXData.push_back(m_tag);
        else if (bEmbedded = bEmbedded || m_tag.m_nCode == g_nEmbeddedObject; !bEmbedded)
            pRecord->m_arTags.push_back(m_tag);
    }
    return true;
}

void CDxfRecords::SkipApplicationGroup(CDxfRecord& record) {
    if (m_tag.Text().starts_with('}')) return;
    record.m_arGroups.push_back(m_tag.Text());
    const std::size_t nPlace = m_tag.m_nPlace;
    while (m_reader.Next(&m_tag) && m_tag.m_nCode != g_nType)
        if (m_tag.m_nCode == g_nApplicationGroup && m_tag.Text().starts_with('}')) return;
    m_reader.Fail(nPlace, "a group of an application that does not end");
}
