// A loadable module for real runs: commands that work on documents, defer work, send texts, pick, and run
// other commands; a reactor that asks before one; and it tells each message it gets.

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/selection.h"
#include "platform/windows/code_page.h"
#include "platform/windows/message_box.h"
#include "tests/host/console/test_dialog.h"

#include <fstream>
#include <iterator>
#include <string>

namespace {

void Tell(const ACHAR* szWhat, Acad::ErrorStatus status) {
    acutPrintf(L"\n%ls %ls", szWhat, WideFromGbk(Acad::ErrorStatusText(status)).c_str());
}

void TellContext(void*) {
    acutPrintf(L"\n%ls context", acDocManager->isApplicationContext() ? L"application" : L"document");
}

// Hands over to the application context, then goes on in the document's.
void LaterCommand() {
    acDocManager->executeInApplicationContext(TellContext, nullptr);
    TellContext(nullptr);
}

// Sends the text of the file "sent"; its first line holds the number of the document and the letters of what
// is on: a activate, e echo.
void SendCommand() {
    std::ifstream file("sent", std::ios::binary);
    int nDocument = 1;
    std::string flags;
    file >> nDocument >> flags;
    file.get();
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::unique_ptr<AcApDocumentIterator> walk(acDocManager->newAcApDocumentIterator());
    for (int i = 1; i < nDocument; ++i)
        walk->step();
    const bool bActivate = flags.find('a') != std::string::npos, bEcho = flags.find('e') != std::string::npos;
    Tell(L"send", acDocManager->sendStringToExecute(walk->document(), WideFromGbk(text).c_str(), bActivate,
                                                    false, bEcho));
}

void OpenFiles(void*) {
    Tell(L"missing", acDocManager->appContextOpenDocument(L"missing.dwg"));
    Tell(L"present", acDocManager->appContextOpenDocument(L"present.dwg"));
}

void OpenFilesCommand() {
    OpenFiles(nullptr);
    acDocManager->executeInApplicationContext(OpenFiles, nullptr);
}

void SyncOpenCommand() {
    Tell(L"sync", acedSyncFileOpen(L"missing.dwg"));
}

void AddDocument(void*) {
    Tell(L"new", acDocManager->appContextNewDocument());
}

void AddDocumentCommand() {
    acDocManager->executeInApplicationContext(AddDocument, nullptr);
}

// Closes the current document, which is locked at the first try.
void CloseDocument(void*) {
    acDocManager->lockDocument(acDocManager->curDocument());
    Tell(L"locked", acDocManager->appContextCloseDocument(acDocManager->curDocument()));
    acDocManager->unlockDocument(acDocManager->curDocument());
    Tell(L"close", acDocManager->appContextCloseDocument(acDocManager->curDocument()));
}

void CloseDocumentCommand() {
    acDocManager->executeInApplicationContext(CloseDocument, nullptr);
}

void PickCommand() {
    ads_name name;
    ads_point point;
    const int nStatus = acedEntSel(L"\nPick: ", name, point);
    acutPrintf(L"\npicked %d", nStatus);
    AcDbObjectId id;
    if (nStatus != RTNORM || acdbGetObjectId(id, name) != Acad::eOk) return;
    const CDbOpen<AcDbEntity> entity(id);
    acutPrintf(L" %ls %g %g", entity->isA()->name(), point[0], point[1]);
}

void PickSetCommand() {
    ads_name ss;
    const int nStatus = acedSSGet(nullptr, nullptr, nullptr, nullptr, ss);
    acutPrintf(L"\nselected %d", nStatus);
    if (nStatus != RTNORM) return;
    Adesk::Int32 nLength = 0;
    acedSSLength(ss, &nLength);
    acutPrintf(L" %d", nLength);
    acedSSFree(ss);
}

void RunDialog(void*) {
    CTestDialog dialog;
    acutPrintf(L"\ndialog closed by %d", static_cast<int>(dialog.DoModal()));
}

void DialogCommand() {
    RunDialog(nullptr);
}

// A dialog in the application's context.
void LaterDialogCommand() {
    acDocManager->executeInApplicationContext(RunDialog, nullptr);
}

// Runs PICK with what the user gives, goes on with its own answers, and then runs a command with the answers
// it has.
void NestCommand() {
    acutPrintf(L"\nnested %d", acedCommand(RTSTR, L"pick", RTNONE));
    PickCommand();
    acutPrintf(L"\nnested %d", acedCommand(RTSTR, L"setvar", RTSTR, L"plotdpi", RTSHORT, 200, RTNONE));
}

void NestCloseCommand() {
    acutPrintf(L"\nnested %d", acedCommand(RTSTR, L"close", RTNONE));
}

void NestUnknownCommand() {
    acutPrintf(L"\nnested %d", acedCommand(RTSTR, L"nosuch", RTNONE));
}

bool g_bTelling = false, g_bLaterAtUnload = false;

// Tells what follows: the messages and the ends of commands; and asks before PICK and PICKSET.
void TellCommand() {
    g_bTelling = true;
}

// Work that the module's going leaves behind.
void LaterAtUnloadCommand() {
    g_bLaterAtUnload = true;
}

/// Asks before PICK, and on yes picks itself; runs a dialog before PICKSET.
class CAskingReactor final : public AcEditorReactor {
public:
    void commandWillStart(const ACHAR* szName) override {
        if (!g_bTelling) return;
        const std::wstring strName = szName;
        if (strName == L"PICKSET") RunDialog(nullptr);
        if (strName == L"PICK" && MessageBoxA(nullptr, "store?", "Tervo", MB_YESNO) == IDYES) PickCommand();
    }
    void commandEnded(const ACHAR* szName) override { TellEnd(L"ended", szName); }
    void commandCancelled(const ACHAR* szName) override { TellEnd(L"cancelled", szName); }
    void commandFailed(const ACHAR* szName) override { TellEnd(L"failed", szName); }

private:
    static void TellEnd(const ACHAR* szHow, const ACHAR* szName) {
        if (g_bTelling) acutPrintf(L"\n%ls %ls", szHow, szName);
    }
};

CAskingReactor g_reactor;

struct CCommand {
    const ACHAR* m_szName;
    AcRxFunctionPtr m_pFunction;
};

constexpr CCommand g_arCommands[] = {
    {L"LATER", LaterCommand},
    {L"SEND", SendCommand},
    {L"OPENFILES", OpenFilesCommand},
    {L"SYNCOPEN", SyncOpenCommand},
    {L"ADDDOCUMENT", AddDocumentCommand},
    {L"CLOSEDOCUMENT", CloseDocumentCommand},
    {L"PICK", PickCommand},
    {L"PICKSET", PickSetCommand},
    {L"DIALOG", DialogCommand},
    {L"LATERDIALOG", LaterDialogCommand},
    {L"NEST", NestCommand},
    {L"NESTCLOSE", NestCloseCommand},
    {L"NESTUNKNOWN", NestUnknownCommand},
    {L"TELL", TellCommand},
    {L"LATERATUNLOAD", LaterAtUnloadCommand},
};

void Load(void* pPackage) {
    acrxDynamicLinker()->unlockApplication(pPackage);
    acedEditor->addReactor(&g_reactor);
    for (const CCommand& command : g_arCommands)
        acedRegCmds->addCommand(L"DOCUMENTS", command.m_szName, command.m_szName, ACRX_CMD_MODAL,
                                command.m_pFunction);
}

void Unload() {
    if (g_bLaterAtUnload) LaterCommand();
    acedRegCmds->removeGroup(L"DOCUMENTS");
    acedEditor->removeReactor(&g_reactor);
}

} // namespace

extern "C" {

AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode msg, void* pkt) {
    if (g_bTelling) acutPrintf(L"\nmessage %d", static_cast<int>(msg));
    if (msg == AcRx::kInitAppMsg) Load(pkt);
    if (msg == AcRx::kUnloadAppMsg) Unload();
    return AcRx::kRetOK;
}

int acrxGetApiVersion() {
    return g_nApiVersion;
}
}
