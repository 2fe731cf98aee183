#include "host/files/dxf_entity_types.h"

#include "host/files/dxf_angles.h"
#include "host/files/dxf_write_curves.h"
#include "host/files/dxf_write_texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"

#include <algorithm>
#include <array>

namespace {

/// No file can hold one whose block is gone.
bool WriteReference(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbBlockReference& reference = *AcDbBlockReference::cast(&entity);
    const std::wstring strBlock = DxfName(reference.blockTableRecord());
    const AcGeScale3d scale = reference.scaleFactors();
    out.Subclass("AcDbBlockReference");
    if (!reference.AttributeIds().empty()) out.Whole(66, 1);
    out.Text(2, strBlock);
    out.Point(10, reference.position());
    out.Real(41, scale.sx);
    out.Real(42, scale.sy);
    out.Real(43, scale.sz);
    out.Real(50, DxfDegrees(reference.rotation()));
    return !strBlock.empty();
}

constexpr std::array g_arTypes = {
    CDxfEntityType{AcDbLine::desc, WriteDxfLine},
    CDxfEntityType{AcDbArc::desc, WriteDxfArc},
    CDxfEntityType{AcDbPolyline::desc, WriteDxfPolyline},
    CDxfEntityType{AcDbSpline::desc, WriteDxfSpline},
    CDxfEntityType{AcDbText::desc, WriteDxfText},
    CDxfEntityType{AcDbAttributeDefinition::desc, WriteDxfAttributeDefinition},
    CDxfEntityType{AcDbAttribute::desc, WriteDxfAttribute},
    CDxfEntityType{AcDbBlockReference::desc, WriteReference},
};

} // namespace

const CDxfEntityType* DxfEntityType(const AcDbEntity& entity) {
    const auto* const pFound = std::find_if(g_arTypes.begin(), g_arTypes.end(), [&](const auto& type) {
        return type.m_pClass() == entity.isA();
    });
    return pFound == g_arTypes.end() ? nullptr : pFound;
}
