#include "host/console/picked_entities.h"

void CPickedEntities::Add(AcDbObjectId id) {
    if (m_setHandles.insert(id.handle().Value()).second) m_arIds.push_back(id);
}

void CPickedEntities::Remove(const std::vector<AcDbObjectId>& ids) {
    for (const AcDbObjectId& id : ids)
        m_setHandles.erase(id.handle().Value());
    std::erase_if(m_arIds, [this](AcDbObjectId id) { return !Contains(id); });
}

void CPickedEntities::Clear() {
    m_arIds.clear();
    m_setHandles.clear();
}
