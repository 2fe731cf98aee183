// Commands that change, save or list the drawings that are open.

#include "host/console/drawing_saving.h"
#include "host/console/drawing_session.h"
#include "host/console/host_commands.h"
#include "host/console/numbers.h"
#include "host/files/drawing_failure.h"

void CommandNew(CHost& host) {
    host.m_input.End();
    NewDrawing(host);
}

void CommandOpen(CHost& host) {
    const std::string path = host.m_input.FileToOpen("File: ", g_szDrawingEndings);
    host.m_input.End();
    try {
        OpenDrawing(host, FindDrawingFile(path));
    } catch (const CDrawingFailure& failure) {
        throw CRunFailure(EXIT_FILE_FAILED, path + " cannot be opened: " + failure.what());
    }
}

void CommandSaveAs(CHost& host) {
    AcApDocument& document = host.Document();
    const std::string path = host.m_input.FileToSave("File: ", g_szDrawingEndings);
    const std::optional<std::string> option = host.m_input.WordOnLine();
    host.m_input.End();
    if (option && *option != "exploded")
        RefuseAnswer("not exploded, which alone may follow the path: " + *option);
    SaveDrawingAs(host, document, path, option.has_value());
}

void CommandQSave(CHost& host) {
    AcApDocument& document = host.Document();
    if (document.isNamedDrawing()) {
        host.m_input.End();
        return SaveDrawing(host, document);
    }
    const std::string path = host.m_input.FileToSave("File: ", g_szDrawingEndings);
    host.m_input.End();
    SaveDrawingAs(host, document, path, false);
}

void CommandClose(CHost& host) {
    host.m_input.End();
    CloseDrawing(host, host.Document());
}

void CommandQuit(CHost& host) {
    host.m_input.End();
    AskToSaveAll(host);
    host.m_bQuit = true;
}

void CommandDocuments(CHost& host) {
    host.m_input.End();
    int nNumber = 0;
    for (const AcApDocument* const pDocument : host.m_drawings.Documents())
        host.Print(std::to_string(++nNumber) +
                   (pDocument == host.m_drawings.CurrentDocument() ? " * " : "   ") +
                   CDrawings::NameOf(*pDocument) + (pDocument->database()->IsModified() ? " (changed)" : ""));
}

void CommandActivate(CHost& host) {
    const std::string strNumber = host.m_input.Text("Number of the drawing: ");
    host.m_input.End();
    const std::vector<AcApDocument*> documents = host.m_drawings.Documents();
    int nNumber = 0;
    if (!ParseWhole(strNumber, &nNumber) || nNumber < 1 || nNumber > static_cast<int>(documents.size()))
        RefuseAnswer("no such drawing: " + strNumber);
    ActivateDrawing(host, *documents[static_cast<std::size_t>(nNumber - 1)]);
}
