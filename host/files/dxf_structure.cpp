#include "host/files/dxf_structure.h"

#include <algorithm>
#include <array>

CDxfStructure::CDxfStructure(CDxfOutput& out)
    : m_plotStyle(out.NewHandle()) {
    m_arLayouts.push_back({out.Database().ModelSpaceId(), out.NewHandle(), L"Model", 0});
    for (const AcDbObjectId& id : LivingRecords(out.Database().blockTableId())) {
        if (!IsDxfPaperSpace(DxfName(id))) continue;
        const int nTab = static_cast<int>(m_arLayouts.size());
        m_arLayouts.push_back({id, out.NewHandle(), L"Layout" + std::to_wstring(nTab), nTab});
    }
}

AcDbHandle CDxfStructure::LayoutOf(AcDbObjectId idBlock) const {
    const auto found = std::find_if(m_arLayouts.begin(), m_arLayouts.end(),
                                    [&](const CDxfLayout& layout) { return layout.m_idBlock == idBlock; });
    return found == m_arLayouts.end() ? AcDbHandle() : found->m_handle;
}

bool IsUsualDxfEntry(std::string_view name) {
    static constexpr std::array<std::string_view, 5> s_arNames = {
        "ACAD_GROUP", "ACAD_LAYOUT", "ACAD_MLINESTYLE", "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME"};
    return std::find(s_arNames.begin(), s_arNames.end(), name) != s_arNames.end();
}
