#pragma once
// What the targets of drawing files share.

#include "host/files/dwg_file.h"
#include "platform/acad/db_database.h"

#include <functional>

/// The entity classes of the module, known as long as it stands.
class CModuleClasses {
public:
    CModuleClasses();
    ~CModuleClasses();
    CModuleClasses(const CModuleClasses&) = delete;
    CModuleClasses& operator=(const CModuleClasses&) = delete;
};

/// The file of a new drawing that a function has filled while it was the one in force.
CDwgFile DwgFilledBy(const std::function<void(AcDbDatabase&)>& fill);

/// A drawing with a sheet of the module's entities and one entity of each other kind.
CDwgFile DwgOfEveryKind();

/// Reads a file; one that is not refused must be written and read again.
void ReadWriteAndRead(CByteView bytes);
