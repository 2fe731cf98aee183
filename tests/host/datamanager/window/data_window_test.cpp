#include "host/datamanager/window/data_window.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

#include <filesystem>

#include "platform/windows/installation_root.h"
#include "platform/windows/window_message.h"
#include "tests/host/datamanager/window/window_test.h"

namespace {

class DataWindow : public CDataWindowTest {};

} // namespace

TEST_F(DataWindow, ShowsProjectsBoreholesSamplesAndReadings) {
    OpenDemo();
    EXPECT_EQ(m_pWindow->windowTitle(), QString::fromStdString(m_program.Root()) + u" - tvdata"_qs);
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"A|one|0|"_qs});
    EXPECT_EQ(Rows(u"Boreholes"_qs), (QStringList{u"ZK1|3"_qs, u"ZK2|3"_qs, u"ZK10|3"_qs}));
    EXPECT_EQ(Rows(u"Samples"_qs).front(), u"1-1|不固结不排水剪|93"_qs);
    EXPECT_EQ(Rows(u"Readings"_qs).size(), 93);
    EXPECT_EQ(Rows(u"Readings"_qs)[1], u"1|2|50|75|37.492|1|0|21.9305|19.3625|0|0|0|0"_qs);
}

TEST_F(DataWindow, FollowsTheChosenBoreholeAndSample) {
    OpenDemo();
    Table(u"Boreholes"_qs).setFocus();
    QTest::keyClick(&Table(u"Boreholes"_qs), Qt::Key_Down);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Samples"_qs)[1].section(u'|', 0, 1), u"2-2|固结排水剪"_qs);
    const CTextTableView& samples = Table(u"Samples"_qs);
    QTest::mouseClick(samples.viewport(), Qt::LeftButton, Qt::NoModifier,
                      samples.visualRect(samples.model()->index(1, 0)).center());
    AwaitIdle();
    EXPECT_EQ(QString::number(Rows(u"Readings"_qs).size()), Rows(u"Samples"_qs)[1].section(u'|', 2));
}

TEST_F(DataWindow, KeepsTheChoiceWhenItReadsAnew) {
    OpenDemo();
    QTest::keyClick(&Table(u"Boreholes"_qs), Qt::Key_Down);
    QTest::keyClick(&Table(u"Samples"_qs), Qt::Key_Down);
    AwaitIdle();
    m_program.Do("new --root \"$ROOT\" --number 0 --name two");
    Press(Qt::Key_F5);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Projects"_qs).size(), 2);
    EXPECT_EQ(Table(u"Boreholes"_qs).Chosen(), 1);
    EXPECT_EQ(Table(u"Samples"_qs).Chosen(), 1);
}

TEST_F(DataWindow, TellsOfAProjectThatCannotBeRead) {
    std::filesystem::remove(m_program.Root() + "/Projects/A/project.db");
    Open();
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"A|one|0|cannot be read"_qs});
    EXPECT_TRUE(m_pWindow->statusBar()->currentMessage().contains(u"project.db"_qs));
    EXPECT_FALSE(Action(u"&Import…"_qs).isEnabled());
    EXPECT_FALSE(Action(u"&Open as the running project"_qs).isEnabled());
}

TEST_F(DataWindow, OpensAndClosesTheRunningProject) {
    Open();
    Press(Qt::Key_R, Qt::ControlModifier);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"A|one|0|running"_qs});
    EXPECT_TRUE(FindWindowA("QMDBMANAGERE4", nullptr));
    EXPECT_NE(m_program.Read("Project.ini").find("GCSY=1\n"), std::string::npos);
    Press(Qt::Key_W, Qt::ControlModifier);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"A|one|0|"_qs});
    EXPECT_FALSE(FindWindowA("QMDBMANAGERE4", nullptr));
    EXPECT_NE(m_program.Read("Project.ini").find("GCSY=-1\n"), std::string::npos);
}

TEST_F(DataWindow, TellsWhyAProjectCannotBeOpened) {
    Open();
    std::filesystem::remove_all(m_program.Root() + "/Projects/A");
    Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(TakeBox(), QString::fromStdString("there is no project A in " + m_program.Root()));
}

TEST_F(DataWindow, SaysWhatTakesLongAndStaysAlive) {
    Open();
    const auto pOther =
        OpenDbConnection("Provider=SQLite;Data Source=" + m_program.Root() + "/Projects/A/project.db");
    pOther->Execute("BEGIN EXCLUSIVE");
    Press(Qt::Key_F5);
    Await([&] { return Find(u"Busy"_qs).isVisible(); }, "the notice is there");
    EXPECT_EQ(Find(u"Busy"_qs).findChild<QLabel*>()->text(), u"Reading the projects…"_qs);
    pOther->Execute("ROLLBACK");
    AwaitIdle();
    EXPECT_FALSE(Find(u"Busy"_qs).isVisible());
}

TEST_F(DataWindow, OffersToMakeAnInstallationWhereNoneIs) {
    const std::string strRoot = m_program.Folder().Path("other");
    std::filesystem::create_directory(strRoot);
    SetInstallationRoot(strRoot);
    Open();
    EXPECT_EQ(Find<QLabel>(u"Reason"_qs).text(),
              QString::fromStdString(strRoot + ": there is no installation (no tervo.ini)"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    TakeFile(strRoot);
    AwaitIdle();
    EXPECT_TRUE(std::filesystem::exists(strRoot + "/tervo.ini"));
    EXPECT_EQ(m_pWindow->windowTitle(), QString::fromStdString(strRoot) + u" - tvdata"_qs);
    EXPECT_TRUE(Table(u"Projects"_qs).isVisible());
}

TEST_F(DataWindow, GoesToAnotherInstallationAndStaysWhereThereIsNone) {
    const std::string strOther = m_program.Folder().Path("other");
    m_program.Do("init '" + strOther + "'");
    m_program.Do("new --root '" + strOther + "' --number B --name two");
    const std::string strEmpty = m_program.Folder().Path("empty");
    std::filesystem::create_directory(strEmpty);
    Open();
    Press(Qt::Key_O, Qt::ControlModifier);
    TakeFile(strOther);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"B|two|0|"_qs});
    Press(Qt::Key_O, Qt::ControlModifier);
    TakeFile(strEmpty);
    EXPECT_TRUE(TakeBox().endsWith(u"there is no installation (no tervo.ini)"_qs));
    Press(Qt::Key_F5);
    AwaitIdle();
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"B|two|0|"_qs});
}
