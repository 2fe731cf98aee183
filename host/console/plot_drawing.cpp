#include "host/console/plot_drawing.h"

#include "host/console/drawing_order.h"
#include "platform/acad/editor.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <deque>

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

/// The pictures of model space in database order, ready for a page.
class CPlottedDrawing {
public:
    explicit CPlottedDrawing(AcDbDatabase& drawing) {
        for (const AcDbObjectId& id : ModelSpaceEntities(drawing)) {
            const CDbOpen<AcDbEntity> entity(id);
            if (entity && entity->Picture()) Add(*entity.Get());
        }
    }
    const std::vector<CPlotPicture>& Pictures() const { return m_arPictures; }
    const AcDbExtents& Extents() const { return m_extents; }

private:
    void Add(const AcDbEntity& entity) {
        const CLayerLook look = LookOf(entity.layerId());
        m_arLists.push_back(WithLinetypesOf(look, *entity.Picture()));
        m_arPictures.push_back({&m_arLists.back(), look.m_nColor});
        m_extents.addExt(ExtentsOf(*entity.Picture()));
    }

    std::deque<CDisplayList> m_arLists; // pages point into it
    std::vector<CPlotPicture> m_arPictures;
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
    return Plot({{SheetFor(plotted.Extents()), plotted.Pictures()}}, options, fonts, path, pReason);
}
