#pragma once

#include "platform/acad/db_database.h"

#include <vector>

/// The living entities of a block in database order, which is the order of handles.
std::vector<AcDbObjectId> EntitiesInOrder(const AcDbBlockTableRecord& block);

/// Those of model space.
std::vector<AcDbObjectId> ModelSpaceEntities(AcDbDatabase& drawing);

/// The living entities of all blocks, model and paper space among them, in database order.
std::vector<AcDbObjectId> AllEntities(AcDbDatabase& drawing);
