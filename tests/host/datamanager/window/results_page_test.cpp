#include "host/datamanager/window/results_page.h"

#include <QtGui/QClipboard>

#include "tests/host/datamanager/window/window_test.h"

namespace {

class ResultsPage : public CDataWindowTest {
protected:
    ResultsPage() {
        const auto pDatabase =
            OpenDbConnection("Provider=SQLite;Data Source=" + m_program.Root() + "/Projects/A/project.db");
        pDatabase->Execute(
            "INSERT INTO z_c_SanZhou VALUES (1,'ZK2','1','固结排水剪',NULL,NULL,NULL,NULL,NULL,"
            "NULL,NULL,12.350000381,33.5)");
        pDatabase->Execute("INSERT INTO z_c_SanZhou VALUES (1,'ZK10','b,\"c','固结不排水剪','2024.3.9',NULL,"
                           "NULL,20,0.10000000149,-1.5,7,NULL,NULL)");
        Open();
    }
    static QString Clipboard() { return QApplication::clipboard()->text(); }
};

const QString g_strHeader = u"ZKBH\tQYBH\tSYFF\tSYRQ\tUUC\tUUF\tCUC\tCUF\tCUCE\tCUFE\tCDC\tCDF\n"_qs;
const QString g_strFirst = u"ZK2\t1\t固结排水剪\t\t\t\t\t\t\t\t12.35\t33.5\n"_qs;
const QString g_strSecond = u"ZK10\t\"b,\"\"c\"\t固结不排水剪\t2024.3.9\t\t\t20\t0.1\t-1.5\t7\t\t\n"_qs;

} // namespace

TEST_F(ResultsPage, ShowsTheStoredValuesOfTheProject) {
    EXPECT_EQ(Rows(u"Results"_qs), (QStringList{u"ZK2|1|固结排水剪||||||||12.35|33.5"_qs,
                                                u"ZK10|b,\"c|固结不排水剪|2024.3.9|||20|0.1|-1.5|7||"_qs}));
}

TEST_F(ResultsPage, CopiesAllRowsWhereNoneIsChosen) {
    Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Clipboard(), g_strHeader + g_strFirst + g_strSecond);
}

TEST_F(ResultsPage, CopiesTheChosenRows) {
    CTextTableView& table = Table(u"Results"_qs);
    Press(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(table.isVisible());
    table.setFocus();
    table.Choose(0);
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), g_strHeader + g_strSecond);
    QTest::keyClick(&table, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), g_strHeader + g_strFirst + g_strSecond);
}

TEST_F(ResultsPage, ExportsTheTextOfTheCommandLine) {
    const std::string strPath = m_program.Folder().Path("results.csv");
    Press(Qt::Key_E, Qt::ControlModifier);
    TakeFile(strPath);
    AwaitIdle();
    EXPECT_EQ(m_program.Folder().Read("results.csv"),
              m_program.Do("results --root \"$ROOT\" --number A --csv"));
}

TEST_F(ResultsPage, TellsOfAFileThatCannotBeWritten) {
    Press(Qt::Key_E, Qt::ControlModifier);
    TakeFile("/proc/results.csv");
    EXPECT_TRUE(TakeBox().startsWith(u"/proc/results.csv: "_qs));
}
