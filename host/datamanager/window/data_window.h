#pragma once

#include <QtGui/QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabWidget>

#include <string>

#include "host/datamanager/window/busy_notice.h"
#include "host/datamanager/window/data_requests.h"
#include "host/datamanager/window/installation_page.h"
#include "host/datamanager/window/project_panel.h"
#include "host/datamanager/window/report_listener.h"
#include "host/datamanager/window/results_page.h"
#include "host/datamanager/window/sample_page.h"
#include "host/datamanager/window/worker.h"

/// The data manager's window on the installation in force.
class CDataWindow final : public QMainWindow {
public:
    /// strProgram is this program's file, UTF-8, run to open a project.
    explicit CDataWindow(std::string strProgram);
    /// Whether work is under way whose result is not shown yet.
    [[nodiscard]] bool IsBusy() const { return m_worker.IsBusy(); }

private:
    void MakeActions();
    QAction* AddAction(QMenu* pMenu, const QString& strText, const QKeySequence& keys,
                       void (CDataWindow::*pfnCall)());
    void MakePages();

    void ChooseInstallation();
    void MakeInstallation();
    /// Asks for a folder; the installation there, or made there, comes into force.
    void AskForFolder(const QString& strTitle, CInstallationList (*pfnGo)(const std::string& strRoot));
    void NewProject();
    void Import();
    void OpenProject();
    void CloseProject();
    void Refresh();
    void CopyResults();
    void ExportResults();

    void ShowInstallation(const CInstallationList& list);
    void ShowProject(const CListedProject* pProject);
    void ShowSample(const CListedSample* pSample);
    /// Begins work whose failure is told in a box.
    template <class Work, class Done>
    void Do(const QString& strWhat, Work fnWork, Done fnDone);

    std::string m_strProgram;
    QAction* m_pNewProject = nullptr;
    QAction* m_pImport = nullptr;
    QAction* m_pOpen = nullptr;
    QAction* m_pClose = nullptr;
    CBusyNotice* m_pBusy = new CBusyNotice;
    QStackedWidget* m_pStack = new QStackedWidget;
    CInstallationPage* m_pWithout = new CInstallationPage;
    QTabWidget* m_pTabs = new QTabWidget;
    CProjectPanel* m_pProjects;
    CSamplePage* m_pSample = new CSamplePage;
    CResultsPage* m_pResults = new CResultsPage(m_worker);
    int m_nProjectRequest = 0, m_nSampleRequest = 0; ///< answers to earlier ones are stale
    CReportListener m_reports;                       ///< outlives the worker, which reports
    CWorker m_worker;
};
