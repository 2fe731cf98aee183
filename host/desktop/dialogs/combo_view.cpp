#include "host/desktop/dialogs/combo_view.h"

#include <QtWidgets/QComboBox>

#include "host/desktop/dialogs/gbk_text.h"
#include "platform/mfc/user_actions.h"

CComboView::CComboView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, new QComboBox(pParent), std::move(act))
    , m_pCombo(static_cast<QComboBox*>(Widget())) {
    QObject::connect(m_pCombo, &QComboBox::activated, Context(),
                     [this](int nEntry) { Act([&] { UserSelect(Handle(), nEntry); }); });
}

void CComboView::ShowValue() {
    int nSelected = -1;
    m_pCombo->clear();
    for (const CListEntry& entry : Model().m_arEntries) {
        if (entry.m_bSelected) nSelected = m_pCombo->count();
        m_pCombo->addItem(FromGbk(entry.m_strText.View()));
    }
    m_pCombo->setCurrentIndex(nSelected);
}
