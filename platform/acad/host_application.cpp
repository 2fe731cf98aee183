#include "platform/acad/host_application.h"

namespace {

CEditorHost* g_pEditorHost = nullptr;

} // namespace

AcDbHostApplicationServices* acdbHostApplicationServices() {
    static AcDbHostApplicationServices theServices;
    return &theServices;
}

CEditorHost* EditorHost() {
    return g_pEditorHost;
}

void SetEditorHost(CEditorHost* pHost) {
    g_pEditorHost = pHost;
}
