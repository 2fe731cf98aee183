#pragma once

#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

#include <vector>

#include "host/datamanager/row_texts.h"
#include "host/datamanager/window/text_table.h"
#include "host/datamanager/window/worker.h"

/// The stored strength values of a project.
class CResultsPage final : public QWidget {
public:
    explicit CResultsPage(CWorker& worker);

    void Show(std::vector<CRowTexts> arRows);
    /// Puts the chosen rows, all where none is, below the columns' names onto the clipboard, tabs between.
    void Copy() const;
    /// Asks for a file and writes all rows to it as CSV; a failure is told in a box.
    void Export();

private:
    void Write(const QString& strPath);

    CWorker& m_worker;
    std::vector<CRowTexts> m_arRows;
    CTextTableView* m_pTable;
    QPushButton* m_pCopy = new QPushButton(u"&Copy"_qs);
    QPushButton* m_pExport = new QPushButton(u"&Export as CSV…"_qs);
};
