#pragma once

#include "platform/acad/adesk.h"
#include "platform/acad/rx_object.h"

#include <functional>
#include <map>
#include <string>

class AcRxDictionary;

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

    bool HasConstructorIn(const std::function<bool(const void*)>& isInside) const {
        return m_pConstructor && isInside(reinterpret_cast<const void*>(m_pConstructor));
    }

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

/// Makes a class known in "ClassDictionary" and returns its descriptor; proxies of its objects in the open
/// drawings become objects again. A name that is known already is refused (null), and so is a parent that
/// isn't known.
AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int dwgVersion = 0,
                        int maintenanceVersion = 0, int proxyFlags = 0,
                        AcRxPseudoConstructor pConstructor = nullptr, const ACHAR* dxfName = nullptr,
                        const ACHAR* appName = nullptr);

/// Takes the class out of the dictionary and destroys the descriptor. Its objects in the open drawings become
/// proxies first.
void deleteAcRxClass(AcRxClass* pClass);

/// Deletes the classes whose pseudo-constructor is code that goes, the last one made first.
void DeleteClassesOf(const std::function<bool(const void*)>& isInside);

/// One platform class that the class dictionary takes up before anyone looks something up in it. Static
/// objects only; ACRX_DEFINE_DESC makes them.
class CPlatformClass {
public:
    explicit CPlatformClass(AcRxClass* (*pDescriptor)());
    /// Enters the classes not entered so far into the dictionary.
    static void EnterAll(AcRxDictionary& dictionary);

private:
    AcRxClass* (*m_pDescriptor)();
    CPlatformClass* m_pNext;
    static CPlatformClass* s_pFirst;
};

/// Makes the descriptor of a platform class. Descriptors live as long as the process, whatever static objects
/// still need them while it ends.
AcRxClass* NewPlatformClass(const ACHAR* name, AcRxClass* pParent, AcRxPseudoConstructor pConstructor,
                            const ACHAR* dxfName);

// NOLINTBEGIN(bugprone-macro-parentheses): a class name takes no parentheses
/// The descriptor of a platform class without pseudo-constructor.
#define ACRX_DEFINE_DESC(CLASS, PARENT) ACRX_DEFINE_CLASS(CLASS, PARENT, nullptr, L"")

/// The bodies of what ACRX_DECLARE_MEMBERS declares, for a class of which no plain object is made.
#define ACRX_DEFINE_ABSTRACT_MEMBERS(CLASS, PARENT)                                                          \
    ACRX_DEFINE_CLASS(CLASS, PARENT, nullptr, L"")                                                           \
    ACRX_DEFINE_CAST(CLASS)

/// The same for a class whose default object the descriptor can make.
#define ACRX_DEFINE_MEMBERS(CLASS, PARENT, DXFNAME)                                                          \
    ACRX_DEFINE_CLASS(                                                                                       \
        CLASS, PARENT, []() -> AcRxObject* { return new CLASS; }, DXFNAME)                                   \
    ACRX_DEFINE_CAST(CLASS)

#define ACRX_DEFINE_CLASS(CLASS, PARENT, CONSTRUCTOR, DXFNAME)                                               \
    AcRxClass* CLASS::desc() {                                                                               \
        static AcRxClass* const pClass = NewPlatformClass(L"" #CLASS, PARENT::desc(), CONSTRUCTOR, DXFNAME); \
        return pClass;                                                                                       \
    }                                                                                                        \
    static const CPlatformClass g_platformClass##CLASS(&CLASS::desc);

#define ACRX_DEFINE_CAST(CLASS)                                                                              \
    CLASS* CLASS::cast(const AcRxObject* pObject) {                                                          \
        if (!pObject || !pObject->isKindOf(CLASS::desc())) return nullptr;                                   \
        return const_cast<CLASS*>(static_cast<const CLASS*>(pObject));                                       \
    }
// NOLINTEND(bugprone-macro-parentheses)
