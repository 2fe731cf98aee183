#include "host/desktop/dialogs/control_view.h"

#include <QtCore/QSignalBlocker>

CControlView::CControlView(CControl& control, QWidget* pWidget, CUserAct act)
    : m_control(control)
    , m_pWidget(pWidget)
    , m_act(std::move(act)) {
    m_pWidget->setObjectName(QString::number(control.m_nId));
}

void CControlView::Show() {
    const QSignalBlocker blocker(m_pWidget);
    ShowValue();
    m_pWidget->setEnabled(m_control.m_bEnabled);
    m_pWidget->setVisible(m_control.m_bVisible);
}
