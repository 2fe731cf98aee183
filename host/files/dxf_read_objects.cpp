#include "host/files/dxf_read_objects.h"

#include "host/files/dxf_structure.h"

#include <algorithm>
#include <array>

namespace {

constexpr int g_nEntryName = 3;

bool IsUsual(const CDxfRecord& record) {
    static constexpr std::array<std::string_view, 4> s_arTypes = {"ACDBDICTIONARYWDFLT", "ACDBPLACEHOLDER",
                                                                  "LAYOUT", "MLINESTYLE"};
    return std::find(s_arTypes.begin(), s_arTypes.end(), record.m_type) != s_arTypes.end();
}

} // namespace

void CDxfObjects::Add(const CDxfRecord& record) {
    if (record.m_type != "DICTIONARY") {
        if (!IsUsual(record)) m_drawing.Lose(record);
    } else if (!m_bRootRead) {
        m_bRootRead = true; // the first dictionary is the one of named objects
        m_drawing.Identify(m_drawing.Database().namedObjectsDictionaryId(), record);
        TakeRoot(record);
    } else if (record.Find(g_nEntryName) && !m_setUsual.contains(record.Handle())) {
        m_drawing.Lose(record);
    }
}

void CDxfObjects::TakeRoot(const CDxfRecord& record) {
    const CDxfTag* pName = nullptr;
    for (const CDxfTag& tag : record.m_arTags) {
        const bool bUsual = pName && IsUsualDxfEntry(pName->Text());
        if (bUsual && (tag.m_nCode == 350 || tag.m_nCode == 360)) m_setUsual.insert(DxfHandle(tag));
        pName = tag.m_nCode == g_nEntryName ? &tag : nullptr;
    }
}
