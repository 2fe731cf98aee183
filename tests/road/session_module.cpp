// The chart module with commands of its own for what none of its commands reaches, for real runs.

#include "commands/chart_folder.h"
#include "commands/document_session.h"
#include "commands/open_drawings.h"
#include "data/project_context.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/editor.h"
#include "platform/acad/rx_registry.h"
#include "platform/mfc/property_sheet.h"
#include "platform/mfc/runtime_class.h"
#include "platform/windows/code_page.h"

#include <fstream>

namespace {
constexpr const ACHAR* g_pGroup = L"SESSION";

void Tell(int nResult) {
    acutPrintf(L"\nresult %d", nResult);
}

void TellStatus(Acad::ErrorStatus status) {
    acutPrintf(L"\nstatus %ls", WideFromGbk(Acad::ErrorStatusText(status)).c_str());
}

void HasFolderCommand() {
    Tell(HasChartFolder(ReadProjectText("GCBH")));
}

void EnsureSingleCommand() {
    Tell(EnsureSingleDocument("Tervo"));
}

void SendLineCommand() {
    SendCommandToDocument("LINE 0,0 1,1");
}

void CloseAndTell(void*) {
    acDocManager->lockDocument(acDocManager->curDocument());
    TellStatus(CloseDocumentAndEnd(1));
}

void EndDocumentCommand() {
    TellStatus(CloseDocumentAndEnd(0));
    acDocManager->executeInApplicationContext(&CloseAndTell, nullptr);
}

// Opens what the file "request" in the root names, in ASCII: the zoom and the paths.
void OpenCommand() {
    CString strRoot;
    GetRootPath(&strRoot);
    std::ifstream file(ToUtf8(strRoot.GetString()) + "/request");
    int nZoom = 0;
    std::string strPaths;
    file >> nZoom >> strPaths;
    TellStatus(OpenChartDrawing(strPaths.c_str(), static_cast<OpenZoom>(nZoom), 0));
}

void PagesCommand() {
    CPropertySheet sheet("设置");
    const std::unique_ptr<CWnd> arPages[] = {std::unique_ptr<CWnd>(CRuntimeClass::CreateObject("COptPage")),
                                             std::unique_ptr<CWnd>(CRuntimeClass::CreateObject("CZSPage"))};
    for (const auto& pPage : arPages)
        sheet.AddPage(dynamic_cast<CPropertyPage*>(pPage.get()));
    Tell(static_cast<int>(sheet.DoModal()));
}

/// The commands, from the loading of the code to its going.
class CSessionCommands {
public:
    CSessionCommands() {
        Add(L"HASFOLDER", &HasFolderCommand);
        Add(L"APPLYSDI", &ApplyConfiguredSdi);
        Add(L"ENSURESINGLE", &EnsureSingleCommand);
        Add(L"SENDLINE", &SendLineCommand);
        Add(L"ENDDOCUMENT", &EndDocumentCommand);
        Add(L"OPENCHARTS", &OpenCommand);
        Add(L"PAGES", &PagesCommand);
    }
    ~CSessionCommands() { acedRegCmds->removeGroup(g_pGroup); }
    CSessionCommands(const CSessionCommands&) = delete;
    CSessionCommands& operator=(const CSessionCommands&) = delete;

private:
    static void Add(const ACHAR* pName, AcRxFunctionPtr pFunction) {
        acedRegCmds->addCommand(g_pGroup, pName, pName, ACRX_CMD_MODAL, pFunction);
    }
};
const CSessionCommands g_commands;
} // namespace
