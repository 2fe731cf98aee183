#include "commands/module_library.h"

#include "platform/mfc/extension_module.h"
#include "ui/resources.h"

HINSTANCE g_hModuleInstance = nullptr;
HINSTANCE g_hModuleResources = nullptr;

namespace {
AFX_EXTENSION_MODULE g_extension;

[[gnu::constructor]] void OnAttach() {
    AttachModule();
}

[[gnu::destructor]] void OnDetach() {
    DetachModule();
}
} // namespace

BOOL AttachModule() {
    g_hModuleInstance = ModuleResources();
    AfxInitExtensionModule(g_extension, g_hModuleInstance);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the extension's state owns it
    g_hModuleResources = (new CDynLinkLibrary(g_extension))->m_hResource;
    return TRUE;
}

BOOL DetachModule() {
    AfxTermExtensionModule(g_extension);
    g_hModuleInstance = g_hModuleResources = nullptr;
    return TRUE;
}
