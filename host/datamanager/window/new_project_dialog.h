#pragma once

#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <functional>
#include <string>

#include "host/datamanager/window/worker.h"

/// Asks for a new project and makes it. It stays open, with the reason below its fields, when the project is
/// refused.
class CNewProjectDialog final : public QDialog {
public:
    /// Hears the number, GBK, of the project that was made.
    using CMade = std::function<void(const std::string& strGCBH)>;

    CNewProjectDialog(CWorker& worker, CMade fnMade, QWidget* pParent);

private:
    void LayOut();
    void Make();
    void SetBusy(bool bBusy);
    void ShowRefusal(const QString& strWhy);

    CWorker& m_worker;
    CMade m_fnMade;
    QLineEdit* m_pNumber = new QLineEdit;
    QLineEdit* m_pName = new QLineEdit;
    QSpinBox* m_pStandard = new QSpinBox;
    QLineEdit* m_pConnect = new QLineEdit;
    QLabel* m_pRefusal = new QLabel;
    QPushButton* m_pMake = new QPushButton(u"&Make"_qs);
    QPushButton* m_pCancel = new QPushButton(u"&Cancel"_qs);
};
