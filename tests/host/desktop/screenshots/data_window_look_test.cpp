#include "tests/host/datamanager/window/window_test.h"
#include "tests/host/desktop/screenshots/picture.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QTabWidget>

namespace {

class DataWindowLook : public CDataWindowTest {
protected:
    QString Caption() const { return QString::fromStdString(m_program.Root()) + u" - tvdata"_qs; }
    /// Opens a dialog by keys and gives it.
    QWidget& Opened(Qt::Key key, const QString& strName) {
        Press(key, Qt::ControlModifier);
        Await([&] { return m_pWindow->findChild<QDialog*>(strName) != nullptr; }, "the dialog is there");
        AwaitIdle();
        return Find(strName);
    }
};

} // namespace

TEST_F(DataWindowLook, IsGoodOfReadingsAndResults) {
    ImportDemo(m_program, "A");
    OpenDbConnection("Provider=SQLite;Data Source=" + m_program.Root() + "/Projects/A/project.db")
        ->Execute(
            "INSERT INTO z_c_SanZhou VALUES (1,'ZK1','1-2','固结不排水剪','2024年3月9日',NULL,NULL,20.5,"
            "15.2,12,24.6,NULL,NULL)");
    Open();
    Table(u"Samples"_qs).Choose(1);
    AwaitIdle();
    ExpectGoodLook(*m_pWindow, "tvdata-readings", Caption());
    m_pWindow->findChild<QTabWidget*>()->setCurrentIndex(1);
    ExpectGoodLook(*m_pWindow, "tvdata-results", Caption());
}

TEST_F(DataWindowLook, IsGoodWithoutAnInstallation) {
    std::filesystem::remove_all(m_program.Root());
    Open();
    ExpectGoodLook(*m_pWindow, "tvdata-without", u"tvdata"_qs);
}

TEST_F(DataWindowLook, IsGoodOfTheDialogOfANewProject) {
    Open();
    ExpectGoodLook(Opened(Qt::Key_N, u"NewProjectDialog"_qs), "tvdata-new-project", u"New project"_qs);
}

TEST_F(DataWindowLook, IsGoodOfAnImportWithRefusedRows) {
    const std::string strPath =
        m_program.Folder().Write("layers.csv", "ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4," + Utf8(u8"粉质黏土") +
                                                   "\nZK1,x,,sand\nZK1,8,4,clay\n");
    Open();
    QWidget& dialog = Opened(Qt::Key_I, u"ImportDialog"_qs);
    PressIn(dialog, Qt::Key_A, Qt::AltModifier);
    Await([&] { return m_pWindow->findChild<QFileDialog*>() != nullptr; }, "the file dialog is there");
    ExpectGoodLook(*m_pWindow->findChild<QFileDialog*>(), "tvdata-import-files", u"Files to import"_qs);
    TakeFile(strPath);
    AwaitIdle();
    ExpectGoodLook(dialog, "tvdata-import-refused", u"Import into A"_qs);
}
