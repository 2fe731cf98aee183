#include "host/desktop/dialogs/label_view.h"

#include <QtWidgets/QLabel>

#include "host/desktop/dialogs/gbk_text.h"

CLabelView::CLabelView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, new QLabel(pParent), std::move(act))
    , m_pLabel(static_cast<QLabel*>(Widget())) {
    m_pLabel->setTextFormat(Qt::PlainText);
    m_pLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void CLabelView::ShowValue() {
    m_pLabel->setText(CaptionFromGbk(Model().m_strText.View()));
}
