#pragma once

#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"

/// Appends a free entity to model space and closes it. A null database is replaced by the working one, and
/// the pointer given is filled with it. 1 on success; 0 otherwise, and then the entity is still its maker's.
int AppendToModelSpace(AcDbDatabase*& pDatabase, AcDbObjectId& idEntity, AcDbEntity* pEntity);

/// The same without a word of how it went: the id is null when the entity is still its maker's.
void AddToModelSpace(AcDbEntity* pEntity, AcDbObjectId& idEntity, AcDbDatabase* pDatabase);
/// Into the working drawing.
void AddToModelSpace(AcDbEntity* pEntity, AcDbObjectId& idEntity);

/// 1 when the working drawing's file has this name; upper and lower case are the
/// same, and so are the two slashes.
int IsCurrentDrawing(const CString& strFile);
