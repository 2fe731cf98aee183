#include "platform/acad/host_application.h"

namespace {

CEditorHost* g_pEditorHost = nullptr;
CDrawingFileHost* g_pDrawingFileHost = nullptr;

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

CDrawingFileHost* DrawingFileHost() {
    return g_pDrawingFileHost;
}

void SetDrawingFileHost(CDrawingFileHost* pHost) {
    g_pDrawingFileHost = pHost;
}
