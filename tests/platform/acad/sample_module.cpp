// A small loadable module; the build makes several kinds of it, each of which differs in one point.

#include "platform/acad/dynamic_linker.h"
#include "platform/acad/rx_class.h"

extern "C" {

void* g_pSamplePackage = nullptr; ///< what the linker handed over

#ifndef SAMPLE_WITHOUT_ENTRY
AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) {
    static AcRxClass* pClass = nullptr;
    if (msg == AcRx::kInitAppMsg) {
#ifdef SAMPLE_REFUSES
        return AcRx::kRetError;
#endif
        g_pSamplePackage = pkt;
#ifdef SAMPLE_LOCKED
        pClass = newAcRxClass(L"CSampleLocked", L"AcRxObject");
#else
        pClass = newAcRxClass(L"CSampleOfModule", L"AcRxObject");
        acrxDynamicLinker()->unlockApplication(pkt);
        acrxDynamicLinker()->registerAppMDIAware(pkt);
#endif
    }
    if (msg == AcRx::kUnloadAppMsg) deleteAcRxClass(pClass);
    return AcRx::kRetOK;
}
#endif

#ifndef SAMPLE_WITHOUT_VERSION
int acrxGetApiVersion() {
#ifdef SAMPLE_OLD
    return g_nApiVersion - 1;
#else
    return g_nApiVersion;
#endif
}
#endif
}
