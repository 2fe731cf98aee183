#pragma once
// The system registry: named services, and the dictionary of classes.

#include "platform/acad/adesk.h"
#include "platform/acad/rx_object.h"

#include <map>
#include <string>

/// Names to objects it does not own. Names compare exactly.
class AcRxDictionary : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcRxDictionary::desc(); }

    AcRxObject* at(const ACHAR* key) const;                   ///< null when there is none
    AcRxObject* atPut(const ACHAR* key, AcRxObject* pObject); ///< returns what stood there
    AcRxObject* remove(const ACHAR* key);
    const std::map<std::wstring, AcRxObject*>& Entries() const { return m_mapEntries; }

private:
    std::map<std::wstring, AcRxObject*> m_mapEntries;
};

/// The registry of this process, with the services "DynamicLinker", "AcEditor", "ACAD_REGISTERED_COMMANDS"
/// and "ClassDictionary".
AcRxDictionary* acrxSysRegistry();

#define ACRX_DYNAMIC_LINKER L"DynamicLinker"
#define ACDB_CLASS_DICTIONARY L"ClassDictionary"
#define ACED_EDITOR_OBJ L"AcEditor"
#define ACRX_COMMAND_DOCK L"ACAD_REGISTERED_COMMANDS"
