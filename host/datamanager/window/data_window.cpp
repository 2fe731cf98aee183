#include "host/datamanager/window/data_window.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

#include "host/datamanager/window/failure_box.h"
#include "host/datamanager/window/import_dialog.h"
#include "host/datamanager/window/import_tables.h"
#include "host/datamanager/window/new_project_dialog.h"
#include "host/window_text.h"

template <class Work, class Done>
void CDataWindow::Do(const QString& strWhat, Work fnWork, Done fnDone) {
    m_worker.Do(strWhat, std::move(fnWork), std::move(fnDone),
                [this](const QString& strWhy) { ShowFailure(this, strWhy); });
}

CDataWindow::CDataWindow(std::string strProgram)
    : m_strProgram(std::move(strProgram))
    , m_pProjects(new CProjectPanel([this](const CListedProject* pProject) { ShowProject(pProject); },
                                    [this](const CListedSample* pSample) { ShowSample(pSample); }))
    , m_reports([this](const QString& strLine) { statusBar()->showMessage(strLine); })
    , m_worker([this](const QString& strWhat) { m_pBusy->Show(strWhat); }) {
    setWindowTitle(u"tvdata"_qs);
    MakeActions();
    MakePages();
    statusBar()->addPermanentWidget(m_pBusy);
    resize(1200, 760);
    m_worker.Do(
        u"Reading the projects"_qs, ListInstallation,
        [this](const CInstallationList& list) { ShowInstallation(list); },
        [this](const QString& strWhy) {
            m_pWithout->SetReason(strWhy);
            m_pStack->setCurrentWidget(m_pWithout);
            m_pWithout->m_pChoose->setFocus();
        });
}

QAction* CDataWindow::AddAction(QMenu* pMenu, const QString& strText, const QKeySequence& keys,
                                void (CDataWindow::*pfnCall)()) {
    QAction* pAction = pMenu->addAction(strText);
    pAction->setShortcut(keys);
    connect(pAction, &QAction::triggered, this, pfnCall);
    return pAction;
}

void CDataWindow::MakeActions() {
    QMenu* pFile = menuBar()->addMenu(u"&File"_qs);
    AddAction(pFile, u"&Choose an installation…"_qs, QKeySequence::Open, &CDataWindow::ChooseInstallation);
    AddAction(pFile, u"&Make an installation…"_qs, {}, &CDataWindow::MakeInstallation);
    pFile->addSeparator();
    connect(pFile->addAction(u"&Quit"_qs, QKeySequence(u"Ctrl+Q"_qs)), &QAction::triggered, this,
            &QWidget::close);

    QMenu* pProject = menuBar()->addMenu(u"&Project"_qs);
    m_pNewProject = AddAction(pProject, u"&New…"_qs, QKeySequence::New, &CDataWindow::NewProject);
    m_pImport = AddAction(pProject, u"&Import…"_qs, QKeySequence(u"Ctrl+I"_qs), &CDataWindow::Import);
    pProject->addSeparator();
    m_pOpen = AddAction(pProject, u"&Open as the running project"_qs, QKeySequence(u"Ctrl+R"_qs),
                        &CDataWindow::OpenProject);
    m_pClose = AddAction(pProject, u"&Close the running project"_qs, QKeySequence(u"Ctrl+W"_qs),
                         &CDataWindow::CloseProject);
    pProject->addSeparator();
    QAction* pRefresh = AddAction(pProject, u"&Refresh"_qs, QKeySequence::Refresh, &CDataWindow::Refresh);

    QMenu* pResults = menuBar()->addMenu(u"&Results"_qs);
    AddAction(pResults, u"&Copy"_qs, QKeySequence(u"Ctrl+Shift+C"_qs), &CDataWindow::CopyResults);
    AddAction(pResults, u"&Export as CSV…"_qs, QKeySequence(u"Ctrl+E"_qs), &CDataWindow::ExportResults);

    QToolBar* pBar = addToolBar(u"Tools"_qs);
    pBar->setMovable(false);
    pBar->addActions({m_pNewProject, m_pImport, m_pOpen, m_pClose, pRefresh});
    for (QAction* pAction : {m_pNewProject, m_pImport, m_pOpen, m_pClose})
        pAction->setEnabled(false);
}

void CDataWindow::MakePages() {
    m_pTabs->addTab(m_pSample, u"Rea&dings"_qs);
    m_pTabs->addTab(m_pResults, u"Res&ults"_qs);
    auto* pMain = new QSplitter;
    pMain->setChildrenCollapsible(false);
    pMain->addWidget(m_pProjects);
    pMain->addWidget(m_pTabs);
    pMain->setStretchFactor(1, 1);
    pMain->setSizes({370, 830});
    m_pStack->addWidget(pMain);
    m_pStack->addWidget(m_pWithout);
    setCentralWidget(m_pStack);
    connect(m_pWithout->m_pChoose, &QPushButton::clicked, this, &CDataWindow::ChooseInstallation);
    connect(m_pWithout->m_pMake, &QPushButton::clicked, this, &CDataWindow::MakeInstallation);
}

