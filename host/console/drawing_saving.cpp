#include "host/console/drawing_saving.h"

#include "host/console/texts.h"
#include "host/files/drawing_storage.h"
#include "platform/windows/path.h"

#include <filesystem>

namespace {

CDrawingFormat FormatOf(const std::string& strPath, bool bExploded) {
    const std::optional<CDrawingFormat> format = FormatOfEnding(strPath);
    if (!format) RefuseAnswer("no .dwg or .dxf: " + strPath);
    if (!bExploded) return *format;
    if (*format != CDrawingFormat::Dxf) RefuseAnswer("only a .dxf is written exploded: " + strPath);
    return CDrawingFormat::ExplodedDxf;
}

/// The full path that an answer stands for; of files that differ by case only the one that is there.
std::string FullPath(const std::string& strAnswer) {
    std::string utf8;
    ResolvePath({}, GbkAnswer(strAnswer), &utf8);
    return std::filesystem::absolute(utf8).lexically_normal().string();
}

bool IsSameFile(const std::string& strPath, const std::string& strOther) {
    std::error_code error;
    return std::filesystem::equivalent(strPath, strOther, error);
}

/// Told before the file is replaced, while its losses can still be avoided.
void TellLosses(const CHost& host, const CFileNotes& notes, const std::string& strPath,
                const CDrawingLosses& losses) {
    if (!notes.m_losses.empty() && IsSameFile(notes.m_strReadFrom, strPath))
        host.Print(strPath + " loses what the drawing does not hold: " + LossesText(notes.m_losses));
    if (!losses.empty()) host.Print(strPath + " does not hold of the drawing: " + LossesText(losses));
}

} // namespace

void SaveDrawingAs(CHost& host, AcApDocument& document, const std::string& strPath, bool bExploded) {
    const CDrawingFormat format = FormatOf(strPath, bExploded);
    const std::string strFullPath = FullPath(strPath);
    const std::wstring strName = WideAnswer(strFullPath);
    CFileNotes& notes = host.m_drawings.NotesOf(document);
    try {
        const CWrittenDrawing written = WriteDrawing(*document.database(), format);
        TellLosses(host, notes, strFullPath, written.m_losses);
        StoreDrawing(strFullPath, written.m_strBytes);
    } catch (const CDrawingFailure& failure) {
        throw CRunFailure(EXIT_FILE_FAILED, CDrawings::NameOf(document) + " cannot be saved to " + strPath +
                                                ": " + failure.what());
    }
    document.database()->SetFilename(strName.c_str());
    document.database()->SetModified(false);
    notes.m_bExploded = bExploded;
    if (IsSameFile(notes.m_strReadFrom, strFullPath)) notes.m_losses.clear();
}

void SaveDrawing(CHost& host, AcApDocument& document) {
    if (document.isNamedDrawing()) {
        const bool bExploded = host.m_drawings.NotesOf(document).m_bExploded;
        SaveDrawingAs(host, document, CDrawings::NameOf(document), bExploded);
    } else {
        const CQuestion question{"File: ", CAnswerKind::FileToSave, {}, {}, g_szDrawingEndings};
        SaveDrawingAs(host, document, WithoutBlanksAround(host.m_input.Line(question)), false);
    }
}
