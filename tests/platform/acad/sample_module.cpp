// A small loadable module; the build makes several kinds of it, each of which differs in one point.

#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/rx_class.h"

#if defined SAMPLE_UNTIDY || defined SAMPLE_UNTIDY_REFUSES
namespace {

class CSampleReactor : public AcEditorReactor {
    void commandWillStart(const ACHAR*) override {}
};

CSampleReactor g_sampleReactor;

void LeaveThingsBehind() {
    acedRegCmds->addCommand(L"SAMPLE", L"UNTIDY", L"UNTIDY", ACRX_CMD_MODAL, [] {});
    acedEditor->addReactor(&g_sampleReactor);
    newAcRxClass(L"CSampleUntidy", L"AcRxObject", 0, 0, 0, []() -> AcRxObject* { return new AcRxObject; });
}

} // namespace
#endif

extern "C" {

void* g_pSamplePackage = nullptr; ///< what the linker handed over
int g_nSampleDrawingsTold = 0;    ///< how often it heard of a drawing

#ifndef SAMPLE_WITHOUT_ENTRY
AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) {
    static AcRxClass* pClass = nullptr;
    if (msg == AcRx::kLoadDwgMsg) ++g_nSampleDrawingsTold;
#ifdef SAMPLE_UNTIDY
    if (msg == AcRx::kInitAppMsg) LeaveThingsBehind();
    acrxDynamicLinker()->unlockApplication(pkt);
    return AcRx::kRetOK;
#endif
    if (msg == AcRx::kInitAppMsg) {
#ifdef SAMPLE_UNTIDY_REFUSES
        LeaveThingsBehind();
        return AcRx::kRetError;
#endif
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
