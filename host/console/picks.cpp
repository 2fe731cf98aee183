#include "host/console/picks.h"

#include "host/console/drawing_order.h"
#include "host/console/points.h"
#include "host/console/words.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr double g_dPickDistance = 1.0; // drawing units

AcDbObjectId ByHandle(AcDbDatabase& drawing, std::string_view hex) {
    Adesk::UInt64 value = 0;
    const auto [end, error] = std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
    if (error != std::errc() || end != hex.data() + hex.size()) return AcDbObjectId::kNull;
    AcDbObjectId id;
    if (drawing.getAcDbObjectId(id, AcDbHandle(value)) != Acad::eOk) return AcDbObjectId::kNull;
    const CDbOpen<AcDbEntity> entity(id);
    return entity && entity->ownerId() == drawing.ModelSpaceId() ? id : AcDbObjectId::kNull;
}

AcDbObjectId ByPoint(AcDbDatabase& drawing, const AcGePoint3d& point) {
    const std::vector<AcDbObjectId> shown = ModelSpaceEntities(drawing);
    const auto found = std::find_if(shown.rbegin(), shown.rend(), [&](const AcDbObjectId& id) {
        const CDbOpen<AcDbEntity> entity(id);
        return entity && entity->Picture() && PassesNear(*entity->Picture(), point, g_dPickDistance);
    });
    return found == shown.rend() ? AcDbObjectId::kNull : *found;
}

AcDbObjectId Last(AcDbDatabase& drawing) {
    const std::vector<AcDbObjectId> shown = ModelSpaceEntities(drawing);
    return shown.empty() ? AcDbObjectId::kNull : shown.back();
}

} // namespace

AcDbObjectId PickEntity(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                        std::string* pReason) {
    AcDbObjectId id;
    AcGePoint3d point;
    if (strWord.starts_with('#')) {
        id = ByHandle(drawing, std::string_view(strWord).substr(1));
    } else if (strWord == "L" || strWord == "l") {
        id = Last(drawing);
    } else if (ParsePoint(strWord, last, &point)) {
        id = ByPoint(drawing, point);
    } else {
        *pReason = "not an entity (#HANDLE, L or a point): " + strWord;
        return id;
    }
    if (id.isNull()) *pReason = "no entity there: " + strWord;
    return id;
}

bool PickSeveral(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                 CPickedEntities* pPicked, std::string* pReason) {
    if (strWord == "all") {
        for (const AcDbObjectId& id : ModelSpaceEntities(drawing))
            pPicked->Add(id);
        return true;
    }
    for (const std::string& strPick : PiecesOf(strWord, '+')) {
        const AcDbObjectId id = PickEntity(drawing, strPick, last, pReason);
        if (id.isNull()) return false;
        pPicked->Add(id);
    }
    return true;
}
