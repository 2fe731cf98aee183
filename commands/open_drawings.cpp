#include "commands/open_drawings.h"

#include "commands/document_session.h"
#include "commands/text_conversion.h"
#include "commands/text_lists.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"

#include <cstdlib>

namespace {
CString g_strPendingRequest; ///< for the time after the command; a second request takes the first one's place

/// What zooms when it is typed, with the blank that ends it; null for no zoom.
const ACHAR* ZoomText(int nZoom) {
    switch (nZoom) {
    case OpenZoom_Extents:
        return L"zoom e ";
    case OpenZoom_All:
        return L"zoom a ";
    default:
        return nullptr;
    }
}

Acad::ErrorStatus SendZoom(int nZoom) {
    const ACHAR* const pText = ZoomText(nZoom);
    if (!pText) return Acad::eOk;
    return acDocManager->sendStringToExecute(acDocManager->curDocument(), pText, true, false, true);
}

Acad::ErrorStatus OpenInPlace(const CString& strPaths, OpenZoom zoom) {
    CStringArray saPaths;
    SplitText(strPaths, g_cPathSeparator, saPaths);
    if (saPaths.GetSize() > 1) acutPrintf(L"当前是单文档状态,只能打开一个文档");
    const CString strPath = saPaths.IsEmpty() ? CString() : saPaths[0];
    const Acad::ErrorStatus status = acedSyncFileOpen(ToWide(strPath));
    return status == Acad::eOk ? SendZoom(zoom) : status;
}

void OpenPending(void* pRequest) {
    OpenDocumentsInApp(*static_cast<const CString*>(pRequest));
}
} // namespace

Acad::ErrorStatus OpenChartDrawing(const CString& strPaths, OpenZoom zoom, int bLock) {
    if (!IsMultiDocument()) return OpenInPlace(strPaths, zoom);
    CString strRequest;
    strRequest.Format("%d|%s", static_cast<int>(zoom), strPaths.GetString());
    if (acDocManager->isApplicationContext()) {
        OpenDocumentsInApp(strRequest);
        return bLock == 1 ? acDocManager->lockDocument(acDocManager->curDocument(), AcAp::kWrite) : Acad::eOk;
    }
    g_strPendingRequest = strRequest;
    if (acDocManager->curDocument())
        acDocManager->executeInApplicationContext(&OpenPending, &g_strPendingRequest);
    return Acad::eOk;
}

void OpenDocumentsInApp(const CString& strRequest) {
    if (!acDocManager->isApplicationContext()) {
        const AcApDocument* const pDocument = acDocManager->curDocument();
        acutPrintf(L"\nERROR: in Document context : %s\n", pDocument ? pDocument->fileName() : L"");
        return;
    }
    CStringArray saParts;
    SplitText(strRequest, g_cPathSeparator, saParts);
    for (int i = 1; i < saParts.GetSize(); i++)
        if (acDocManager->appContextOpenDocument(ToWide(saParts[i])) == Acad::eOk)
            SendZoom(std::atoi(saParts[0]));
}
