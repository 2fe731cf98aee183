#include "drawing/entity_edit.h"

#include "drawing/polyline_vertices.h"

#include <algorithm>

namespace {
constexpr double g_dInset = 0.1;

/// The vertices in the other direction. What stands at a vertex belongs to the segment that it begins, so
/// bulges and widths go to the vertex that ended their segment.
std::vector<CPolylineVertex> Reversed(const std::vector<CPolylineVertex>& vertices) {
    std::vector<CPolylineVertex> reversed(vertices.rbegin(), vertices.rend());
    const std::size_t nCount = vertices.size();
    for (std::size_t i = 0; i < nCount; i++) {
        const CPolylineVertex& segment = vertices[(2 * nCount - 2 - i) % nCount];
        reversed[i].m_dBulge = -segment.m_dBulge;
        reversed[i].m_dStartWidth = segment.m_dEndWidth;
        reversed[i].m_dEndWidth = segment.m_dStartWidth;
    }
    return reversed;
}
} // namespace

int EraseEntities(const AcDbObjectIdArray& ids) {
    int nErased = 0;
    for (const AcDbObjectId& id : ids) {
        const CDbOpen<AcDbEntity> pEntity(id, AcDb::kForWrite);
        if (pEntity && pEntity->erase() == Acad::eOk) ++nErased;
    }
    return nErased;
}

CString LayerOfEntity(AcDbObjectId idEntity) {
    const CDbOpen<AcDbEntity> pEntity(idEntity);
    return pEntity ? pEntity->LayerName().c_str() : "";
}

int ReverseIfLeftward(AcDbObjectId idPolyline) {
    const CDbOpen<AcDbPolyline> pPolyline(idPolyline, AcDb::kForWrite);
    if (!pPolyline || pPolyline->numVerts() < 2) return 0;
    if (pPolyline->Vertices().back().m_pt.x >= pPolyline->Vertices().front().m_pt.x) return 0;
    const std::vector<CPolylineVertex> reversed = Reversed(pPolyline->Vertices());
    pPolyline->reset(Adesk::kTrue, pPolyline->numVerts());
    for (const CPolylineVertex& vertex : reversed)
        AppendVertex(*pPolyline.Get(), vertex);
    return 1;
}

bool HasVertexInside(const AcDbPolyline& polyline, const AcGePoint3d& ptCorner,
                     const AcGePoint3d& ptOpposite) {
    const auto inside = [](double dValue, double dOne, double dOther) {
        const auto [dLeast, dMost] = std::minmax(dOne, dOther);
        return dValue > dLeast + g_dInset && dValue < dMost - g_dInset;
    };
    return std::any_of(polyline.Vertices().begin(), polyline.Vertices().end(),
                       [&](const CPolylineVertex& vertex) {
                           return inside(vertex.m_pt.x, ptCorner.x, ptOpposite.x) &&
                                  inside(vertex.m_pt.y, ptCorner.y, ptOpposite.y);
                       });
}
