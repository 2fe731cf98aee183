#include "tests/host/datamanager/window/window_test.h"

#include "host/kept_locale.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>

#include <array>

namespace {
constexpr int g_nPatience = 60000; // ms
}

void CWindowTest::SetUpTestSuite() {
    if (QCoreApplication::instance()) return;
    const CKeptLocale locale;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static std::array<char, 7> s_szProgram = {"tvdata"};
    static std::array<char*, 2> s_arArguments = {s_szProgram.data(), nullptr};
    static int s_nArguments = 1;
    // Never deleted: fonts held by other statics need it to the last.
    [[maybe_unused]] static QApplication& s_application =
        *new QApplication(s_nArguments, s_arArguments.data());
}

QStringList CWindowTest::Texts(const QAbstractItemView& view) {
    const QAbstractItemModel& model = *view.model();
    QStringList arRows;
    for (int nRow = 0; nRow < model.rowCount(); ++nRow) {
        QStringList arFields;
        for (int i = 0; i < model.columnCount(); ++i)
            arFields.append(model.data(model.index(nRow, i)).toString());
        arRows.append(arFields.join(u'|'));
    }
    return arRows;
}

void CWindowTest::Await(const std::function<bool()>& fnHolds, const char* pszWhat) {
    EXPECT_TRUE(QTest::qWaitFor(fnHolds, g_nPatience)) << pszWhat;
}

void CWindowTest::Activate(QWidget& window) {
    window.activateWindow();
    Await([&] { return window.isActiveWindow(); }, "the window is active");
}

void CWindowTest::PressIn(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Activate(window);
    QTest::keyClick(&window, key, modifiers);
}

CDataWindowTest::CDataWindowTest() {
    m_program.Do("init \"$ROOT\"");
    m_program.Do("new --root \"$ROOT\" --number A --name one");
}

void CDataWindowTest::Open() {
    m_pWindow = std::make_unique<CDataWindow>(TERVO_BIN "/tvdata");
    m_pWindow->show();
    Activate(*m_pWindow);
    AwaitIdle();
}

void CDataWindowTest::OpenDemo() {
    ImportDemo(m_program, "A");
    Open();
}

void CDataWindowTest::AwaitIdle() {
    Await([&] { return !m_pWindow->IsBusy(); }, "the worker has done its work");
}

QAction& CDataWindowTest::Action(const QString& strText) const {
    for (QAction* pAction : m_pWindow->findChildren<QAction*>())
        if (pAction->text() == strText) return *pAction;
    throw std::runtime_error("no action " + strText.toStdString());
}

void CDataWindowTest::TakeFile(const std::string& strPath) const {
    auto* pDialog = m_pWindow->findChild<QFileDialog*>();
    ASSERT_TRUE(pDialog);
    auto* pEdit = pDialog->findChild<QLineEdit*>(u"fileNameEdit"_qs);
    ASSERT_TRUE(pEdit);
    pEdit->setText(QString::fromStdString(strPath)); // keys would be completed on their way
    QTest::keyClick(pDialog, Qt::Key_Return);
    Await([&] { return !m_pWindow->findChild<QFileDialog*>(); }, "the file dialog has gone");
}

QString CDataWindowTest::TakeBox() const {
    Await([&] { return m_pWindow->findChild<QMessageBox*>() != nullptr; }, "a box is there");
    auto* pBox = m_pWindow->findChild<QMessageBox*>();
    if (!pBox) return {};
    const QString strText = pBox->text();
    QTest::keyClick(pBox, Qt::Key_Return);
    Await([&] { return !m_pWindow->findChild<QMessageBox*>(); }, "the box has gone");
    return strText;
}
