#include "host/datamanager/window/text_table.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

namespace {

constexpr int g_nMeasuredRows = 100; // all rows of a long table would take too long
constexpr int g_nWidestColumn = 420; // pixels
constexpr int g_nColumnGap = 10;     // pixels

QVariant MarkLook(RowMark mark, int nRole) {
    if (nRole == Qt::FontRole && mark == RowMark::Chosen) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (nRole == Qt::ForegroundRole && mark == RowMark::Wrong) {
        const bool bDark = QApplication::palette().base().color().lightness() < 128;
        return QColor(bDark ? 0xFF8A80 : 0xB00020);
    }
    return {};
}

} // namespace

void CTextTable::SetColumns(std::vector<CTextColumn> arColumns) {
    beginResetModel();
    m_arRows.clear();
    m_arColumns = std::move(arColumns);
    endResetModel();
}

void CTextTable::SetRows(std::vector<CTextRow> arRows) {
    beginResetModel();
    m_arRows = std::move(arRows);
    endResetModel();
}

int CTextTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_arRows.size());
}

int CTextTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_arColumns.size());
}

bool CTextTable::EndsWithNumber() const {
    return !m_arColumns.empty() && m_arColumns.back().m_bNumber;
}

QVariant CTextTable::data(const QModelIndex& index, int nRole) const {
    const CTextRow& row = m_arRows[static_cast<std::size_t>(index.row())];
    if (nRole == Qt::DisplayRole) return row.m_arTexts.value(index.column());
    if (nRole == Qt::ToolTipRole) return row.m_strHint;
    if (nRole == Qt::TextAlignmentRole && m_arColumns[static_cast<std::size_t>(index.column())].m_bNumber)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return MarkLook(row.m_mark, nRole);
}

QVariant CTextTable::headerData(int nSection, Qt::Orientation orientation, int nRole) const {
    if (orientation == Qt::Vertical) return QAbstractTableModel::headerData(nSection, orientation, nRole);
    const CTextColumn& column = m_arColumns[static_cast<std::size_t>(nSection)];
    if (nRole == Qt::DisplayRole) return column.m_strName;
    if (nRole == Qt::ToolTipRole) return column.m_strHint;
    if (nRole == Qt::TextAlignmentRole)
        return QVariant((column.m_bNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return {};
}

CTextTableView::CTextTableView(const QString& strName, std::vector<CTextColumn> arColumns, bool bMany) {
    setObjectName(strName);
    setAccessibleName(strName);
    m_table.SetColumns(std::move(arColumns));
    setModel(&m_table);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(bMany ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setResizeContentsPrecision(g_nMeasuredRows);
    horizontalHeader()->setMaximumSectionSize(g_nWidestColumn);
    FitColumns();
}

void CTextTableView::FitColumns() {
    horizontalHeader()->setStretchLastSection(false); // its width would count as the texts'
    resizeColumnsToContents();
    for (int i = 0; i < m_table.columnCount(); ++i)
        setColumnWidth(i, columnWidth(i) + g_nColumnGap);
    horizontalHeader()->setStretchLastSection(!m_table.EndsWithNumber());
}

void CTextTableView::Show(std::vector<CTextRow> arRows) {
    m_table.SetRows(std::move(arRows));
    FitColumns();
}

void CTextTableView::Show(std::vector<CTextColumn> arColumns, std::vector<CTextRow> arRows) {
    m_table.SetColumns(std::move(arColumns));
    Show(std::move(arRows));
}

void CTextTableView::paintEvent(QPaintEvent* pEvent) {
    if (m_table.EndsWithNumber()) PaintRowEnds();
    QTableView::paintEvent(pEvent);
}

void CTextTableView::PaintRowEnds() {
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.viewItemPosition = QStyleOptionViewItem::End;
    const int nFrom = horizontalHeader()->length() - horizontalHeader()->offset();
    const int nFirst = rowAt(0), nLast = rowAt(viewport()->height());
    for (int nRow = std::max(nFirst, 0); nRow < (nLast < 0 ? m_table.rowCount() : nLast + 1); ++nRow) {
        option.rect = QRect(nFrom, rowViewportPosition(nRow), viewport()->width() - nFrom, rowHeight(nRow));
        option.features.setFlag(QStyleOptionViewItem::Alternate, nRow % 2 == 1);
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isRowSelected(nRow));
        option.state.setFlag(QStyle::State_Active, hasFocus() || isActiveWindow());
        style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
        style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, this);
    }
}

void CTextTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    viewport()->update(); // with the ends of the rows
}

int CTextTableView::Chosen() const {
    const QModelIndexList arRows = selectionModel()->selectedRows();
    return arRows.isEmpty() ? -1 : arRows.front().row();
}

void CTextTableView::Choose(int nRow) {
    if (nRow < 0 || nRow >= m_table.rowCount()) {
        clearSelection();
        return;
    }
    selectRow(nRow);
    scrollTo(m_table.index(nRow, 0));
}
