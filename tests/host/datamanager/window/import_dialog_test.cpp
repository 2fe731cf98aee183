#include "host/datamanager/window/import_dialog.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QStatusBar>

#include <filesystem>

#include "tests/host/datamanager/window/window_test.h"

namespace {

class ImportDialog : public CDataWindowTest {
protected:
    ImportDialog() { Open(); }

    void OpenDialog() {
        Press(Qt::Key_I, Qt::ControlModifier);
        Await([&] { return IsOpen(); }, "the dialog is there");
    }
    bool IsOpen() const { return m_pWindow->findChild<QDialog*>(u"ImportDialog"_qs) != nullptr; }
    void PressInDialog(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        PressIn(Find(u"ImportDialog"_qs), key, modifiers);
    }
    /// Adds a file by keys and waits for its check. A mnemonic shows its button down before it clicks it, so
    /// what it brings is waited for.
    void Add(const std::string& strPath) {
        PressInDialog(Qt::Key_A, Qt::AltModifier);
        Await([&] { return m_pWindow->findChild<QFileDialog*>() != nullptr; }, "the file dialog is there");
        TakeFile(strPath);
        AwaitIdle();
    }
    /// Removes the chosen file by keys and waits for the check of the others.
    void Remove() {
        const auto& files = Find<QListWidget>(u"Files"_qs);
        const int nFiles = files.count();
        PressInDialog(Qt::Key_M, Qt::AltModifier);
        Await([&] { return files.count() < nFiles; }, "the file is removed");
        AwaitIdle();
    }
    /// Asks by keys for stored rows to be overwritten and waits for the check.
    void Overwrite() {
        PressInDialog(Qt::Key_O, Qt::AltModifier);
        const auto* pReplace = Find(u"ImportDialog"_qs).findChild<QCheckBox*>();
        Await([&] { return pReplace->isChecked(); }, "rows are to be overwritten");
        AwaitIdle();
    }
    void AwaitClosed() {
        Await([&] { return !IsOpen(); }, "the dialog has gone");
    }
    QPushButton& Button(const QString& strText) const {
        for (auto* pButton : Find(u"ImportDialog"_qs).findChildren<QPushButton*>())
            if (pButton->text() == strText) return *pButton;
        throw std::runtime_error("no button " + strText.toStdString());
    }
    QString State() const { return Find<QLabel>(u"State"_qs).text(); }
    /// What the project's tables hold, as the command line lists it.
    std::string Listed() { return m_program.Do("list --root \"$ROOT\""); }
};

const std::string g_strLayers = "ZKBH,TCCDSD,TCHD,TCMC\n";

} // namespace

TEST_F(ImportDialog, BringsFilesIn) {
    OpenDialog();
    for (const char* pszFile : {"samples.csv", "layers.csv", "readings.csv"})
        Add(Demo(pszFile));
    EXPECT_EQ(State(), u"To come in: readings: 911, samples: 9, layers: 9"_qs);
    EXPECT_TRUE(Rows(u"Remarks"_qs).isEmpty());
    EXPECT_TRUE(Rows(u"Boreholes"_qs).isEmpty());
    PressInDialog(Qt::Key_I, Qt::AltModifier);
    AwaitClosed();
    AwaitIdle();
    EXPECT_EQ(m_pWindow->statusBar()->currentMessage(), u"Imported. readings: 911, samples: 9, layers: 9"_qs);
    EXPECT_EQ(Rows(u"Boreholes"_qs), (QStringList{u"ZK1|3"_qs, u"ZK2|3"_qs, u"ZK10|3"_qs}));
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_c_SanZhouCSXM"), "911\n");
}

