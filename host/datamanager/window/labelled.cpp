#include "host/datamanager/window/labelled.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

QWidget* Labelled(const QString& strLabel, QWidget* pWidget) {
    auto* pBoth = new QWidget;
    auto* pLayout = new QVBoxLayout(pBoth);
    pLayout->setContentsMargins(0, 0, 0, 0);
    auto* pLabel = new QLabel(strLabel);
    pLabel->setBuddy(pWidget);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(pWidget);
    return pBoth;
}
