#include "host/datamanager/window/new_project_dialog.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

#include <limits>

#include "host/datamanager/window/data_requests.h"

CNewProjectDialog::CNewProjectDialog(CWorker& worker, CMade fnMade, QWidget* pParent)
    : QDialog(pParent)
    , m_worker(worker)
    , m_fnMade(std::move(fnMade)) {
    setObjectName(u"NewProjectDialog"_qs);
    setWindowTitle(u"New project"_qs);
    setAttribute(Qt::WA_DeleteOnClose);
    LayOut();
    SetBusy(false);
    for (QLineEdit* pInput : {m_pNumber, m_pName})
        connect(pInput, &QLineEdit::textChanged, this, [this] { SetBusy(false); });
    connect(m_pMake, &QPushButton::clicked, this, &CNewProjectDialog::Make);
    connect(m_pCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void CNewProjectDialog::LayOut() {
    m_pNumber->setObjectName(u"Number"_qs);
    m_pName->setObjectName(u"Name"_qs);
    m_pConnect->setObjectName(u"Connect"_qs);
    m_pRefusal->setObjectName(u"Refusal"_qs);
    m_pStandard->setRange(std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
    m_pConnect->setPlaceholderText(u"a database of its own in the project's folder"_qs);
    m_pConnect->setMinimumWidth(360);
    m_pRefusal->setWordWrap(true);
    m_pRefusal->hide();
    auto* pFields = new QFormLayout;
    pFields->addRow(u"&Number"_qs, m_pNumber);
    pFields->addRow(u"N&ame"_qs, m_pName);
    pFields->addRow(u"&Standard"_qs, m_pStandard);
    pFields->addRow(u"C&onnection"_qs, m_pConnect);
    auto* pButtons = new QHBoxLayout;
    pButtons->addStretch();
    pButtons->addWidget(m_pMake);
    pButtons->addWidget(m_pCancel);
    m_pMake->setDefault(true);
    auto* pAll = new QVBoxLayout(this);
    pAll->addLayout(pFields);
    pAll->addWidget(m_pRefusal);
    pAll->addStretch();
    pAll->addLayout(pButtons);
}

void CNewProjectDialog::SetBusy(bool bBusy) {
    m_pMake->setEnabled(!bBusy && !m_pNumber->text().isEmpty() && !m_pName->text().isEmpty());
}

void CNewProjectDialog::Make() {
    CTypedProject typed;
    typed.m_strGCBH = m_pNumber->text().toStdString();
    typed.m_strGCMC = m_pName->text().toStdString();
    typed.m_strConnect = m_pConnect->text().toStdString();
    typed.m_nGCBZ = static_cast<std::int16_t>(m_pStandard->value());
    SetBusy(true);
    // The project is made though the dialog was closed meanwhile.
    m_worker.Do(
        u"Making the project"_qs, [typed] { return MakeTypedProject(typed); },
        [pThis = QPointer<CNewProjectDialog>(this), fnMade = m_fnMade](const std::string& strGCBH) {
            if (pThis) pThis->accept();
            fnMade(strGCBH);
        },
        [pThis = QPointer<CNewProjectDialog>(this)](const QString& strWhy) {
            if (pThis) pThis->ShowRefusal(strWhy);
        });
}

void CNewProjectDialog::ShowRefusal(const QString& strWhy) {
    SetBusy(false);
    m_pRefusal->setText(strWhy);
    m_pRefusal->show();
    m_pNumber->setFocus();
    m_pNumber->selectAll();
}
