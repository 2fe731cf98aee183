#include "host/desktop/dialogs/dialog_window.h"

#include <QtCore/QEvent>

#include "host/desktop/dialogs/dialog_icon.h"
#include "host/desktop/dialogs/gbk_text.h"
#include "platform/mfc/resources.h"

namespace {

QString CaptionOf(const CWnd& model) {
    CString caption;
    model.GetWindowText(caption);
    return FromGbk(caption.View());
}

QIcon IconOf(const CModalWindow& model) {
    const HINSTANCE hResources = AfxGetResourceHandle();
    const CIconTemplate* const pIcon = hResources ? hResources->FindIcon(model.GetIcon(FALSE)) : nullptr;
    return pIcon ? DialogIcon(*pIcon) : QIcon();
}

} // namespace

CDialogWindow::CDialogWindow(CModalWindow& model, QWidget* pParent)
    : QDialog(pParent)
    , m_model(model)
    , m_face(model, this, [this](const std::function<void()>& action) { Act(action); }) {
    setWindowTitle(CaptionOf(model));
    setWindowIcon(IconOf(model));
    m_face.Show();
    m_face.FocusFirst();
}

void CDialogWindow::Run() {
    exec();
    if (m_failure) std::rethrow_exception(m_failure);
}

void CDialogWindow::reject() {
    const CWnd* const pCancel = m_model.GetDlgItem(ID_CANCEL);
    if (pCancel && !pCancel->IsWindowEnabled()) return;
    Act([this] { m_model.OnCommand(ID_CANCEL, BN_CLICKED); });
}

bool CDialogWindow::event(QEvent* pEvent) {
    if (pEvent->type() == QEvent::WindowBlocked) m_face.Show();
    return QDialog::event(pEvent);
}

// No exception may pass through the event loop that calls this.
void CDialogWindow::Act(const std::function<void()>& action) {
    try {
        if (m_model.ContinueModal()) action();
    } catch (...) {
        m_failure = std::current_exception();
    }
    if (m_failure || !m_model.ContinueModal()) return done(0);
    m_face.Show();
    m_face.FocusRefused();
}