TEST_F(ImportDialog, ShowsRefusedRowsAndImportsNothing) {
    const std::string strBefore = Listed();
    OpenDialog();
    Add(m_program.Folder().Write("layers.csv", g_strLayers + "ZK1,4,4,clay\nZK1,x,,sand\nZK1,8,4,clay\n"));
    EXPECT_EQ(
        Rows(u"Remarks"_qs),
        (QStringList{u"layers.csv|3|TCCDSD|\"x\" is no decimal number within the range of a 4-byte float"_qs,
                     u"layers.csv|3|TCHD|the field is empty"_qs}));
    EXPECT_EQ(Rows(u"Preview"_qs),
              (QStringList{u"2|ZK1|4|4|clay"_qs, u"3|ZK1|x||sand"_qs, u"4|ZK1|8|4|clay"_qs}));
    EXPECT_EQ(State(), u"Refusals: 2. Nothing is imported while any row is refused."_qs);
    EXPECT_FALSE(Button(u"&Import"_qs).isEnabled());
    EXPECT_TRUE(Button(u"&Cancel"_qs).isEnabled());
    EXPECT_EQ(Listed(), strBefore);
    Table(u"Remarks"_qs).setFocus();
    QTest::keyClick(&Table(u"Remarks"_qs), Qt::Key_Down);
    EXPECT_EQ(Table(u"Preview"_qs).Chosen(), 1);
}

TEST_F(ImportDialog, ImportsOnceTheRefusedFileIsTakenAway) {
    OpenDialog();
    Add(m_program.Folder().Write("bad.csv", "A,B\n1,2\n"));
    EXPECT_FALSE(Button(u"&Import"_qs).isEnabled());
    Add(m_program.Folder().Write("layers.csv", g_strLayers + "ZK1,4,4,clay\n"));
    EXPECT_FALSE(Button(u"&Import"_qs).isEnabled());
    Remove();
    EXPECT_EQ(State(), u"To come in: readings: 0, samples: 0, layers: 1"_qs);
    PressInDialog(Qt::Key_Return);
    AwaitClosed();
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT ZKBH FROM z_g_TuCeng"), "ZK1\n");
}

TEST_F(ImportDialog, OverwritesStoredRowsWhenAsked) {
    const std::string strPath = m_program.Folder().Write("layers.csv", g_strLayers + "ZK1,4,4,clay\n");
    m_program.Do("import --root \"$ROOT\" --number A '" + strPath + "'");
    m_program.Folder().Write("layers.csv", g_strLayers + "ZK1,4,4,sand\n");
    OpenDialog();
    Add(strPath);
    EXPECT_EQ(Rows(u"Remarks"_qs),
              QStringList{u"layers.csv|2|TCCDSD|a row of this key is stored already"_qs});
    Overwrite();
    EXPECT_TRUE(Rows(u"Remarks"_qs).isEmpty());
    QTest::mouseClick(&Button(u"&Import"_qs), Qt::LeftButton);
    AwaitClosed();
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT TCMC FROM z_g_TuCeng"), "sand\n");
}

TEST_F(ImportDialog, ShowsWarningsAndImportsAllTheSame) {
    OpenDialog();
    Add(m_program.Folder().Write("samples.csv", "ZKBH,QYBH,SYFF\nZK1,1-1,other\n"));
    EXPECT_EQ(Rows(u"Remarks"_qs),
              QStringList{u"samples.csv|2|SYFF|warning: unknown test method \"other\""_qs});
    EXPECT_TRUE(Button(u"&Import"_qs).isEnabled());
}

TEST_F(ImportDialog, SaysOfMoreRemarksThanItShowsHowManyThereAre) {
    std::string strSamples = "ZKBH,QYBH,SYFF\n";
    for (std::size_t i = 0; i <= g_nMostRemarks; ++i)
        strSamples += "ZK1," + std::to_string(i) + ",other\n";
    OpenDialog();
    Add(m_program.Folder().Write("samples.csv", strSamples));
    EXPECT_EQ(static_cast<std::size_t>(Rows(u"Remarks"_qs).size()), g_nMostRemarks);
    EXPECT_EQ(State(), u"To come in: readings: 0, samples: 5001, layers: 0\n"
                       "Of 5001 refusals and warnings 5000 are shown."_qs);
}

