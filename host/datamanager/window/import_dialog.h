#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>
#include <string>

#include "host/datamanager/window/import_requests.h"
#include "host/datamanager/window/text_table.h"
#include "host/datamanager/window/worker.h"

/// Chooses CSV files, shows what of them would be refused, and brings them into a project. Files are checked
/// as soon as they are chosen; a check or an import under way can be cancelled.
class CImportDialog final : public QDialog {
public:
    using CImported = std::function<void(const CImportCounts& counts)>;

    /// strGCBH is GBK. fnImported hears of an import that was done; the dialog has closed by then.
    CImportDialog(CWorker& worker, std::string strGCBH, CImported fnImported, QWidget* pParent);

    /// Adds files to those chosen, as the file dialog does.
    void AddFiles(const QStringList& arFiles);
    /// Cancels what is under way; closes the dialog where that is no import.
    void reject() override;

private:
    enum class Stage { Idle, Checking, Importing };

    void LayOut();
    void Connect();
    void AskForFiles();
    void RemoveChosenFile();

    [[nodiscard]] CImportTask Task() const;
    /// Begins a stage and gives what it is watched by.
    std::shared_ptr<CImportWatch> Begin(Stage stage, const QString& strWhat);
    void End(const QString& strState);
    void Check();
    void Import();
    void ShowOutcome(const CImportOutcome& outcome);
    void ShowImported(const CImportOutcome& outcome);
    void ShowPreview();
    void ShowRemarkedRow();
    void ShowProgress();

    CWorker& m_worker;
    std::string m_strGCBH;
    CImported m_fnImported;
    Stage m_stage = Stage::Idle;
    std::shared_ptr<CImportWatch> m_pWatch; ///< of the last check or import
    CImportOutcome m_outcome;
    bool m_bMayImport = false; ///< the files chosen were checked and nothing is refused
    QTimer m_progressTimer;

    QListWidget* m_pFiles = new QListWidget;
    QPushButton* m_pAdd = new QPushButton(u"&Add files…"_qs);
    QPushButton* m_pRemove = new QPushButton(u"Re&move"_qs);
    QCheckBox* m_pReplace = new QCheckBox(u"&Overwrite rows that are stored already"_qs);
    CTextTableView* m_pPreview = new CTextTableView(u"Preview"_qs, {});
    CTextTableView* m_pRemarks;
    QLabel* m_pState = new QLabel;
    QProgressBar* m_pProgress = new QProgressBar;
    QPushButton* m_pImport = new QPushButton(u"&Import"_qs);
    QPushButton* m_pCancel = new QPushButton(u"&Cancel"_qs);
};
