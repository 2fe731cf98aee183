#pragma once

#include "host/console/json_values.h"
#include "platform/acad/db_entity.h"

/// An ENTITY of a dump: the members that all have, then those of its class. A class with a field table has
/// its fields, grips and what it explodes into; what it draws (`world`) is added by the caller, later.
CJson JsonEntity(const AcDbEntity& entity);

/// True when the entity's class tells its fields, so that its dump has a `world`.
bool HasFields(const AcDbEntity& entity);
