#include "platform/acad/rx_class.h"

#include "platform/acad/db_proxy.h"
#include "platform/acad/rx_registry.h"

#include <algorithm>
#include <memory>
#include <vector>

ACRX_DEFINE_DESC(AcRxClass, AcRxObject)

AcRxClass* AcRxObject::desc() {
    static AcRxClass* const pClass = NewPlatformClass(L"AcRxObject", nullptr, nullptr, L"");
    return pClass;
}
static const CPlatformClass g_platformClassAcRxObject(&AcRxObject::desc);

namespace {

AcRxDictionary& ClassDictionary() {
    return *static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
}

const ACHAR* OrEmpty(const ACHAR* text) {
    return text ? text : L"";
}

/// Descriptors made by newAcRxClass; those of the platform are never destroyed.
std::vector<std::unique_ptr<AcRxClass>>& ModuleClasses() {
    static auto* const pClasses = new std::vector<std::unique_ptr<AcRxClass>>;
    return *pClasses;
}

} // namespace

AcRxClass* AcRxObject::isA() const {
    return AcRxObject::desc();
}

bool AcRxObject::isKindOf(const AcRxClass* pClass) const {
    return isA()->isDerivedFrom(pClass);
}

AcRxObject* AcRxObject::queryX(const AcRxClass* pProtocol) const {
    return isA()->queryX(pProtocol);
}

AcRxClass::AcRxClass(const ACHAR* name, AcRxClass* pParent, int dwgVersion, int maintenanceVersion,
                     int proxyFlags, AcRxPseudoConstructor pConstructor, const ACHAR* dxfName,
                     const ACHAR* appName)
    : m_strName(OrEmpty(name))
    , m_strDxfName(OrEmpty(dxfName))
    , m_strAppName(OrEmpty(appName))
    , m_pParent(pParent)
    , m_nDwgVersion(dwgVersion)
    , m_nMaintenanceVersion(maintenanceVersion)
    , m_nProxyFlags(proxyFlags)
    , m_pConstructor(pConstructor) {}

bool AcRxClass::isDerivedFrom(const AcRxClass* pOther) const {
    for (const AcRxClass* pClass = this; pClass; pClass = pClass->m_pParent)
        if (pClass == pOther) return true;
    return false;
}

AcRxObject* AcRxClass::addX(AcRxClass* pProtocol, AcRxObject* pExtension) {
    if (!pProtocol || !pExtension) return nullptr;
    AcRxObject*& pPlace = m_mapExtensions[pProtocol];
    AcRxObject* const pFormer = pPlace;
    pPlace = pExtension;
    return pFormer;
}

AcRxObject* AcRxClass::delX(AcRxClass* pProtocol) {
    const auto found = m_mapExtensions.find(pProtocol);
    if (found == m_mapExtensions.end()) return nullptr;
    AcRxObject* const pFormer = found->second;
    m_mapExtensions.erase(found);
    return pFormer;
}

AcRxObject* AcRxClass::getX(const AcRxClass* pProtocol) const {
    const auto found = m_mapExtensions.find(pProtocol);
    return found == m_mapExtensions.end() ? nullptr : found->second;
}

AcRxObject* AcRxClass::queryX(const AcRxClass* pProtocol) const {
    for (const AcRxClass* pClass = this; pClass; pClass = pClass->m_pParent)
        if (AcRxObject* pExtension = pClass->getX(pProtocol)) return pExtension;
    return nullptr;
}

AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int dwgVersion,
                        int maintenanceVersion, int proxyFlags, AcRxPseudoConstructor pConstructor,
                        const ACHAR* dxfName, const ACHAR* appName) {
    AcRxDictionary& dictionary = ClassDictionary();
    if (!className || !*className || dictionary.at(className)) return nullptr;
    AcRxObject* const pParent =
        parentClassName && *parentClassName ? dictionary.at(parentClassName) : AcRxObject::desc();
    if (!pParent) return nullptr;
    ModuleClasses().push_back(std::make_unique<AcRxClass>(className, static_cast<AcRxClass*>(pParent),
                                                          dwgVersion, maintenanceVersion, proxyFlags,
                                                          pConstructor, dxfName, appName));
    AcRxClass* const pClass = ModuleClasses().back().get();
    dictionary.atPut(className, pClass);
    ReviveProxies(*pClass);
    return pClass;
}

void deleteAcRxClass(AcRxClass* pClass) {
    std::vector<std::unique_ptr<AcRxClass>>& classes = ModuleClasses();
    for (auto place = classes.begin(); place != classes.end(); ++place) {
        if (place->get() != pClass) continue;
        MakeProxies(*pClass);
        ClassDictionary().remove(pClass->name());
        for (const auto& [name, pOther] : ClassDictionary().Entries())
            static_cast<AcRxClass*>(pOther)->delX(pClass); // nobody can ask by this protocol any more
        classes.erase(place);
        return;
    }
}

void DeleteClassesOf(const std::function<bool(const void*)>& isInside) {
    std::vector<AcRxClass*> going;
    for (const std::unique_ptr<AcRxClass>& pClass : ModuleClasses())
        if (pClass->HasConstructorIn(isInside)) going.push_back(pClass.get());
    std::for_each(going.rbegin(), going.rend(), deleteAcRxClass);
}

CPlatformClass* CPlatformClass::s_pFirst = nullptr;

CPlatformClass::CPlatformClass(AcRxClass* (*pDescriptor)())
    : m_pDescriptor(pDescriptor)
    , m_pNext(s_pFirst) {
    s_pFirst = this;
}

void CPlatformClass::EnterAll(AcRxDictionary& dictionary) {
    while (s_pFirst) {
        AcRxClass* const pClass = s_pFirst->m_pDescriptor();
        s_pFirst = s_pFirst->m_pNext;
        dictionary.atPut(pClass->name(), pClass);
    }
}

AcRxClass* NewPlatformClass(const ACHAR* name, AcRxClass* pParent, AcRxPseudoConstructor pConstructor,
                            const ACHAR* dxfName) {
    return new AcRxClass(name, pParent, 0, 0, 0, pConstructor, dxfName, nullptr);
}
