#pragma once

#include <QtCore/QAbstractTableModel>
#include <QtCore/QStringList>
#include <QtWidgets/QTableView>

#include <vector>

/// What a row of a table is marked as.
enum class RowMark { None, Chosen, Wrong };

struct CTextRow {
    QStringList m_arTexts; ///< one a column
    RowMark m_mark = RowMark::None;
    QString m_strHint = {}; ///< its tool tip
};

struct CTextColumn {
    QString m_strName;
    QString m_strHint = {}; ///< the header's tool tip
    bool m_bNumber = false;
};

/// A table of texts to look at.
class CTextTable final : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(std::vector<CTextColumn> arColumns);
    void SetRows(std::vector<CTextRow> arRows);
    /// Whether the last column holds numbers, which stand at the right: it is not stretched then.
    [[nodiscard]] bool EndsWithNumber() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

private:
    std::vector<CTextColumn> m_arColumns;
    std::vector<CTextRow> m_arRows;
};

/// A view of a text table: whole rows are chosen, one unless bMany, Tab leaves it. The object's name is also
/// what a screen reader says.
class CTextTableView final : public QTableView {
public:
    CTextTableView(const QString& strName, std::vector<CTextColumn> arColumns, bool bMany = false);

    /// Shows these rows, none chosen, columns as wide as their texts.
    void Show(std::vector<CTextRow> arRows);
    /// The same with other columns.
    void Show(std::vector<CTextColumn> arColumns, std::vector<CTextRow> arRows);
    /// The chosen row, the first of several; -1 where none is.
    int Chosen() const;
    /// Chooses a row and brings it into sight; none for one that is not there.
    void Choose(int nRow);

protected:
    /// Rows go on to the right edge, behind a last column that is not stretched.
    void paintEvent(QPaintEvent* pEvent) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void FitColumns();
    void PaintRowEnds();

    CTextTable m_table;
};
