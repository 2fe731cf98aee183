#include "host/datamanager/window/import_dialog.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include "host/datamanager/window/import_tables.h"
#include "host/datamanager/window/labelled.h"
#include "host/window_text.h"

namespace {

constexpr int g_nProgressSteps = 1000;
constexpr int g_nProgressInterval = 50; // ms

/// What a check found, in a sentence.
QString OutcomeText(const CImportOutcome& outcome) {
    QString strText = u"To come in: "_qs + CountsLine(outcome.m_counts);
    if (outcome.m_nRefusals > 0)
        strText = u"Refusals: %1. Nothing is imported while any row is refused."_qs.arg(outcome.m_nRefusals);
    const std::size_t nRemarks = outcome.m_nRefusals + outcome.m_nWarnings;
    if (nRemarks > outcome.m_arRemarks.size())
        strText +=
            u"\nOf %1 refusals and warnings %2 are shown."_qs.arg(nRemarks).arg(outcome.m_arRemarks.size());
    return strText;
}

} // namespace

CImportDialog::CImportDialog(CWorker& worker, std::string strGCBH, CImported fnImported, QWidget* pParent)
    : QDialog(pParent)
    , m_worker(worker)
    , m_strGCBH(std::move(strGCBH))
    , m_fnImported(std::move(fnImported))
    , m_pRemarks(new CTextTableView(u"Remarks"_qs, RemarkColumns())) {
    setObjectName(u"ImportDialog"_qs);
    setWindowTitle(u"Import into "_qs + FromGbk(m_strGCBH));
    setAttribute(Qt::WA_DeleteOnClose);
    LayOut();
    Connect();
    End(u"Choose readings, samples and layers as CSV files."_qs);
    resize(860, 620);
}

void CImportDialog::LayOut() {
    m_pFiles->setObjectName(u"Files"_qs);
    m_pState->setObjectName(u"State"_qs);
    m_pState->setWordWrap(true);
    m_pProgress->setObjectName(u"Progress"_qs);
    m_pProgress->setRange(0, g_nProgressSteps);
    m_pImport->setDefault(true);
    auto* pFileButtons = new QVBoxLayout;
    pFileButtons->addWidget(m_pAdd);
    pFileButtons->addWidget(m_pRemove);
    pFileButtons->addStretch();
    auto* pFiles = new QHBoxLayout;
    pFiles->addWidget(Labelled(u"&Files"_qs, m_pFiles));
    pFiles->addLayout(pFileButtons);
    auto* pTables = new QSplitter(Qt::Vertical);
    pTables->setChildrenCollapsible(false);
    pTables->addWidget(Labelled(u"&Preview of the chosen file"_qs, m_pPreview));
    pTables->addWidget(Labelled(u"Refused &rows and warnings"_qs, m_pRemarks));
    pTables->setStretchFactor(0, 3);
    pTables->setStretchFactor(1, 2);
    auto* pButtons = new QHBoxLayout;
    pButtons->addWidget(m_pProgress);
    pButtons->addStretch();
    pButtons->addWidget(m_pImport);
    pButtons->addWidget(m_pCancel);
    auto* pAll = new QVBoxLayout(this);
    pAll->addLayout(pFiles, 1);
    pAll->addWidget(m_pReplace);
    pAll->addWidget(pTables, 4);
    pAll->addWidget(m_pState);
    pAll->addLayout(pButtons);
}

void CImportDialog::Connect() {
    connect(m_pAdd, &QPushButton::clicked, this, &CImportDialog::AskForFiles);
    connect(m_pRemove, &QPushButton::clicked, this, &CImportDialog::RemoveChosenFile);
    connect(m_pReplace, &QCheckBox::toggled, this, &CImportDialog::Check);
    connect(m_pFiles, &QListWidget::currentRowChanged, this, &CImportDialog::ShowPreview);
    connect(m_pRemarks->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CImportDialog::ShowRemarkedRow);
    connect(m_pImport, &QPushButton::clicked, this, &CImportDialog::Import);
    connect(m_pCancel, &QPushButton::clicked, this, &CImportDialog::reject);
    connect(&m_progressTimer, &QTimer::timeout, this, &CImportDialog::ShowProgress);
}

void CImportDialog::AskForFiles() {
    auto* pDialog = new QFileDialog(this, u"Files to import"_qs, {}, u"CSV files (*.csv);;All files (*)"_qs);
    pDialog->setFileMode(QFileDialog::ExistingFiles);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &QFileDialog::filesSelected, this, &CImportDialog::AddFiles);
    pDialog->open();
}

void CImportDialog::AddFiles(const QStringList& arFiles) {
    for (const QString& strFile : arFiles)
        if (m_pFiles->findItems(strFile, Qt::MatchExactly).isEmpty()) m_pFiles->addItem(strFile);
    if (m_pFiles->currentRow() < 0) m_pFiles->setCurrentRow(0);
    Check();
}

void CImportDialog::RemoveChosenFile() {
    delete m_pFiles->takeItem(m_pFiles->currentRow());
    Check();
}

CImportTask CImportDialog::Task() const {
    CImportTask task{m_strGCBH, {}, m_pReplace->isChecked()};
    for (int i = 0; i < m_pFiles->count(); ++i)
        task.m_arFiles.push_back(m_pFiles->item(i)->text().toStdString());
    return task;
}

