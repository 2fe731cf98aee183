#pragma once

#include "platform/acad/table_keeper.h"

#include <map>
#include <memory>
#include <vector>

/// What the custom entities of a drawing explode into. They are exploded all at once, before anything is
/// written, since that may bring styles and line types into the drawing; these stay until it goes, and then
/// the drawing is as it was.
class CDxfExplosions {
public:
    using CParts = std::vector<std::unique_ptr<AcDbEntity>>;
    explicit CDxfExplosions(const AcDbDatabase& database);
    /// The parts of a custom entity; null for one that does not explode.
    const CParts* PartsOf(const AcDbEntity& entity) const;

private:
    CTableKeeper m_keeper; // before the parts, which refer to what it takes away
    std::map<AcDbHandle, CParts> m_mapParts;
};
