#pragma once

#include "platform/acad/db_object_id.h"

#include <unordered_set>
#include <vector>

/// Entities of one drawing, each once, in the order picked. They are told apart by handle, so that it stays
/// quick with all of a large drawing.
class CPickedEntities {
public:
    void Add(AcDbObjectId id);
    void Remove(const std::vector<AcDbObjectId>& ids);
    void Clear();
    bool Contains(AcDbObjectId id) const { return Contains(id.handle()); }
    bool Contains(AcDbHandle handle) const { return m_setHandles.contains(handle.Value()); }
    const std::vector<AcDbObjectId>& Ids() const { return m_arIds; }

private:
    std::vector<AcDbObjectId> m_arIds;
    std::unordered_set<Adesk::UInt64> m_setHandles;
};
