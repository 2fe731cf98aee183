#include "host/desktop/desktop.h"

#include "host/console/command_runner.h"
#include "host/desktop/kept_drawings.h"

#include <QtCore/QTimer>

namespace {

constexpr std::chrono::seconds g_autosaveInterval{30};

} // namespace

CDesktop::CDesktop(const std::string& strRootGbk, const std::filesystem::path& autosaveFolder)
    : m_answers(m_window)
    , m_dialogs(m_window)
    , m_session(m_answers, strRootGbk)
    , m_autosave(autosaveFolder) {
    m_window.Attach(m_answers, Host());
}

CDesktop::~CDesktop() {
    m_window.Detach();
}

void CDesktop::Run(const CProgramOptions& options) {
    m_window.show();
    if (const std::optional<std::string> reason = m_session.LoadModule(options.m_strModule))
        m_answers.Report(*reason);
    if (const std::optional<std::string> reason = m_session.OpenDrawing(options.m_strDrawing))
        m_answers.Report(*reason);
    OfferKeptDrawings(Host(), m_autosave, &m_window);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &m_window, [this] { Autosave(); });
    timer.start(g_autosaveInterval);
    RunCommands(Host());
    timer.stop();
    m_window.hide();
}

void CDesktop::Autosave() {
    const bool bIdle = m_answers.IsWaiting() && m_answers.IsAtCommandPrompt();
    if (!bIdle || m_nCommandsSaved == m_answers.CommandsBegun()) return;
    m_nCommandsSaved = m_answers.CommandsBegun();
    if (const std::optional<std::string> reason = m_autosave.Save(Host().m_drawings))
        m_answers.Report(*reason);
}
