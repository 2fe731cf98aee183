#include "host/desktop/grip_drag.h"

#include "host/console/numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t g_nMostWithGrips = 100;

} // namespace

void CGrips::Take(const std::vector<AcDbObjectId>& ids) {
    m_arGrips.clear();
    EndDrag();
    if (ids.size() > g_nMostWithGrips) return;
    for (const AcDbObjectId& id : ids) {
        const CDbOpen<AcDbEntity> entity(id);
        AcGePoint3dArray points;
        AcDbIntArray osnapModes, geomIds;
        if (!entity || entity->getGripPoints(points, osnapModes, geomIds) != Acad::eOk) continue;
        for (int i = 0; i < points.length(); ++i)
            m_arGrips.push_back({id, i, QPointF(points[i].x, points[i].y)});
    }
}

const CGrip* CGrips::At(const QPointF& point, double dDistance) const {
    const CGrip* pNearest = nullptr;
    double dNearest = dDistance;
    for (const CGrip& grip : m_arGrips) {
        const QPointF off = grip.m_pt - point;
        const double d = std::max(std::abs(off.x()), std::abs(off.y())); // grips are squares
        if (d > dNearest) continue;
        dNearest = d;
        pNearest = &grip;
    }
    return pNearest;
}

void CGrips::Toggle(const CGrip& grip) {
    if (m_id != grip.m_id) m_setHot.clear();
    m_id = grip.m_id;
    if (!m_setHot.erase(grip.m_nIndex)) m_setHot.insert(grip.m_nIndex);
}

void CGrips::BeginDrag(const CGrip& grip) {
    if (!IsHot(grip)) {
        m_setHot.clear();
        Toggle(grip);
    }
    m_ptFrom = grip.m_pt;
}

void CGrips::EndDrag() {
    m_setHot.clear();
    m_id = AcDbObjectId::kNull;
    m_ptFrom.reset();
}

std::optional<CDisplayList> CGrips::PictureAt(AcDbDatabase& drawing, const QPointF& point) const {
    CGripMove move;
    move.m_id = m_id;
    move.m_vecOffset = {point.x() - m_ptFrom->x(), point.y() - m_ptFrom->y(), 0.0};
    for (const int nIndex : m_setHot)
        move.m_indices.append(nIndex);
    CDisplayList picture;
    if (DragGrips(drawing, move, &picture) != Acad::eOk) return std::nullopt;
    return picture;
}

std::string CGrips::CommandFor(const QPointF& point) const {
    std::string strLine = "GRIP #" + m_id.handle().Hex() + " ";
    for (const int nIndex : m_setHot)
        strLine += (nIndex == *m_setHot.begin() ? "" : ",") + std::to_string(nIndex);
    return strLine + " @" + NumberText(point.x() - m_ptFrom->x()) + "," +
           NumberText(point.y() - m_ptFrom->y());
}
