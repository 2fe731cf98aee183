#include "host/datamanager/window/installation_page.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

CInstallationPage::CInstallationPage() {
    m_pReason->setObjectName(u"Reason"_qs);
    m_pReason->setWordWrap(true);
    m_pReason->setAlignment(Qt::AlignCenter);
    m_pReason->setTextFormat(Qt::PlainText);
    auto* pButtons = new QHBoxLayout;
    pButtons->addStretch();
    pButtons->addWidget(m_pChoose);
    pButtons->addWidget(m_pMake);
    pButtons->addStretch();
    auto* pAll = new QVBoxLayout(this);
    pAll->addStretch();
    pAll->addWidget(m_pReason);
    pAll->addSpacing(12);
    pAll->addLayout(pButtons);
    pAll->addStretch();
}
