#include "host/desktop/work_progress.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>

namespace {

constexpr std::chrono::milliseconds g_step{50}; // between two looks at what the user does
constexpr int g_nFull = 1000;                   // the bar's length

} // namespace

CWorkProgress::CWorkProgress(QWidget& window, std::chrono::milliseconds quiet)
    : m_window(window)
    , m_quiet(quiet) {}

CWorkProgress::~CWorkProgress() = default;

bool CWorkProgress::Show(const std::string& strWork, std::size_t nDone, std::size_t nAll) {
    if (!m_clock.isValid()) m_clock.start();
    const bool bDone = nDone >= nAll;
    const auto wait = m_pDialog ? std::min(g_step, m_quiet) : m_quiet;
    if (!bDone && std::chrono::milliseconds(m_clock.elapsed()) < wait) return true;
    if (!bDone) Update(strWork, static_cast<double>(nDone) / static_cast<double>(nAll));
    const bool bGivenUp = m_pDialog && m_pDialog->wasCanceled();
    if (bDone || bGivenUp) End();
    return !bGivenUp;
}

void CWorkProgress::Update(const std::string& strWork, double dPart) {
    if (!m_pDialog) Open();
    m_pDialog->setLabelText(QString::fromStdString(strWork));
    m_pDialog->setValue(static_cast<int>(g_nFull * dPart));
    QApplication::processEvents(); // the dialog is modal: nothing else can be begun
    m_clock.start();
}

void CWorkProgress::End() {
    m_clock.invalidate();
    if (!m_pDialog) return;
    m_pDialog.reset();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // what lay under it is shown again
}

void CWorkProgress::Open() {
    m_pDialog = std::make_unique<QProgressDialog>(&m_window);
    m_pDialog->setWindowTitle(u"Tervo"_qs);
    m_pDialog->setWindowModality(Qt::WindowModal);
    m_pDialog->setRange(0, g_nFull);
    m_pDialog->setAutoReset(false);
    m_pDialog->setMinimumDuration(0);
    m_pDialog->show();
}
