#pragma once

#include "platform/acad/adesk.h"
#include "platform/acad/rx_object.h"

#include <map>
#include <string>

using AcRxPseudoConstructor = AcRxObject* (*)();

/// A class descriptor: names, parent, file metadata, and protocol extensions hung on it.
class AcRxClass : public AcRxObject {
public:
    AcRxClass(const ACHAR* name, AcRxClass* pParent, int dwgVersion, int maintenanceVersion, int proxyFlags,
              AcRxPseudoConstructor pConstructor, const ACHAR* dxfName, const ACHAR* appName);

    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcRxClass::desc(); }

    const ACHAR* name() const { return m_strName.c_str(); }
    const ACHAR* dxfName() const { return m_strDxfName.c_str(); } ///< empty for an abstract class
    const ACHAR* appName() const { return m_strAppName.c_str(); }
    AcRxClass* myParent() const { return m_pParent; }
    int dwgVersion() const { return m_nDwgVersion; }
    int maintenanceVersion() const { return m_nMaintenanceVersion; }
    int proxyFlags() const { return m_nProxyFlags; }
    bool isDerivedFrom(const AcRxClass* pOther) const;

    /// A new default object, or null when the class has no pseudo-constructor.
    AcRxObject* create() const { return m_pConstructor ? m_pConstructor() : nullptr; }

    /// Hangs an extension on this class for pProtocol; the caller keeps it alive until delX. Returns the
    /// former one.
    AcRxObject* addX(AcRxClass* pProtocol, AcRxObject* pExtension);
    AcRxObject* delX(AcRxClass* pProtocol);
    /// The extension of this very class; null if none.
    AcRxObject* getX(const AcRxClass* pProtocol) const;
    /// The extension of this class or of its nearest parent that has one.
    AcRxObject* queryX(const AcRxClass* pProtocol) const;

private:
    std::wstring m_strName, m_strDxfName, m_strAppName;
    AcRxClass* m_pParent;
    int m_nDwgVersion, m_nMaintenanceVersion, m_nProxyFlags;
    AcRxPseudoConstructor m_pConstructor;
    std::map<const AcRxClass*, AcRxObject*> m_mapExtensions;
};

/// Makes a class known in "ClassDictionary" and returns its descriptor. A name that is known already is
/// refused (null), and so is a parent that isn't known.
AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int dwgVersion = 0,
                        int maintenanceVersion = 0, int proxyFlags = 0,
                        AcRxPseudoConstructor pConstructor = nullptr, const ACHAR* dxfName = nullptr,
                        const ACHAR* appName = nullptr);

/// Takes the class out of the dictionary and destroys the descriptor.
void deleteAcRxClass(AcRxClass* pClass);
