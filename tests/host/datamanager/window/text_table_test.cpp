#include "host/datamanager/window/text_table.h"

#include <QtWidgets/QHeaderView>

#include "tests/host/datamanager/window/window_test.h"

namespace {

class TextTable : public CWindowTest {
protected:
    TextTable() { m_view.Show({{{u"ZK1"_qs, u"2"_qs}}, {{u"ZK2"_qs, u"12"_qs}, RowMark::Wrong, u"why"_qs}}); }

    QVariant Data(int nRow, int nColumn, int nRole) const {
        return m_view.model()->data(m_view.model()->index(nRow, nColumn), nRole);
    }

    CTextTableView m_view{u"Some table"_qs, {{u"Borehole"_qs, u"where"_qs}, {u"Count"_qs, {}, true}}};
};

} // namespace

TEST_F(TextTable, ShowsTextsUnderTheirColumns) {
    EXPECT_EQ(Texts(m_view), (QStringList{u"ZK1|2"_qs, u"ZK2|12"_qs}));
    EXPECT_EQ(m_view.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Borehole"_qs);
    EXPECT_EQ(m_view.model()->headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString(), u"where"_qs);
    EXPECT_EQ(Data(1, 0, Qt::ToolTipRole).toString(), u"why"_qs);
    EXPECT_EQ(m_view.accessibleName(), u"Some table"_qs);
}

TEST_F(TextTable, PutsNumbersToTheRight) {
    EXPECT_FALSE(Data(0, 0, Qt::TextAlignmentRole).isValid());
    EXPECT_TRUE(Data(0, 1, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(TextTable, ColoursWhatIsWrong) {
    EXPECT_FALSE(Data(0, 0, Qt::ForegroundRole).isValid());
    EXPECT_GT(Data(1, 0, Qt::ForegroundRole).value<QColor>().red(), 150);
}

TEST_F(TextTable, MarksTheChosenRowUpToTheRightEdge) {
    m_view.resize(500, 200);
    m_view.show();
    m_view.Choose(0);
    const auto colorAt = [&](int nX, int nRow) {
        const QWidget& viewport = *m_view.viewport();
        const int nY = m_view.rowViewportPosition(nRow) + 2;
        return m_view.viewport()->grab().toImage().pixelColor(std::min(nX, viewport.width() - 3), nY);
    };
    const int nEnd = m_view.horizontalHeader()->length();
    ASSERT_LT(nEnd + 10, m_view.viewport()->width()) << "the number column is not stretched";
    EXPECT_EQ(colorAt(500, 0), colorAt(nEnd - 1, 0));
    EXPECT_NE(colorAt(500, 0), colorAt(500, 1));
    m_view.Choose(1);
    EXPECT_EQ(colorAt(500, 1), colorAt(nEnd - 1, 1));
    EXPECT_NE(colorAt(500, 1), colorAt(500, 0));
}

TEST_F(TextTable, ChoosesOneRowByKeys) {
    EXPECT_EQ(m_view.Chosen(), -1);
    m_view.Choose(0);
    EXPECT_EQ(m_view.Chosen(), 0);
    QTest::keyClick(&m_view, Qt::Key_Down);
    EXPECT_EQ(m_view.Chosen(), 1);
    m_view.Choose(2);
    EXPECT_EQ(m_view.Chosen(), -1);
}
