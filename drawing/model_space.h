#pragma once

#include "platform/acad/db_database.h"

/// Appends a free entity to model space and closes it. A null database is replaced by the working one, and
/// the pointer given is filled with it. 1 on success; 0 otherwise, and then the entity is still its maker's.
int AppendToModelSpace(AcDbDatabase*& pDatabase, AcDbObjectId& idEntity, AcDbEntity* pEntity);
