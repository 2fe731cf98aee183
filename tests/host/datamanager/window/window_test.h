#pragma once
// The data manager's window on an installation of its own, driven by keys and mouse.

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <functional>
#include <memory>
#include <string>

#include "host/datamanager/window/data_window.h"
#include "tests/support/demo.h"

/// Shows in a failed comparison.
inline void PrintTo(const QString& strText, std::ostream* pOut) {
    *pOut << strText.toStdString();
}

/// Starts Qt without a display, once.
class CWindowTest : public testing::Test {
protected:
    static void SetUpTestSuite();

    /// The rows of a table, fields joined by '|'.
    static QStringList Texts(const QAbstractItemView& view);
    /// Serves events until it holds; a failure after a minute.
    static void Await(const std::function<bool()>& fnHolds, const char* pszWhat);
    /// Makes a window the active one, as nothing else does where there is no window manager.
    static void Activate(QWidget& window);
    /// Presses a key of a window.
    static void PressIn(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

class CDataWindowTest : public CWindowTest {
protected:
    /// Makes an installation with the project A, named "one".
    CDataWindowTest();

    /// Opens the window and waits for its projects.
    void Open();
    /// The same with the demo's files imported into the project.
    void OpenDemo();
    /// Waits until the worker has nothing to do.
    void AwaitIdle();

    template <class Widget = QWidget>
    Widget& Find(const QString& strName) const {
        auto* pFound = m_pWindow->findChild<Widget*>(strName);
        if (!pFound) throw std::runtime_error("no " + strName.toStdString());
        return *pFound;
    }
    CTextTableView& Table(const QString& strName) const {
        return dynamic_cast<CTextTableView&>(Find<QTableView>(strName));
    }
    QStringList Rows(const QString& strName) const { return Texts(Table(strName)); }
    /// The action of a menu.
    QAction& Action(const QString& strText) const;
    /// Presses a key of the main window.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        PressIn(*m_pWindow, key, modifiers);
    }
    /// Types a path into the file dialog that is open and takes it.
    void TakeFile(const std::string& strPath) const;
    /// The text of the box that is open, which is then closed.
    QString TakeBox() const;
    static std::string Demo(const std::string& strName) { return TERVO_DEMO "/" + strName; }

    CProgram m_program;
    std::unique_ptr<CDataWindow> m_pWindow;
};
