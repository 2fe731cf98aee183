#include "platform/mfc/extension_module.h"

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hModule) {
    if (!state.bInitialized) state = {TRUE, hModule, hModule, nullptr};
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state) {
    delete state.pLibrary;
    state = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule)
    , m_hResource(state.hResource) {
    delete state.pLibrary;
    state.pLibrary = this;
}
