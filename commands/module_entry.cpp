// The module's entry: what happens when a host loads and unloads it.

#include "chart/chart_entity.h"
#include "commands/br_editor_reactor.h"
#include "commands/brcf_command.h"
#include "commands/bren_command.h"
#include "commands/bropen_command.h"
#include "data/project_context.h"
#include "frame/frame_entity.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/rx_registry.h"
#include "platform/tvtool/tvtool.h"

#include <array>

namespace {
constexpr const ACHAR* g_pGroup = L"BREN";
constexpr std::size_t g_nPathBuffer = 260;

CString PathFrom(int (*pGet)(char*)) {
    std::array<char, g_nPathBuffer> buffer{};
    pGet(buffer.data());
    return buffer.data();
}

void AddCommand(const ACHAR* pName, AcRxFunctionPtr pFunction) {
    acedRegCmds->addCommand(g_pGroup, pName, pName, ACRX_CMD_MODAL, pFunction);
}

void Load() {
    g_strProjectIni = PathFrom(&TVToolGetProjectIni);
    g_strSettingsIni = PathFrom(&TVToolGetSettingsIni);
    g_strMarksIni = PathFrom(&TVToolGetMarksIni);
    g_pEdReactor = new CEdBRReactor;
    acedEditor->addReactor(g_pEdReactor);
    CBRENChart::rxInit();
    CBRENFrame::rxInit();
    AddCommand(L"BREN", &BrenCommand);
    AddCommand(L"BRCF", &BrcfCommand);
    AddCommand(L"BROPEN", &BropenCommand);
}

void Unload() {
    acedRegCmds->removeGroup(g_pGroup);
    CBRENChart::rxExit();
    CBRENFrame::rxExit();
    acedEditor->removeReactor(g_pEdReactor);
    delete g_pEdReactor;
    g_pEdReactor = nullptr;
}
} // namespace

extern "C" {
int acrxGetApiVersion() {
    return g_nApiVersion;
}

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pPackage) {
    if (msg == AcRx::kInitAppMsg) {
        auto* pLinker = static_cast<AcRxDynamicLinker*>(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER));
        pLinker->unlockApplication(pPackage);
        pLinker->registerAppMDIAware(pPackage);
        Load();
    } else if (msg == AcRx::kUnloadAppMsg) {
        Unload();
    }
    return AcRx::kRetOK;
}
}
