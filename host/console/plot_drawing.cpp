#include "host/console/plot_drawing.h"

#include "host/console/drawing_order.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/editor.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

namespace {

/// What an entity has from its layer.
struct CLayerLook {
    Adesk::UInt16 m_nColor = 7;
    std::string m_strLinetype; // GBK; empty for continuous
};

CLayerLook LookOf(AcDbObjectId idLayer) {
    const CDbOpen<AcDbLayerTableRecord> layer(idLayer);
    if (!layer) return {};
    return {layer->ColorIndex(), SymbolName(layer->linetypeObjectId())};
}

bool IsByLayer(const std::string& strLinetype) {
    return SameName(WideFromGbk(strLinetype), L"ByLayer");
}

// The primitives with the layer's line type where they have ByLayer.
CDisplayList WithLinetypesOf(const CLayerLook& look, const CDisplayList& list) {
    CDisplayList resolved = list;
    for (CPrimitive& primitive : resolved)
        if (IsByLayer(primitive.m_strLinetype)) primitive.m_strLinetype = look.m_strLinetype;
    return resolved;
}

std::vector<double> DashesOf(const AcDbDatabase& drawing, const std::string& strName) {
    const CDbOpen<AcDbLinetypeTable> table(drawing.linetypeTableId());
    AcDbObjectId id;
    if (!table || table->getAt(WideFromGbk(strName).c_str(), id) != Acad::eOk) return {};
    const CDbOpen<AcDbLinetypeTableRecord> linetype(id);
    return linetype ? linetype->Dashes() : std::vector<double>();
}

double DotsPerInch() {
    resbuf value;
    constexpr double dUnlessSet = 150.0;
    return acedGetVar(L"PLOTDPI", &value) == RTNORM ? value.resval.rint : dUnlessSet;
}

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

/// Model space in database order, ready for pages.
class CPlottedDrawing {
public:
    explicit CPlottedDrawing(AcDbDatabase& drawing) {
        for (const AcDbObjectId& id : ModelSpaceEntities(drawing))
            if (const CDbOpen<AcDbEntity> entity(id); entity) Add(*entity.Get());
    }

    /// One for each sheet; the whole drawing on one where there is no sheet. They point into this object.
    std::vector<CPlotPage> Pages() const {
        std::vector<CPlotPage> pages;
        for (const CPageBox& box : m_arSheets)
            pages.push_back(PageWith(box));
        if (pages.empty()) pages.push_back(PageWith(SheetFor(m_extents)));
        return pages;
    }

private:
    struct CPlotted {
        CDisplayList m_list;
        Adesk::UInt16 m_nLayerColor;
        AcDbExtents m_extents;
    };

    void Add(const AcDbEntity& entity) {
        if (IsSheet(entity)) AddSheet(*AcDbBlockReference::cast(&entity));
        if (!entity.Picture()) return;
        const CLayerLook look = LookOf(entity.layerId());
        m_arPlotted.push_back(
            {WithLinetypesOf(look, *entity.Picture()), look.m_nColor, ExtentsOf(*entity.Picture())});
        m_extents.addExt(m_arPlotted.back().m_extents);
    }

    void AddSheet(const AcDbBlockReference& reference) {
        const AcDbExtents extents = reference.BlockExtents();
        if (!extents.isEmpty()) m_arSheets.push_back(PageOf(extents));
    }

    CPlotPage PageWith(const CPageBox& box) const {
        CPlotPage page{box, {}};
        for (const CPlotted& plotted : m_arPlotted)
            if (Meets(plotted.m_extents, box))
                page.m_arPictures.push_back({&plotted.m_list, plotted.m_nLayerColor});
        return page;
    }

    std::vector<CPlotted> m_arPlotted;
    std::vector<CPageBox> m_arSheets;
    AcDbExtents m_extents;
};

} // namespace

bool PlotDrawing(AcDbDatabase& drawing, CFonts& fonts, const std::filesystem::path& path,
                 std::string* pReason) {
    const CPlottedDrawing plotted(drawing);
    CPlotOptions options;
    options.m_fnLinetype = [&drawing](const std::string& strName) { return DashesOf(drawing, strName); };
    options.m_dLinetypeScale = drawing.ltscale();
    options.m_dDotsPerInch = DotsPerInch();
    return Plot(plotted.Pages(), options, fonts, path, pReason);
}
