#include "host/console/drawing_session.h"

#include "host/console/drawing_saving.h"
#include "host/console/progress.h"
#include "host/console/redraw.h"
#include "host/console/texts.h"
#include "host/files/drawing_storage.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

#include <filesystem>

namespace {

/// True when it was saved. The words on the line of the command that runs stay for that command.
bool AskToSave(CHost& host, AcApDocument& document) {
    if (!document.database()->IsModified()) return false;
    const CQuestion question{"Save changes to " + CDrawings::NameOf(document) + "? ",
                             CAnswerKind::SaveChanges};
    const std::string strAnswer = WithoutBlanksAround(host.m_input.Line(question));
    if (strAnswer != "yes" && strAnswer != "no") RefuseAnswer("neither yes, no nor cancel: " + strAnswer);
    if (strAnswer == "yes") SaveDrawing(host, document);
    return strAnswer == "yes";
}

void Discard(CHost& host, AcApDocument& document) {
    host.m_drawings.Close(document);
    host.m_input.ForgetLastPoint();
}

/// The drawing that gives way to another one: in single-document mode the current one. Null for none.
AcApDocument* InTheWay(const CHost& host) {
    return IsSingleDocument() ? host.m_drawings.CurrentDocument() : nullptr;
}

/// A file that was read, and how it is called.
struct COpenedFile {
    std::string m_strPath; ///< full, UTF-8
    std::wstring m_strName;
    CReadDrawing m_read;
};

COpenedFile ReadFile(const std::string& strPath) {
    const std::string strFullPath = std::filesystem::absolute(strPath).lexically_normal().string();
    const std::string strWork = "Opening " + strPath;
    const auto goesOn = [&](std::size_t nDone, std::size_t nAll) {
        return ShowProgress(strWork, nDone, nAll);
    };
    ShowProgress(strWork, 0, 1);
    COpenedFile file{strFullPath, WideAnswer(strFullPath), LoadDrawing(strFullPath, goesOn)};
    ShowProgress(strWork, 1, 1);
    return file;
}

void TellWhatItHolds(const CHost& host, const COpenedFile& file) {
    const std::optional<CDrawingFormat> ending = FormatOfEnding(file.m_strPath);
    if (ending && *ending != file.m_read.m_format)
        host.Print(file.m_strPath + " holds a " +
                   (file.m_read.m_format == CDrawingFormat::Dwg ? "DWG" : "DXF") +
                   " drawing, against its ending");
    if (!file.m_read.m_losses.empty())
        host.Print(file.m_strPath + " holds what the drawing does not: " + LossesText(file.m_read.m_losses));
    if (!file.m_read.m_kept.empty())
        host.Print(file.m_strPath + " holds what is kept as it is: " + LossesText(file.m_read.m_kept));
}

void Show(CHost& host, COpenedFile file) {
    TellWhatItHolds(host, file);
    AcDbDatabase& drawing = *file.m_read.m_pDatabase;
    drawing.SetFilename(file.m_strName.c_str());
    host.m_drawings.Add(std::move(file.m_read.m_pDatabase),
                        {false, file.m_strPath, std::move(file.m_read.m_losses)});
    host.m_input.ForgetLastPoint();
    DrawAll(drawing);
    drawing.SetModified(false); // an entity may load a line type to draw itself
}

} // namespace

void NewDrawing(CHost& host) {
    if (AcApDocument* const pCurrent = InTheWay(host)) CloseDrawing(host, *pCurrent);
    host.m_drawings.AddNew();
    host.m_input.ForgetLastPoint();
}

void OpenDrawing(CHost& host, const std::string& strPath) {
    COpenedFile file = ReadFile(strPath);
    if (AcApDocument* const pCurrent = InTheWay(host)) {
        if (AskToSave(host, *pCurrent)) file = ReadFile(strPath); // it may be the very file that was saved
        Discard(host, *pCurrent);
    }
    Show(host, std::move(file));
}

void OpenFirstDrawing(CHost& host, const std::string& strPath) {
    COpenedFile file = ReadFile(strPath);
    Discard(host, host.Document());
    Show(host, std::move(file));
}

void CloseDrawing(CHost& host, AcApDocument& document) {
    AskToSave(host, document);
    Discard(host, document);
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

std::string FindDrawingFile(const std::string& strPath) {
    const std::string strGbk = GbkAnswer(strPath);
    const std::string strFound = EditorHost() ? EditorHost()->FindFile(strGbk) : std::string();
    if (!strFound.empty()) return ToUtf8(strFound);
    std::string utf8;
    ResolvePath({}, strGbk, &utf8);
    return utf8;
}
