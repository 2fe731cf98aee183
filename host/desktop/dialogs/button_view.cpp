#include "host/desktop/dialogs/button_view.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <algorithm>

#include "host/desktop/dialogs/gbk_text.h"
#include "platform/mfc/radio_group.h"
#include "platform/mfc/user_actions.h"

namespace {

QAbstractButton* MakeButton(const CControl& control, QWidget* pParent) {
    if (control.m_kind == CControlKind::Check) return new QCheckBox(pParent);
    if (control.m_kind == CControlKind::Radio) return new QRadioButton(pParent);
    auto* pButton = new QPushButton(pParent);
    pButton->setDefault((control.m_nFlags & CONTROL_DEFAULT) != 0);
    return pButton;
}

// The only marked one of a group does not let itself be unmarked.
void Uncheck(QAbstractButton* pButton) {
    if (pButton->group()) pButton->group()->setExclusive(false);
    pButton->setChecked(false);
    if (pButton->group()) pButton->group()->setExclusive(true);
}

// Tab leads to the marked one of a group, and past the others, which the arrows reach.
bool IsPassedByTab(const CWnd& radio) {
    const std::vector<CWnd*> group = RadioGroup(radio);
    const bool bMarked = std::any_of(group.begin(), group.end(),
                                     [](const CWnd* pOther) { return pOther->GetControl()->m_nCheck != 0; });
    return bMarked && radio.GetControl()->m_nCheck == 0;
}

} // namespace

CButtonView::CButtonView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, MakeButton(control, pParent), std::move(act))
    , m_pButton(static_cast<QAbstractButton*>(Widget())) {
    QObject::connect(m_pButton, &QAbstractButton::clicked, Context(), [this] { Press(); });
}

void CButtonView::ShowValue() {
    m_pButton->setText(CaptionFromGbk(Model().m_strText.View()));
    if (!m_pButton->isCheckable()) return;
    if (Model().m_nCheck != 0) {
        m_pButton->setChecked(true);
    } else if (m_pButton->isChecked()) {
        Uncheck(m_pButton);
    }
    if (Model().m_kind == CControlKind::Radio)
        m_pButton->setFocusPolicy(IsPassedByTab(Handle()) ? Qt::ClickFocus : Qt::StrongFocus);
}

// A radio button that is marked already stays so, and nothing happens.
void CButtonView::Press() {
    if (Model().m_kind == CControlKind::Radio && Model().m_nCheck != 0) return;
    Act([this] { UserClick(Handle()); });
}
