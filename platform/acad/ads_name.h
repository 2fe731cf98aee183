#pragma once
// The two-part names under which the editor's functions hand out entities and selections.

#include "platform/acad/db_entity.h"

#include <cstdint>

/// Names an entity or a selection set. Both parts 0 name nothing.
using ads_name = std::intptr_t[2];

/// The entity that a name stands for; eInvalidAdsName for nothing and for a selection set.
Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const ads_name name);
/// The name of an entity, good as long as its drawing is open; eNullObjectId.
Acad::ErrorStatus acdbGetAdsName(ads_name& name, AcDbObjectId id);
