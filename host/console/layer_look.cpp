#include "host/console/layer_look.h"

#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

namespace {

bool IsByLayer(const std::string& strLinetype) {
    return SameName(WideFromGbk(strLinetype), L"ByLayer");
}

} // namespace

CLayerLook LookOf(AcDbObjectId idLayer) {
    const CDbOpen<AcDbLayerTableRecord> layer(idLayer);
    if (!layer) return {};
    return {layer->ColorIndex(), SymbolName(layer->linetypeObjectId())};
}

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
