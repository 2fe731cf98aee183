#pragma once
// Loading and unloading of modules.

#include "platform/acad/adesk.h"
#include "platform/acad/rx_object.h"

#include <memory>
#include <string>
#include <vector>

namespace AcRx {
/// Messages a host sends to a module's acrxEntryPoint.
enum AppMsgCode {
    kNullMsg = 0,
    kInitAppMsg = 1,
    kUnloadAppMsg = 2,
    kLoadDwgMsg = 3,
    kUnloadDwgMsg = 4,
    kInvkSubrMsg = 5,
    kCfgMsg = 6,
    kEndMsg = 7,
    kQuitMsg = 8,
    kSaveMsg = 9,
    kDependencyMsg = 10,
    kNoDependencyMsg = 11,
    kOleUnloadAppMsg = 12,
    kPreQuitMsg = 13,
    kInitDialogMsg = 14,
    kEndDialogMsg = 15,
};
enum AppRetCode { kRetOK = 0, kRetError = 3 };
} // namespace AcRx

/// The service "DynamicLinker". A package pointer names one loaded module: the host hands it to the module's
/// entry, and the module hands it back here.
class AcRxDynamicLinker : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcRxDynamicLinker::desc(); }

    using AppEntry = AcRx::AppRetCode (*)(AcRx::AppMsgCode message, void* pPackage);

    bool unlockApplication(void* pPackage);   ///< the module may be unloaded while the host runs
    bool registerAppMDIAware(void* pPackage); ///< the module may run with several documents open
    bool isApplicationLocked(void* pPackage) const;
    bool isAppMDIAware(void* pPackage) const;

    /// Opens the module's file and sends kInitAppMsg, and kLoadDwgMsg when a drawing is open. False with a
    /// reason in *pReason (UTF-8) when the file can't be opened, lacks the two entry functions, reports
    /// another API version, refuses the message, or is loaded already.
    bool loadModule(const std::string& utf8Path, std::string* pReason);
    /// Sends kUnloadAppMsg and closes the file. False when it isn't loaded or is locked. Commands, reactors,
    /// classes and deferred work that it leaves behind are withdrawn, since their code goes.
    bool unloadModule(const std::string& utf8Path, std::string* pReason);
    /// Sends a message to every module, in order of loading; what they answer does not matter.
    void SendToAll(AcRx::AppMsgCode message);

private:
    struct CModule {
        std::string m_strPath; ///< the file itself, links followed
        void* m_pLibrary = nullptr;
        AppEntry m_pEntry = nullptr;
        bool m_bLocked = true, m_bMdiAware = false;
    };
    CModule* Find(const void* pPackage) const;
    bool Open(CModule& module, std::string* pReason) const;
    static void Close(CModule& module);

    std::vector<std::unique_ptr<CModule>> m_arModules; // the address of each is its package pointer
};

/// The API version that acrxGetApiVersion of a module must report here.
inline constexpr int g_nApiVersion = 0x130000;

AcRxDynamicLinker* acrxDynamicLinker();
