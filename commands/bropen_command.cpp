#include "commands/bropen_command.h"

#include "commands/chart_folder.h"
#include "commands/document_session.h"
#include "commands/module_library.h"
#include "commands/open_drawings.h"
#include "commands/text_lists.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "platform/mfc/file_find.h"
#include "platform/mfc/resources.h"
#include "ui/br_open_dlg.h"

namespace {
/// The files chosen in the dialog.
CString PathsOf(const CBROpenDlg& dialog) {
    CStringArray saTitles, saPaths;
    SplitText(dialog.m_strOpenResult, g_cPathSeparator, saTitles);
    for (const CString& strTitle : saTitles)
        saPaths.Add(ChartFile(dialog.m_strOpenGCBH, strTitle));
    return JoinTexts(saPaths, g_cPathSeparator);
}

void BropenAppContext(void* /*pData*/) {
    const CTemporaryResourceOverride resources(g_hModuleResources);
    CBROpenDlg dialog(adsw_acadMainWnd());
    if (dialog.DoModal() != ID_OK) return;
    if (IsMultiDocument()) acDocManager->popResourceHandle();
    const CString strPaths = PathsOf(dialog);
    // No file has "|" in its name: of several drawings none is opened.
    if (CFileFind().FindFile(strPaths)) OpenChartDrawing(strPaths, OpenZoom_Extents, 0);
}
} // namespace

void BropenCommand() {
    if (acDocManager->curDocument()) acDocManager->executeInApplicationContext(&BropenAppContext, nullptr);
}
