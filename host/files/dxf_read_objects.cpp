#include "host/files/dxf_read_objects.h"

#include <algorithm>
#include <array>

namespace {

constexpr int g_nEntryName = 3;

template <std::size_t N>
bool Holds(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsUsual(const CDxfRecord& record) {
    static constexpr std::array<std::string_view, 4> s_arTypes = {"ACDBDICTIONARYWDFLT", "ACDBPLACEHOLDER",
                                                                  "LAYOUT", "MLINESTYLE"};
    return Holds(s_arTypes, record.m_type);
}

bool IsUsualEntry(std::string_view name) {
    static constexpr std::array<std::string_view, 5> s_arNames = {
        "ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE", "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME"};
    return Holds(s_arNames, name);
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
        const bool bUsual = pName && IsUsualEntry(pName->Text());
        if (bUsual && (tag.m_nCode == 350 || tag.m_nCode == 360)) m_setUsual.insert(DxfHandle(tag));
        pName = tag.m_nCode == g_nEntryName ? &tag : nullptr;
    }
}
