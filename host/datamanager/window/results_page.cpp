#include "host/datamanager/window/results_page.h"

#include <QtGui/QClipboard>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

#include <array>

#include "host/datamanager/results.h"
#include "host/datamanager/window/data_requests.h"
#include "host/datamanager/window/failure_box.h"
#include "host/datamanager/window/field_rows.h"

namespace {

/// What the columns hold, in the order of ResultColumns().
constexpr std::array<const char16_t*, 12> g_arResultMeanings = {
    u"Borehole",
    u"Sample",
    u"Test method",
    u"Date of the test",
    u"c of the unconsolidated undrained test, kPa",
    u"φ of the unconsolidated undrained test, °",
    u"c of the consolidated undrained test, kPa",
    u"φ of the consolidated undrained test, °",
    u"Effective c' of the consolidated undrained test, kPa",
    u"Effective φ' of the consolidated undrained test, °",
    u"c of the consolidated drained test, kPa",
    u"φ of the consolidated drained test, °"};

constexpr std::size_t g_nTexts = 4; // columns before the first number

} // namespace

CResultsPage::CResultsPage(CWorker& worker)
    : m_worker(worker)
    , m_pTable(new CTextTableView(u"Results"_qs, FieldColumns(ResultColumns(), g_arResultMeanings, g_nTexts),
                                  true)) {
    auto* pButtons = new QHBoxLayout;
    pButtons->addStretch();
    pButtons->addWidget(m_pCopy);
    pButtons->addWidget(m_pExport);
    auto* pAll = new QVBoxLayout(this);
    pAll->addWidget(m_pTable);
    pAll->addLayout(pButtons);
    connect(m_pCopy, &QPushButton::clicked, this, &CResultsPage::Copy);
    connect(m_pExport, &QPushButton::clicked, this, &CResultsPage::Export);
    connect(new QShortcut(QKeySequence::Copy, m_pTable, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &CResultsPage::Copy);
    Show({});
}

void CResultsPage::Show(std::vector<CRowTexts> arRows) {
    m_arRows = std::move(arRows);
    m_pTable->Show(FieldRows(m_arRows));
    m_pCopy->setEnabled(!m_arRows.empty());
    m_pExport->setEnabled(!m_arRows.empty());
}

void CResultsPage::Copy() const {
    std::vector<CRowTexts> arChosen;
    for (std::size_t i = 0; i < m_arRows.size(); ++i)
        if (m_pTable->selectionModel()->isRowSelected(static_cast<int>(i))) arChosen.push_back(m_arRows[i]);
    QApplication::clipboard()->setText(
        QString::fromStdString(ResultsText(arChosen.empty() ? m_arRows : arChosen, ResultForm::Tabs)));
}

void CResultsPage::Export() {
    auto* pDialog = new QFileDialog(this, u"Export the results"_qs, {}, u"CSV files (*.csv)"_qs);
    pDialog->setAcceptMode(QFileDialog::AcceptSave);
    pDialog->setDefaultSuffix(u"csv"_qs);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &QFileDialog::fileSelected, this, &CResultsPage::Write);
    pDialog->open();
}

void CResultsPage::Write(const QString& strPath) {
    m_worker.Do(
        u"Writing the results"_qs,
        [strFile = strPath.toStdString(), arRows = m_arRows] { return WriteResults(strFile, arRows); },
        [](bool) {}, [this](const QString& strWhy) { ShowFailure(this, strWhy); });
}
