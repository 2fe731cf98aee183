#include "host/console/drawing_session.h"

#include "host/console/drawing_files.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor.h"

namespace {

/// The words on the line of the command that runs stay for that command.
std::string AskLine(CHost& host, const std::string& strPrompt) {
    return WithoutBlanksAround(host.m_input.Line(strPrompt));
}

void Save(CHost& host, AcApDocument& document) {
    const std::string strPath =
        document.isNamedDrawing() ? CDrawings::NameOf(document) : AskLine(host, "File: ");
    const Acad::ErrorStatus status = WriteDrawingFile(*document.database(), strPath);
    if (status != Acad::eOk)
        throw CRunFailure(EXIT_FILE_FAILED, CDrawings::NameOf(document) + " cannot be saved to " + strPath +
                                                ": " + Acad::ErrorStatusText(status));
    document.database()->SetModified(false);
}

void AskToSave(CHost& host, AcApDocument& document) {
    if (!document.database()->IsModified()) return;
    const std::string strAnswer = AskLine(host, "Save changes to " + CDrawings::NameOf(document) + "? ");
    if (strAnswer == "yes") {
        Save(host, document);
    } else if (strAnswer != "no") {
        throw CRunFailure(EXIT_NO_SUCH_ANSWER, "neither yes, no nor cancel: " + strAnswer);
    }
}

/// In single-document mode the current drawing gives way.
void Add(CHost& host, std::unique_ptr<AcDbDatabase> pDatabase) {
    AcApDocument* const pCurrent = host.m_drawings.CurrentDocument();
    if (pCurrent && IsSingleDocument()) CloseDrawing(host, *pCurrent);
    host.m_drawings.Add(std::move(pDatabase));
    host.m_input.ForgetLastPoint();
}

} // namespace

void NewDrawing(CHost& host) {
    Add(host, std::make_unique<AcDbDatabase>());
}

Acad::ErrorStatus OpenDrawing(CHost& host, const std::string& strPath) {
    auto pDatabase = std::make_unique<AcDbDatabase>();
    const Acad::ErrorStatus status = ReadDrawingFile(strPath, *pDatabase);
    if (status != Acad::eOk) return status;
    Add(host, std::move(pDatabase));
    return Acad::eOk;
}

void CloseDrawing(CHost& host, AcApDocument& document) {
    AskToSave(host, document);
    host.m_drawings.Close(document);
    host.m_input.ForgetLastPoint();
}

void ActivateDrawing(CHost& host, AcApDocument& document) {
    if (&document == host.m_drawings.CurrentDocument()) return;
    host.m_drawings.MakeCurrent(document);
    host.m_input.ForgetLastPoint();
}

void AskToSaveAll(CHost& host) {
    for (AcApDocument* const pDocument : host.m_drawings.ChangedDocuments())
        AskToSave(host, *pDocument);
}

void EndSession(CHost& host) {
    acrxDynamicLinker()->SendToAll(AcRx::kPreQuitMsg);
    while (AcApDocument* const pDocument = host.m_drawings.CurrentDocument())
        host.m_drawings.Close(*pDocument);
    acrxDynamicLinker()->SendToAll(AcRx::kQuitMsg);
}