void CDataWindow::AskForFolder(const QString& strTitle,
                               CInstallationList (*pfnGo)(const std::string& strRoot)) {
    auto* pDialog = new QFileDialog(this, strTitle);
    pDialog->setFileMode(QFileDialog::Directory);
    pDialog->setOption(QFileDialog::ShowDirsOnly);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &QFileDialog::fileSelected, this, [this, strTitle, pfnGo](const QString& strFolder) {
        Do(
            strTitle, [strRoot = strFolder.toStdString(), pfnGo] { return pfnGo(strRoot); },
            [this](const CInstallationList& list) { ShowInstallation(list); });
    });
    pDialog->open();
}

void CDataWindow::ChooseInstallation() {
    AskForFolder(u"Choose an installation"_qs, GoToInstallation);
}

void CDataWindow::MakeInstallation() {
    AskForFolder(u"Make an installation"_qs, MakeAndGoToInstallation);
}

void CDataWindow::ShowInstallation(const CInstallationList& list) {
    setWindowTitle(QString::fromStdString(list.m_strRoot) + u" - tvdata"_qs);
    m_pStack->setCurrentIndex(0);
    m_pNewProject->setEnabled(true);
    m_pClose->setEnabled(true);
    m_pProjects->Show(list.m_arProjects);
}

void CDataWindow::Refresh() {
    Do(u"Reading the projects"_qs, ListInstallation,
       [this](const CInstallationList& list) { ShowInstallation(list); });
}

void CDataWindow::NewProject() {
    auto* pDialog = new CNewProjectDialog(
        m_worker,
        [this](const std::string& strGCBH) {
            Do(u"Reading the projects"_qs, ListInstallation, [this, strGCBH](const CInstallationList& list) {
                ShowInstallation(list);
                m_pProjects->ChooseProject(strGCBH);
            });
        },
        this);
    pDialog->open();
}

void CDataWindow::Import() {
    auto* pDialog = new CImportDialog(
        m_worker, m_pProjects->ChosenProject()->m_project.m_strGCBH,
        [this](const CImportCounts& counts) {
            statusBar()->showMessage(u"Imported. "_qs + CountsLine(counts));
            Refresh();
        },
        this);
    pDialog->open();
}

void CDataWindow::OpenProject() {
    const std::string strGCBH = m_pProjects->ChosenProject()->m_project.m_strGCBH;
    Do(
        u"Opening the project"_qs,
        [strProgram = m_strProgram, strGCBH] { return OpenAsRunning(strProgram, strGCBH); },
        [this, strGCBH](const std::string& strProcess) {
            statusBar()->showMessage(FromGbk(strGCBH) + u" is the running project; process "_qs +
                                     QString::fromStdString(strProcess));
            Refresh();
        });
}

void CDataWindow::CloseProject() {
    Do(u"Closing the running project"_qs, CloseRunning, [this](bool) {
        statusBar()->showMessage(u"No project is running."_qs);
        Refresh();
    });
}

void CDataWindow::CopyResults() {
    m_pTabs->setCurrentWidget(m_pResults);
    m_pResults->Copy();
}

void CDataWindow::ExportResults() {
    m_pTabs->setCurrentWidget(m_pResults);
    m_pResults->Export();
}

void CDataWindow::ShowProject(const CListedProject* pProject) {
    const bool bSound = pProject && pProject->m_strFault.empty();
    m_pImport->setEnabled(bSound);
    m_pOpen->setEnabled(bSound);
    m_pResults->Show({});
    const int nRequest = ++m_nProjectRequest;
    if (pProject && !bSound) statusBar()->showMessage(QString::fromStdString(pProject->m_strFault));
    if (!bSound) return;
    Do(
        u"Reading the results"_qs,
        [strGCBH = pProject->m_project.m_strGCBH] { return ReadProjectResults(strGCBH); },
        [this, nRequest](const std::vector<CRowTexts>& arRows) {
            if (nRequest == m_nProjectRequest) m_pResults->Show(arRows);
        });
}

void CDataWindow::ShowSample(const CListedSample* pSample) {
    const int nRequest = ++m_nSampleRequest;
    if (!pSample) {
        m_pSample->Clear();
        return;
    }
    Do(
        u"Reading the readings"_qs,
        [strGCBH = m_pProjects->ChosenProject()->m_project.m_strGCBH, strZKBH = pSample->m_strZKBH,
         strQYBH = pSample->m_strQYBH] { return ReadSample(strGCBH, strZKBH, strQYBH); },
        [this, nRequest, strSYFF = pSample->m_strSYFF](const CSampleReadings& readings) {
            if (nRequest == m_nSampleRequest) m_pSample->Show(readings, strSYFF);
        });
}
