#pragma once

#include "host/console/host.h"
#include "host/desktop/command_line.h"
#include "host/desktop/drawing_view.h"
#include "host/desktop/window_actions.h"
#include "host/desktop/window_answers.h"
#include "host/desktop/window_settings.h"
#include "host/desktop/work_progress.h"

#include <QtWidgets/QMainWindow>

class QLabel;
class QTabBar;

/// The main window: the drawings as tabs, the current one's view, the command line below it, menus, toolbars
/// and the status bar. Whatever the user does becomes an answer or a command line.
class CMainWindow final : public QMainWindow, public CPromptWindow {
public:
    CMainWindow();
    ~CMainWindow() override;
    CMainWindow(const CMainWindow&) = delete;
    CMainWindow& operator=(const CMainWindow&) = delete;

    /// Joins it to the run; both outlive the work at the window.
    void Attach(CWindowAnswers& answers, CHost& host);
    /// The run ends: drawings are shown no longer.
    void Detach();

    CDrawingView& View() { return *m_pView; }
    CCommandLine& CommandLine() { return *m_pCommandLine; }

    void ShowText(const std::string& strText) override;
    void BeginQuestion(const CQuestion& question, bool bCommand) override;
    void EndQuestion() override;
    std::optional<std::string> AskByDialog(const CQuestion& question) override;

protected:
    void closeEvent(QCloseEvent* pEvent) override;

private:
    void LayOut();
    CDrawingView::CSinks ViewSinks();
    void Entered(const QString& strLine);
    void Escape();
    void Start(const QString& strCommandLine);
    void Open(const QString& strPath);
    void Do(CWindowDeed deed);
    void Print(std::string (*pfnPrint)(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent));
    void Export();
    void Activate(qsizetype nIndex);
    void ActivateNext(int nStep);
    void TellCommands();
    void SetDark(bool bDark);

    void RefreshDocuments();
    void ForgetClosed();
    void RefreshTabs();
    CDocumentView* CurrentView();
    QStringList CommandNames() const;
    void ShowBusy(bool bBusy);

    CWindowSettings m_settings;
    CWindowAnswers* m_pAnswers = nullptr;
    CHost* m_pHost = nullptr;
    std::map<int, CDocumentView> m_mapViews; // by the number of the drawing
    QTabBar* m_pTabs;
    CDrawingView* m_pView;
    CCommandLine* m_pCommandLine;
    QLabel *m_pPrompt, *m_pCoordinates, *m_pBusy;
    CWindowActions m_actions;
    QString m_strLastCommand;
    CWorkProgress m_progress;
};
