#pragma once

#include "platform/acad/db_entity.h"
#include "platform/mfc/string.h"

#include <memory>

/// Shows a picked entity as before, and closes it.
struct CPickRelease {
    void operator()(AcDbEntity* pEntity) const;
};
using CPickedEntity = std::unique_ptr<AcDbEntity, CPickRelease>;

/// An entity that the user picks, open and highlighted. Null, after a line, when he picks none, or when it
/// cannot be opened.
CPickedEntity PickEntity(const CString& strPrompt, AcDbObjectId& id, AcDb::OpenMode mode);
