#include "host/console/sheet_pages.h"

#include "host/console/drawing_order.h"
#include "host/console/layer_look.h"
#include "platform/acad/wide_names.h"

namespace {

// Each reference to this block is the frame of a sheet.
constexpr const wchar_t* g_pSheetBlock = L"BRMB";

bool IsSheet(const AcDbEntity& entity) {
    const auto* const pReference = AcDbBlockReference::cast(&entity);
    if (!pReference) return false;
    const CDbOpen<AcDbBlockTableRecord> block(pReference->blockTableRecord());
    return block && SameName(block->Name(), g_pSheetBlock);
}

bool Meets(const AcDbExtents& extents, const CPageBox& page) {
    return !extents.isEmpty() && extents.minPoint().x <= page.m_dRight &&
           extents.maxPoint().x >= page.m_dLeft && extents.minPoint().y <= page.m_dTop &&
           extents.maxPoint().y >= page.m_dBottom;
}

} // namespace

CPlottedDrawing::CPlottedDrawing(AcDbDatabase& drawing) {
    for (const AcDbObjectId& id : ModelSpaceEntities(drawing))
        if (const CDbOpen<AcDbEntity> entity(id); entity) Add(*entity.Get());
}

std::vector<CPlotPage> CPlottedDrawing::Pages() const {
    std::vector<CPlotPage> pages;
    for (const CPageBox& box : m_arSheets)
        pages.push_back(PageWith(box));
    if (pages.empty()) pages.push_back(PageWith(SheetFor(m_extents)));
    return pages;
}

void CPlottedDrawing::Add(const AcDbEntity& entity) {
    if (IsSheet(entity)) AddSheet(*AcDbBlockReference::cast(&entity));
    if (!entity.Picture()) return;
    const CLayerLook look = LookOf(entity.layerId());
    m_arPlotted.push_back(
        {WithLinetypesOf(look, *entity.Picture()), look.m_nColor, ExtentsOf(*entity.Picture())});
    m_extents.addExt(m_arPlotted.back().m_extents);
}

void CPlottedDrawing::AddSheet(const AcDbBlockReference& reference) {
    const AcDbExtents extents = reference.BlockExtents();
    if (!extents.isEmpty()) m_arSheets.push_back(PageOf(extents));
}

CPlotPage CPlottedDrawing::PageWith(const CPageBox& box) const {
    CPlotPage page{box, {}};
    for (const CPlotted& plotted : m_arPlotted)
        if (Meets(plotted.m_extents, box))
            page.m_arPictures.push_back({&plotted.m_list, plotted.m_nLayerColor});
    return page;
}
