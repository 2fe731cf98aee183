#pragma once

#include "host/console/program_options.h"
#include "host/console/session.h"
#include "host/desktop/autosave.h"
#include "host/desktop/main_window.h"
#include "host/desktop/window_dialogs.h"

/// A run of the program at a window. Needs a QApplication.
class CDesktop {
public:
    /// strRootGbk is the installation's root. Copies of changed drawings are kept in the autosave folder.
    CDesktop(const std::string& strRootGbk, const std::filesystem::path& autosaveFolder);
    ~CDesktop();
    CDesktop(const CDesktop&) = delete;
    CDesktop& operator=(const CDesktop&) = delete;

    /// Shows the window and works until the user quits.
    void Run(const CProgramOptions& options);

    CMainWindow& Window() { return m_window; }
    CWindowAnswers& Answers() { return m_answers; }
    CHost& Host() { return m_session.Host(); }

    /// Keeps copies of the changed drawings now, if a command ran since the last time and none asks now.
    void Autosave();

private:
    CMainWindow m_window;
    CWindowAnswers m_answers;
    CWindowDialogs m_dialogs;
    CSession m_session;
    CAutosave m_autosave;
    int m_nCommandsSaved = 0;
};