TEST_F(ImportDialog, TellsOfAFileThatCannotBeRead) {
    const std::string strPath = m_program.Folder().Write("gone.csv", g_strLayers);
    OpenDialog();
    Add(strPath);
    std::filesystem::remove(strPath);
    Overwrite();
    EXPECT_EQ(State(), QString::fromStdString(strPath + ": the file cannot be read"));
    EXPECT_FALSE(Button(u"&Import"_qs).isEnabled());
}

TEST_F(ImportDialog, CancelsAnImportAndLeavesNothingOfIt) {
    OpenDialog();
    Add(Demo("readings.csv"));
    // Another program holds the lock, so the import is under way for as long as the test needs.
    const auto pOther =
        OpenDbConnection("Provider=SQLite;Data Source=" + m_program.Root() + "/Projects/A/project.db");
    pOther->BeginTransaction();
    PressInDialog(Qt::Key_Return);
    EXPECT_TRUE(Find(u"Progress"_qs).isVisible());
    EXPECT_FALSE(Button(u"&Import"_qs).isEnabled());
    PressInDialog(Qt::Key_Escape);
    EXPECT_EQ(State(), u"Cancelling…"_qs);
    EXPECT_TRUE(IsOpen());
    pOther->RollbackTransaction();
    AwaitIdle();
    EXPECT_EQ(State(), u"the import was cancelled, nothing came in"_qs);
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_c_SanZhouCSXM"), "0\n");
    PressInDialog(Qt::Key_Return); // once more, to the end
    AwaitClosed();
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_c_SanZhouCSXM"), "911\n");
}

TEST_F(ImportDialog, ShowsTheFileOfARemarkThoughAnotherOneWasRemovedSinceTheCheck) {
    const std::string strSound = m_program.Folder().Write("sound.csv", g_strLayers + "ZK1,4,4,clay\n");
    const std::string strWrong = m_program.Folder().Write("wrong.csv", g_strLayers + "ZK2,x,4,clay\n");
    OpenDialog();
    Add(strSound);
    Add(strWrong);
    // Another program holds the lock, so that the next check is under way for as long as the test needs.
    const auto pOther =
        OpenDbConnection("Provider=SQLite;Data Source=" + m_program.Root() + "/Projects/A/project.db");
    pOther->Execute("BEGIN EXCLUSIVE");
    auto& files = Find<QListWidget>(u"Files"_qs);
    files.setCurrentRow(0);
    QTest::mouseClick(&Button(u"Re&move"_qs), Qt::LeftButton);
    Table(u"Remarks"_qs).Choose(0);
    ASSERT_TRUE(files.currentItem());
    EXPECT_EQ(files.currentItem()->text(), QString::fromStdString(strWrong));
    EXPECT_EQ(Table(u"Preview"_qs).Chosen(), 0);
    pOther->Execute("ROLLBACK");
    AwaitIdle();
}

TEST_F(ImportDialog, ShowsWhatOthersWroteSinceTheCheck) {
    const std::string strPath = m_program.Folder().Write("layers.csv", g_strLayers + "ZK1,4,4,clay\n");
    OpenDialog();
    Add(strPath);
    EXPECT_TRUE(Button(u"&Import"_qs).isEnabled());
    m_program.Do("import --root \"$ROOT\" --number A '" + strPath + "'");
    PressInDialog(Qt::Key_Return);
    AwaitIdle();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Rows(u"Remarks"_qs),
              QStringList{u"layers.csv|2|TCCDSD|a row of this key is stored already"_qs});
    EXPECT_EQ(Rows(u"Preview"_qs), QStringList{u"2|ZK1|4|4|clay"_qs});
}

TEST_F(ImportDialog, MayCloseWhileFilesAreChecked) {
    OpenDialog();
    auto& dialog = dynamic_cast<CImportDialog&>(Find<QDialog>(u"ImportDialog"_qs));
    dialog.AddFiles({QString::fromStdString(Demo("readings.csv"))});
    PressIn(dialog, Qt::Key_Escape);
    AwaitIdle();
    AwaitClosed();
}
