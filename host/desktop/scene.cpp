#include "host/desktop/scene.h"

#include "host/console/drawing_order.h"
#include "host/plot/painter.h"

#include <algorithm>

namespace {

bool Meets(const AcDbExtents& extents, const CPageBox& box) {
    return !extents.isEmpty() && extents.minPoint().x <= box.m_dRight &&
           extents.maxPoint().x >= box.m_dLeft && extents.minPoint().y <= box.m_dTop &&
           extents.maxPoint().y >= box.m_dBottom;
}

QPointF UpperLeft(const AcDbExtents& extents) {
    return extents.isEmpty() ? QPointF() : QPointF(extents.minPoint().x, extents.maxPoint().y);
}

CSceneItem ItemOf(const AcDbEntity& entity, AcDbObjectId id, double dLtscale) {
    CSceneItem item;
    item.m_id = id;
    item.m_handle = id.handle();
    item.m_pPicture = entity.Picture();
    item.m_look = LookOf(entity.layerId());
    item.m_dLtscale = dLtscale;
    return item;
}

} // namespace

bool CSceneItem::ShowsSame(const CSceneItem& other) const {
    return m_pPicture == other.m_pPicture && m_look == other.m_look && m_dLtscale == other.m_dLtscale;
}

bool CScene::Sync(AcDbDatabase& drawing) {
    std::unordered_map<Adesk::UInt64, CSceneItem*> mapBefore;
    for (CSceneItem& item : m_arItems)
        mapBefore[item.m_handle.Value()] = &item;
    const std::size_t nBefore = m_arItems.size();
    std::size_t nKept = 0;
    std::vector<CSceneItem> arItems;
    for (const AcDbObjectId& id : ModelSpaceEntities(drawing)) {
        const CDbOpen<AcDbEntity> entity(id);
        if (!entity || !entity->Picture()) continue;
        CSceneItem item = ItemOf(*entity.Get(), id, drawing.ltscale());
        const auto before = mapBefore.find(item.m_handle.Value());
        if (before != mapBefore.end() && before->second->m_id == id && item.ShowsSame(*before->second)) {
            arItems.push_back(std::move(*before->second));
            ++nKept;
        } else {
            Compile(drawing, &item);
            arItems.push_back(std::move(item));
        }
    }
    m_arItems = std::move(arItems);
    return nKept != nBefore || nKept != m_arItems.size();
}

void CScene::Compile(AcDbDatabase& drawing, CSceneItem* pItem) {
    pItem->m_extents = ExtentsOf(*pItem->m_pPicture);
    pItem->m_ptOrigin = UpperLeft(pItem->m_extents);
    pItem->m_arShapes = Shapes(drawing, *pItem, pItem->m_ptOrigin, *pItem->m_pPicture);
}

std::vector<CScreenShape> CScene::Shapes(AcDbDatabase& drawing, const CSceneItem& look,
                                         const QPointF& ptOrigin, const CDisplayList& picture) {
    const CPaintContext context{ptOrigin.x(), ptOrigin.y(),
                                [&drawing](const std::string& strName) { return DashesOf(drawing, strName); },
                                look.m_dLtscale, look.m_look.m_nColor};
    CShapeRecorder recorder(m_outlines);
    PaintDisplayList(WithLinetypesOf(look.m_look, picture), context, m_fonts, recorder);
    return recorder.Take();
}

CLoosePicture CScene::LayOut(AcDbDatabase& drawing, const CSceneItem& owner, const CDisplayList& picture) {
    const QPointF origin = UpperLeft(ExtentsOf(picture));
    return {origin, Shapes(drawing, owner, origin, picture)};
}

const CSceneItem* CScene::Find(AcDbObjectId id) const {
    const auto found =
        std::lower_bound(m_arItems.begin(), m_arItems.end(), id.handle(),
                         [](const CSceneItem& item, AcDbHandle handle) { return item.m_handle < handle; });
    return found != m_arItems.end() && found->m_id == id ? &*found : nullptr;
}

const CSceneItem* CScene::ItemAt(const QPointF& point, double dDistance) const {
    const CPageBox around{point.x() - dDistance, point.y() - dDistance, point.x() + dDistance,
                          point.y() + dDistance};
    const AcGePoint3d at(point.x(), point.y(), 0.0);
    const auto found = std::find_if(m_arItems.rbegin(), m_arItems.rend(), [&](const CSceneItem& item) {
        return Meets(item.m_extents, around) && PassesNear(*item.m_pPicture, at, dDistance);
    });
    return found == m_arItems.rend() ? nullptr : &*found;
}

std::vector<AcDbObjectId> CScene::ItemsIn(const CPageBox& box, bool bCrossing) const {
    const AcGePoint3d low(box.m_dLeft, box.m_dBottom, 0.0), high(box.m_dRight, box.m_dTop, 0.0);
    std::vector<AcDbObjectId> ids;
    for (const CSceneItem& item : m_arItems) {
        if (!Meets(item.m_extents, box)) continue;
        const bool bIn =
            bCrossing ? PassesThrough(*item.m_pPicture, low, high) : LiesWithin(*item.m_pPicture, low, high);
        if (bIn) ids.push_back(item.m_id);
    }
    return ids;
}

AcDbExtents CScene::Extents() const {
    AcDbExtents extents;
    for (const CSceneItem& item : m_arItems)
        extents.addExt(item.m_extents);
    return extents;
}
