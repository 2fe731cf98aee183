#include "host/desktop/kept_drawings.h"

#include "host/console/drawing_session.h"
#include "host/console/texts.h"
#include "host/files/drawing_failure.h"

#include <QtWidgets/QMessageBox>

namespace {

/// False when it cannot be opened, which is told.
bool OpenKept(CHost& host, const CKeptDrawing& kept) {
    try {
        OpenDrawing(host, kept.m_file.string());
        AcApDocument& document = host.Document();
        host.m_drawings.NotesOf(document) = {}; // the copy is not its file
        document.database()->SetFilename(kept.m_bNamed ? WideAnswer(kept.m_strName).c_str() : L"");
        document.database()->SetModified(true);
        return true;
    } catch (const CDrawingFailure& failure) {
        host.Print(kept.m_file.string() + " cannot be opened: " + failure.what());
    } catch (const CRunFailure& failure) { // a name that the code page lacks
        host.Print(kept.m_strName + ": " + failure.what());
    }
    return false;
}

/// Opens a drawing and keeps it as one of this run's, which may end no better than the earlier one.
bool IsKeptAnew(CHost& host, const CKeptDrawing& kept, CAutosave& autosave) {
    if (!OpenKept(host, kept)) return false;
    const std::optional<std::string> reason = autosave.Save(host.m_drawings);
    if (reason) host.Print(*reason);
    return !reason;
}

} // namespace

void OfferKeptDrawings(CHost& host, CAutosave& autosave, QWidget* pParent) {
    for (const CKeptDrawing& kept : autosave.Left()) {
        const CDescriptor claim = CAutosave::Claim(kept);
        if (!claim) continue;
        const auto button = QMessageBox::question(
            pParent, u"Tervo"_qs,
            u"%1 was changed and not saved when the program ended.\nOpen what was kept of it?"_qs.arg(
                QString::fromStdString(kept.m_strName)),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
        if (button == QMessageBox::No || (button == QMessageBox::Yes && IsKeptAnew(host, kept, autosave)))
            CAutosave::Discard(kept);
    }
}
