#include "host/desktop/dialogs/list_view.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QListWidget>

#include "host/desktop/dialogs/gbk_text.h"
#include "host/desktop/dialogs/selection_change.h"
#include "platform/mfc/user_actions.h"

namespace {

class CListWidget : public QListWidget {
public:
    using QListWidget::QListWidget;
    std::function<void()> m_pressed; ///< before the press has any effect

protected:
    // Beside the entries a press does nothing, where the widget would give up the selection.
    void mousePressEvent(QMouseEvent* pEvent) override {
        if (!itemAt(pEvent->position().toPoint())) return;
        m_pressed();
        QListWidget::mousePressEvent(pEvent);
    }
};

} // namespace

CListView::CListView(CControl& control, QWidget* pParent, CUserAct act)
    : CControlView(control, new CListWidget(pParent), std::move(act))
    , m_pList(static_cast<QListWidget*>(Widget())) {
    m_pList->setSelectionMode(control.m_kind == CControlKind::MultiList ? QListWidget::ExtendedSelection
                                                                        : QListWidget::SingleSelection);
    m_pList->setEditTriggers(QListWidget::NoEditTriggers);
    static_cast<CListWidget*>(m_pList)->m_pressed = [this] { m_bTold = false; };
    QObject::connect(m_pList, &QListWidget::itemSelectionChanged, Context(), [this] { TakeSelection(); });
    QObject::connect(m_pList, &QListWidget::currentRowChanged, Context(), [this] { TakeCaret(); });
    QObject::connect(m_pList, &QListWidget::itemClicked, Context(),
                     [this](QListWidgetItem* pItem) { Click(m_pList->row(pItem)); });
    QObject::connect(m_pList, &QListWidget::itemDoubleClicked, Context(),
                     [this](QListWidgetItem* pItem) { DoubleClick(m_pList->row(pItem)); });
}

void CListView::ShowValue() {
    ShowEntries();
    const auto& entries = Model().m_arEntries;
    for (int nRow = 0; nRow < m_pList->count(); ++nRow)
        if (m_pList->item(nRow)->isSelected() != entries[nRow].m_bSelected)
            m_pList->item(nRow)->setSelected(entries[nRow].m_bSelected);
    if (m_pList->currentRow() != Model().m_nCaret)
        m_pList->setCurrentRow(Model().m_nCaret, QItemSelectionModel::NoUpdate);
}

// Entries that stay keep their rows, so that the list does not scroll back.
void CListView::ShowEntries() {
    const auto& entries = Model().m_arEntries;
    const int nEntries = static_cast<int>(entries.size());
    while (m_pList->count() > nEntries)
        delete m_pList->takeItem(m_pList->count() - 1);
    for (int nRow = 0; nRow < nEntries; ++nRow) {
        if (nRow == m_pList->count()) m_pList->addItem(QString());
        m_pList->item(nRow)->setText(FromGbk(entries[nRow].m_strText.View()));
    }
}

void CListView::TakeSelection() {
    m_bTold = true;
    std::vector<int> arRows;
    for (int nRow = 0; nRow < m_pList->count(); ++nRow)
        if (m_pList->item(nRow)->isSelected()) arRows.push_back(nRow);
    Act([&] {
        ChangeSelection(Handle(), arRows);
        TakeCaret();
    });
}

void CListView::TakeCaret() {
    CControl& model = *Handle().GetControl();
    if (m_pList->currentRow() < static_cast<int>(model.m_arEntries.size()))
        model.m_nCaret = std::max(m_pList->currentRow(), 0);
}

// On an entry that was selected before: it is told all the same.
void CListView::Click(int nRow) {
    if (m_bTold) return;
    Act([&] { UserSelect(Handle(), nRow); });
}

void CListView::DoubleClick(int nRow) {
    m_bTold = true;
    Act([&] { UserDoubleClick(Handle(), nRow); });
}
