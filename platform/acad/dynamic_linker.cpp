#include "platform/acad/dynamic_linker.h"

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/host_application.h"
#include "platform/acad/rx_class.h"

#include <algorithm>
#include <filesystem>

#include <dlfcn.h>

ACRX_DEFINE_DESC(AcRxDynamicLinker, AcRxObject)

namespace {

/// The file that a path names, whatever links lead to it.
std::string RealPath(const std::string& utf8Path) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(utf8Path, error);
    return error ? std::string() : path.string();
}

bool Refuse(std::string* pReason, const std::string& strReason) {
    if (pReason) *pReason = strReason;
    return false;
}

std::string LoaderError() {
    const char* const pText = dlerror();
    return pText ? pText : "unknown error of the loader";
}

/// Whether an address lies in the library that the other one lies in.
bool InSameLibrary(const void* pAddress, const void* pOther) {
    Dl_info mine, its;
    return dladdr(pAddress, &mine) && dladdr(pOther, &its) && mine.dli_fbase == its.dli_fbase;
}

} // namespace

AcRxDynamicLinker::CModule* AcRxDynamicLinker::Find(const void* pPackage) const {
    for (const std::unique_ptr<CModule>& pModule : m_arModules)
        if (pModule.get() == pPackage) return pModule.get();
    return nullptr;
}

bool AcRxDynamicLinker::unlockApplication(void* pPackage) {
    CModule* const pModule = Find(pPackage);
    if (pModule) pModule->m_bLocked = false;
    return pModule != nullptr;
}

bool AcRxDynamicLinker::registerAppMDIAware(void* pPackage) {
    CModule* const pModule = Find(pPackage);
    if (pModule) pModule->m_bMdiAware = true;
    return pModule != nullptr;
}

bool AcRxDynamicLinker::isApplicationLocked(void* pPackage) const {
    const CModule* const pModule = Find(pPackage);
    return pModule && pModule->m_bLocked;
}

bool AcRxDynamicLinker::isAppMDIAware(void* pPackage) const {
    const CModule* const pModule = Find(pPackage);
    return pModule && pModule->m_bMdiAware;
}

bool AcRxDynamicLinker::Open(CModule& module, std::string* pReason) const {
    const std::string& strPath = module.m_strPath;
    module.m_pLibrary = dlopen(strPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!module.m_pLibrary) return Refuse(pReason, LoaderError());
    // The same file under another name: the loader gives the library it has.
    const bool bKnown = std::any_of(m_arModules.begin(), m_arModules.end(), [&](const auto& pOther) {
        return pOther->m_pLibrary == module.m_pLibrary;
    });
    if (bKnown) return Refuse(pReason, strPath + ": loaded already");
    module.m_pEntry = reinterpret_cast<AppEntry>(dlsym(module.m_pLibrary, "acrxEntryPoint"));
    const auto pVersion = reinterpret_cast<int (*)()>(dlsym(module.m_pLibrary, "acrxGetApiVersion"));
    if (!module.m_pEntry) return Refuse(pReason, strPath + ": no function acrxEntryPoint");
    if (!pVersion) return Refuse(pReason, strPath + ": no function acrxGetApiVersion");
    const int nVersion = pVersion();
    if (nVersion != g_nApiVersion)
        return Refuse(pReason, strPath + ": made for API version " + std::to_string(nVersion) + ", this is " +
                                   std::to_string(g_nApiVersion));
    return true;
}

bool AcRxDynamicLinker::loadModule(const std::string& utf8Path, std::string* pReason) {
    auto pModule = std::make_unique<CModule>();
    pModule->m_strPath = RealPath(utf8Path);
    if (pModule->m_strPath.empty()) return Refuse(pReason, utf8Path + ": no such file");
    if (!Open(*pModule, pReason)) {
        if (pModule->m_pLibrary) dlclose(pModule->m_pLibrary);
        return false;
    }
    CModule* const pPackage = pModule.get();
    m_arModules.push_back(std::move(pModule)); // known before the module hands its package pointer back
    if (pPackage->m_pEntry(AcRx::kInitAppMsg, pPackage) == AcRx::kRetOK) {
        if (acdbHostApplicationServices()->workingDatabase()) pPackage->m_pEntry(AcRx::kLoadDwgMsg, pPackage);
        return true;
    }
    Close(*pPackage);
    std::erase_if(m_arModules, [&](const auto& pOther) { return pOther.get() == pPackage; });
    return Refuse(pReason, utf8Path + ": the module refused to start");
}

bool AcRxDynamicLinker::unloadModule(const std::string& utf8Path, std::string* pReason) {
    const std::string strPath = RealPath(utf8Path);
    const auto place = std::find_if(m_arModules.begin(), m_arModules.end(), [&](const auto& pModule) {
        return pModule->m_strPath == (strPath.empty() ? utf8Path : strPath);
    });
    if (place == m_arModules.end()) return Refuse(pReason, utf8Path + ": not loaded");
    if ((*place)->m_bLocked)
        return Refuse(pReason, utf8Path + ": the module stays loaded while the host runs");
    const std::unique_ptr<CModule> pModule = std::move(*place);
    m_arModules.erase(place);
    pModule->m_pEntry(AcRx::kUnloadAppMsg, pModule.get());
    Close(*pModule);
    return true;
}

void AcRxDynamicLinker::Close(CModule& module) {
    const auto isInside = [&module](const void* pAddress) {
        return InSameLibrary(pAddress, reinterpret_cast<const void*>(module.m_pEntry));
    };
    acedRegCmds->RemoveCodeIn(isInside);
    acedEditor->RemoveReactorsOf(isInside);
    acDocManagerPtr()->RemoveCodeIn(isInside);
    DeleteClassesOf(isInside);
    dlclose(module.m_pLibrary);
}

void AcRxDynamicLinker::SendToAll(AcRx::AppMsgCode message) {
    std::vector<CModule*> modules; // one that is told may load or unload another
    for (const std::unique_ptr<CModule>& pModule : m_arModules)
        modules.push_back(pModule.get());
    for (CModule* const pModule : modules)
        if (Find(pModule)) pModule->m_pEntry(message, pModule);
}
