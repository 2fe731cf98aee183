#pragma once

#include "platform/acad/db_database.h"
#include "platform/acad/host_application.h"

/// The database given, or the working drawing's in place of null; null where there is no drawing either.
inline AcDbDatabase* OrWorking(AcDbDatabase* pDatabase) {
    return pDatabase ? pDatabase : acdbHostApplicationServices()->workingDatabase();
}
