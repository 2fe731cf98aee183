#pragma once

#include "platform/acad/db_database.h"
#include "platform/mfc/string.h"

/// Makes a block in the working drawing for trying attributes out: a definition of the tag "Tag" in the
/// middle of each point. strName becomes the block's name, which the first point's x is part of. 1, or 0
/// without points, without a drawing, and where it has a block of that name.
int MakeAttributeBlock(CString& strName, const AcGePoint3dArray& points);
