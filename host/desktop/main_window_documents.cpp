// The drawings of the main window: their tabs, and the view of the current one.

#include "host/desktop/main_window.h"

#include "host/console/host_commands.h"
#include "platform/acad/command_stack.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QTabBar>

namespace {

QString NameOf(const AcApDocument& document) {
    return QString::fromStdString(CDrawings::NameOf(document));
}

QString TabText(const AcApDocument& document) {
    return QFileInfo(NameOf(document)).fileName() +
           (document.database()->IsModified() ? u" *"_qs : QString());
}

} // namespace

void CMainWindow::RefreshDocuments() {
    const std::vector<AcApDocument*> documents = m_pHost->m_drawings.Documents();
    std::erase_if(m_mapViews, [&](const auto& shown) {
        return std::find(documents.begin(), documents.end(), shown.first) == documents.end();
    });
    RefreshTabs();
    CDocumentView* const pView = CurrentView();
    if (m_pView->Document() != pView) m_pView->Show(pView);
    m_pView->Refresh();
    m_actions.TakeModuleCommands();
    const AcApDocument* const pCurrent = m_pHost->m_drawings.CurrentDocument();
    setWindowTitle(pCurrent ? NameOf(*pCurrent) + u"[*] - Tervo"_qs : u"Tervo"_qs);
    setWindowModified(pCurrent && pCurrent->database()->IsModified());
    bool bNewFile = false;
    for (const AcApDocument* const pDocument : documents)
        if (pDocument->isNamedDrawing() && pDocument == pCurrent)
            bNewFile = m_settings.NoteFile(NameOf(*pDocument));
    if (bNewFile) m_actions.SetRecentFiles(m_settings.RecentFiles());
}

void CMainWindow::RefreshTabs() {
    const QSignalBlocker blocker(m_pTabs);
    const std::vector<AcApDocument*> documents = m_pHost->m_drawings.Documents();
    while (m_pTabs->count() > static_cast<int>(documents.size()))
        m_pTabs->removeTab(m_pTabs->count() - 1);
    int nIndex = 0;
    for (const AcApDocument* const pDocument : documents) {
        if (nIndex == m_pTabs->count()) m_pTabs->addTab(QString());
        m_pTabs->setTabText(nIndex, TabText(*pDocument).replace(u'&', u"&&"_qs));
        m_pTabs->setTabToolTip(nIndex, NameOf(*pDocument));
        if (pDocument == m_pHost->m_drawings.CurrentDocument()) m_pTabs->setCurrentIndex(nIndex);
        ++nIndex;
    }
}

CDocumentView* CMainWindow::CurrentView() {
    AcApDocument* const pDocument = m_pHost ? m_pHost->m_drawings.CurrentDocument() : nullptr;
    if (!pDocument) return nullptr;
    return &m_mapViews.try_emplace(pDocument, *pDocument, m_pHost->m_fonts).first->second;
}

void CMainWindow::Activate(qsizetype nIndex) {
    if (nIndex >= 0) m_pAnswers->Start("ACTIVATE " + std::to_string(nIndex + 1));
}

void CMainWindow::ActivateNext(int nStep) {
    const int nTabs = m_pTabs->count();
    if (nTabs > 1) Activate((m_pTabs->currentIndex() + nStep + nTabs) % nTabs);
}

QStringList CMainWindow::CommandNames() const {
    QStringList arNames;
    for (const CHostCommand& command : HostCommands())
        arNames << QString::fromLatin1(command.m_pName);
    for (const CRegisteredCommand& command : acedRegCmds->Commands())
        arNames << QString::fromStdWString(command.m_strGlobalName);
    arNames.sort();
    return arNames;
}
