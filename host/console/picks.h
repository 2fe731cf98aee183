#pragma once

#include "platform/acad/db_database.h"

#include <string>
#include <vector>

/// Picks one entity of model space: `#HANDLE`, `L` for the last, or a point near its picture (the last in
/// database order). last is what a relative point counts from. Null with the reason in *pReason when the word
/// is no pick or finds nothing.
AcDbObjectId PickEntity(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                        std::string* pReason);

/// Picks several by one word: `all`, or picks joined with `+`; each entity once, in the order picked. False
/// with the reason when one of them finds nothing.
bool PickSeveral(AcDbDatabase& drawing, const std::string& strWord, const AcGePoint3d& last,
                 std::vector<AcDbObjectId>* pIds, std::string* pReason);

/// Appends an id unless it is there already.
void AddOnce(AcDbObjectId id, std::vector<AcDbObjectId>* pIds);
