#pragma once

#include "host/console/picked_entities.h"
#include "platform/acad/db_database.h"

#include <string>

/// Picks one entity of model space: `#HANDLE`, `L` for the last, or a point near its picture (the last in
/// database order). last is what a relative point counts from. Null with the reason in *pReason when the word
/// is no pick or finds nothing.
AcDbObjectId PickEntity(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                        std::string* pReason);

/// Picks several by one word: `all`, or picks joined with `+`; added in this order. False
/// with the reason when one of them finds nothing.
bool PickSeveral(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                 CPickedEntities* pPicked, std::string* pReason);
