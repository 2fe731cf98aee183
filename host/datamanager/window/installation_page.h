#pragma once

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

/// Stands in the window's place while there is no installation: says where none is, and offers to choose or
/// make one.
class CInstallationPage final : public QWidget {
public:
    CInstallationPage();

    void SetReason(const QString& strWhy) { m_pReason->setText(strWhy); }

    QPushButton* const m_pChoose = new QPushButton(u"&Choose an installation…"_qs);
    QPushButton* const m_pMake = new QPushButton(u"&Make an installation…"_qs);

private:
    QLabel* m_pReason = new QLabel;
};