std::shared_ptr<CImportWatch> CImportDialog::Begin(Stage stage, const QString& strWhat) {
    if (m_pWatch) m_pWatch->m_bGivenUp = true; // an earlier check, of other files
    m_pWatch = std::make_shared<CImportWatch>();
    m_stage = stage;
    m_pState->setText(strWhat);
    m_pProgress->setValue(0);
    m_pProgress->show();
    m_progressTimer.start(g_nProgressInterval);
    m_pImport->setEnabled(false);
    for (QWidget* pInput : std::initializer_list<QWidget*>{m_pAdd, m_pRemove, m_pReplace})
        pInput->setEnabled(stage != Stage::Importing);
    return m_pWatch;
}

void CImportDialog::End(const QString& strState) {
    m_stage = Stage::Idle;
    m_pState->setText(strState);
    m_progressTimer.stop();
    m_pProgress->hide();
    m_pImport->setEnabled(m_bMayImport);
    m_pCancel->setEnabled(true);
    for (QWidget* pInput : std::initializer_list<QWidget*>{m_pAdd, m_pReplace})
        pInput->setEnabled(true);
    m_pRemove->setEnabled(m_pFiles->count() > 0);
}

void CImportDialog::Check() {
    const auto pWatch = Begin(Stage::Checking, u"Checking the files…"_qs);
    // An answer counts while the dialog is there and no later check has begun.
    const auto answer = [pThis = QPointer<CImportDialog>(this), pWatch](const auto& show) {
        if (pThis && pThis->m_pWatch == pWatch) show(*pThis);
    };
    m_worker.Do(
        u"Checking files"_qs, [task = Task(), pWatch] { return CheckImport(task, *pWatch); },
        [answer](const CImportOutcome& outcome) {
            answer([&](CImportDialog& dialog) { dialog.ShowOutcome(outcome); });
        },
        [answer](const QString& strWhy) {
            answer([&](CImportDialog& dialog) {
                dialog.m_outcome = {};
                dialog.m_bMayImport = false;
                dialog.m_pRemarks->Show({});
                dialog.ShowPreview();
                dialog.End(strWhy);
            });
        });
}

void CImportDialog::Import() {
    const auto pWatch = Begin(Stage::Importing, u"Importing…"_qs);
    m_worker.Do(
        u"Importing"_qs, [task = Task(), pWatch] { return RunImport(task, *pWatch); },
        [pThis = QPointer<CImportDialog>(this)](const CImportOutcome& outcome) {
            if (pThis) pThis->ShowImported(outcome);
        },
        [pThis = QPointer<CImportDialog>(this)](const QString& strWhy) {
            if (pThis) pThis->End(strWhy);
        });
}

void CImportDialog::ShowOutcome(const CImportOutcome& outcome) {
    m_outcome = outcome;
    m_bMayImport = m_pFiles->count() > 0 && outcome.m_nRefusals == 0;
    m_pRemarks->Show(RemarkRows(outcome.m_arRemarks));
    ShowPreview();
    End(m_pFiles->count() > 0 ? OutcomeText(outcome) : u"No file is chosen."_qs);
}

void CImportDialog::ShowImported(const CImportOutcome& outcome) {
    if (outcome.m_nRefusals > 0) { // others wrote since the check
        CImportOutcome shown = outcome;
        shown.m_arPreviews = m_outcome.m_arPreviews;
        ShowOutcome(shown);
        return;
    }
    m_stage = Stage::Idle;
    accept();
    m_fnImported(outcome.m_counts);
}

void CImportDialog::ShowPreview() {
    const std::string strFile = m_pFiles->currentItem() ? m_pFiles->currentItem()->text().toStdString() : "";
    for (const CFilePreview& preview : m_outcome.m_arPreviews)
        if (preview.m_strFile == strFile) {
            m_pPreview->Show(PreviewColumns(preview), PreviewRows(preview, m_outcome.m_arRemarks));
            return;
        }
    m_pPreview->Show({}, {});
}

void CImportDialog::ShowRemarkedRow() {
    const int nRemark = m_pRemarks->Chosen();
    if (nRemark < 0) return;
    const CImportRemark& remark = m_outcome.m_arRemarks[static_cast<std::size_t>(nRemark)];
    const auto arItems = m_pFiles->findItems(QString::fromStdString(remark.m_strFile), Qt::MatchExactly);
    if (arItems.isEmpty()) return; // removed since the check
    m_pFiles->setCurrentItem(arItems.front());
    for (const CFilePreview& preview : m_outcome.m_arPreviews)
        if (preview.m_strFile == remark.m_strFile) m_pPreview->Choose(PreviewRowOf(preview, remark.m_nLine));
}

void CImportDialog::ShowProgress() {
    const std::uint64_t nWhole = m_pWatch->m_nWhole;
    if (nWhole > 0) m_pProgress->setValue(static_cast<int>(m_pWatch->m_nRead * g_nProgressSteps / nWhole));
}

void CImportDialog::reject() {
    if (m_pWatch) m_pWatch->m_bGivenUp = true;
    if (m_stage != Stage::Importing) {
        QDialog::reject();
        return;
    }
    m_pCancel->setEnabled(false);
    m_pState->setText(u"Cancelling…"_qs);
}
