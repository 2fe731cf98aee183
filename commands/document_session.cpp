#include "commands/document_session.h"

#include "commands/text_conversion.h"
#include "data/project_context.h"
#include "data/show_message.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "platform/windows/profile.h"

#include <memory>

namespace {
constexpr const ACHAR* g_pSdi = L"SDI";
constexpr short g_nSingleDocument = 1;
constexpr char g_cEscape = 3;

/// Asks the user whether the other documents may be closed.
bool MayCloseOthers(const CString& strCaption) {
    const HWND hOwner = FindBoxOwner(static_cast<HWND>(acedGetAcadFrame()));
    return MessageBoxA(hOwner,
                       "现在AutoCAD已经打开了多个文档,\n\n本命令只允许在打开一个文档的条件下使用.\n\n "
                       "点击\"是\"程序自动关闭打开的文档,继续执行命令。\n\n点击\"否\"取消本命令",
                       strCaption, MB_YESNO | MB_ICONINFORMATION) == IDYES;
}

void SendCloseToOthers() {
    const std::unique_ptr<AcApDocumentIterator> pWalk(acDocManager->newAcApDocumentIterator());
    for (; !pWalk->done(); pWalk->step())
        if (pWalk->document() != acDocManager->curDocument())
            acDocManager->sendStringToExecute(pWalk->document(), L"close ", true, false, true);
}

bool SetSingleWhenAlone() {
    if (acDocManager->documentCount() >= 2) return false;
    SetSdi(g_nSingleDocument);
    return true;
}
} // namespace

bool IsMultiDocument() {
    resbuf value;
    return acedGetVar(g_pSdi, &value) == RTNORM && value.restype == RTSHORT && value.resval.rint == 0;
}

void SetSdi(short nSdi) {
    resbuf value;
    value.restype = RTSHORT;
    value.resval.rint = nSdi;
    acedSetVar(g_pSdi, &value);
}

void ApplyConfiguredSdi() {
    SetSdi(static_cast<short>(GetPrivateProfileIntA("MDI", "MDIMODE", g_nSingleDocument, g_strSettingsIni)));
}

int EnsureSingleDocument(const CString& strCaption) {
    if (SetSingleWhenAlone()) return 1;
    if (!MayCloseOthers(strCaption)) return 0;
    SendCloseToOthers();
    if (SetSingleWhenAlone()) return 1;
    acutPrintf(L"\n文档无法自动关闭,请使用sdi命令设置成单位档模式来执行本命令.\n");
    return 0;
}

Acad::ErrorStatus CloseDocumentAndEnd(int bUnlock) {
    AcApDocument* const pDocument = acDocManager->curDocument();
    if (bUnlock == 1) acDocManager->unlockDocument(pDocument);
    return acDocManager->appContextCloseDocument(pDocument);
}

void SendCommandToDocument(const CString& strCommand) {
    const CString strTyped = CString(g_cEscape) + strCommand + "\n";
    acDocManager->sendStringToExecute(acDocManager->curDocument(), ToWide(strTyped), false, true, true);
}
