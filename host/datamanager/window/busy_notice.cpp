#include "host/datamanager/window/busy_notice.h"

#include <QtWidgets/QHBoxLayout>

namespace {
constexpr int g_nDelay = 80; // ms; quick work flickers otherwise
}

CBusyNotice::CBusyNotice() {
    setObjectName(u"Busy"_qs);
    m_pBar->setRange(0, 0);
    m_pBar->setMaximumWidth(120);
    m_pBar->setTextVisible(false);
    auto* pAll = new QHBoxLayout(this);
    pAll->setContentsMargins(0, 0, 0, 0);
    pAll->addWidget(m_pWhat);
    pAll->addWidget(m_pBar);
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    hide();
}

void CBusyNotice::Show(const QString& strWhat) {
    if (strWhat.isEmpty()) {
        m_delay.stop();
        hide();
        return;
    }
    m_pWhat->setText(strWhat + u"…"_qs);
    if (!isVisible() && !m_delay.isActive()) m_delay.start(g_nDelay);
}
