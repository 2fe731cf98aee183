#include "host/desktop/dialogs/dialog_presenter.h"

#include "host/desktop/dialogs/dialog_window.h"
#include "host/desktop/dialogs/window_in_front.h"

void CDesktopDialogPresenter::RunModal(CModalWindow& window) {
    CDialogWindow(window, WindowInFront(m_pMainWindow)).Run();
}
