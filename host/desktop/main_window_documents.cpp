// The drawings of the main window: their tabs, and the view of the current one.

#include "host/desktop/main_window.h"

#include "host/console/host_commands.h"
#include "platform/acad/command_stack.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QTabBar>

#include <set>

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
    ForgetClosed();
    RefreshTabs();
    CDocumentView* const pView = CurrentView();
    if (m_pView->Document() != pView) m_pView->Show(pView);
    m_pView->Refresh();
    m_actions.TakeModuleCommands();
    const AcApDocument* const pCurrent = m_pHost->m_drawings.CurrentDocument();
    setWindowTitle(pCurrent ? NameOf(*pCurrent) + u"[*] - Tervo"_qs : u"Tervo"_qs);
    setWindowModified(pCurrent && pCurrent->database()->IsModified());
    if (pCurrent && pCurrent->isNamedDrawing() && m_settings.NoteFile(NameOf(*pCurrent)))
        m_actions.SetRecentFiles(m_settings.RecentFiles());
}

void CMainWindow::ForgetClosed() {
    std::set<int> setOpen;
    for (const AcApDocument* const pDocument : m_pHost->m_drawings.Documents())
        setOpen.insert(m_pHost->m_drawings.NumberOf(*pDocument));
    std::erase_if(m_mapViews, [&](const auto& shown) {
        const bool bClosed = !setOpen.contains(shown.first);
        if (bClosed && m_pView->Document() == &shown.second) m_pView->Show(nullptr);
        return bClosed;
    });
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
    const int nNumber = m_pHost->m_drawings.NumberOf(*pDocument);
    return &m_mapViews.try_emplace(nNumber, *pDocument, m_pHost->m_fonts).first->second;
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
