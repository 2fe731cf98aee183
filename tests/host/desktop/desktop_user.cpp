#include "tests/host/desktop/desktop_user.h"

#include "platform/windows/installation_root.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/temp_folder.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>

#include <gtest/gtest.h>

#include <atomic>
#include <iostream>
#include <thread>

namespace {

constexpr std::chrono::seconds g_patience{60};

struct CImpatience : std::runtime_error {
    CImpatience()
        : std::runtime_error("the window did not wait for the user") {}
};

/// At once: QTest's own goes by way of the system's cursor.
void SendMove(QWidget& widget, const QPointF& at, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, buttons, {});
    QApplication::sendEvent(&widget, &move);
}

/// Escape for a box that asks.
void RefuseBox() {
    auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (pBox) QTest::keyClick(pBox, Qt::Key_Escape);
}

QWidget* Focused(CMainWindow& window) {
    return QApplication::focusWidget() ? QApplication::focusWidget() : &window.View();
}

} // namespace

void StartTestQt() {
    if (qApp) return;
    StartWidgets();
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& strText) {
        if (!strText.startsWith(u"This plugin does not support"_qs))
            std::cerr << qFormatLogMessage(type, context, strText).toStdString() << std::endl;
    });
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(u"Fusion"_qs);
}

bool CDesktopUser::IsAwaited() const {
    return m_desktop.Answers().IsWaiting() || QApplication::activeModalWidget();
}

void CDesktopUser::Do(const std::function<void()>& fn) const {
    const auto end = std::chrono::steady_clock::now() + g_patience;
    bool bDone = false;
    while (!bDone) {
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                if (!IsAwaited()) return;
                fn();
                bDone = true;
            },
            Qt::BlockingQueuedConnection);
        if (std::chrono::steady_clock::now() > end) throw CImpatience();
        if (!bDone) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void CDesktopUser::Act(const std::function<void()>& fn) const {
    Do(fn);
    Do([] {}); // what it led to is over
}

void CDesktopUser::Keys(const std::string& strText) const {
    Act([&] {
        for (const QChar c : QString::fromStdString(strText))
            QTest::sendKeyEvent(QTest::Click, Focused(m_desktop.Window()), Qt::Key_unknown, QString(c),
                                Qt::NoModifier);
    });
}

void CDesktopUser::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    Act([&] { QTest::keyClick(Focused(m_desktop.Window()), key, modifiers); });
}

void CDesktopUser::Say(const std::string& strLine) const {
    Keys(strLine);
    Key(Qt::Key_Return);
}

void CDesktopUser::Menu(const std::string& strCaption) const {
    Act([&] {
        for (QAction* const pAction : m_desktop.Window().findChildren<QAction*>())
            if (pAction->text().remove(u'&').toStdString() == strCaption) { // which may open a dialog
                QMetaObject::invokeMethod(pAction, &QAction::trigger, Qt::QueuedConnection);
                return;
            }
        ADD_FAILURE() << "no menu entry " << strCaption;
    });
}

void CDesktopUser::ChooseFile(const std::string& strPath) const {
    Act([&] {
        auto* const pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pDialog) << strPath;
        auto* const pName = pDialog->findChild<QLineEdit*>();
        pName->setText(QString::fromStdString(strPath));
        QTest::keyClick(pName, Qt::Key_Return);
    });
}

void CDesktopUser::Move(const QPointF& at) const {
    Act([&] {
        CDrawingView& view = m_desktop.Window().View();
        SendMove(view, view.ToWidget(at), Qt::NoButton);
    });
}

void CDesktopUser::Click(const QPointF& at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) const {
    Act([&] {
        CDrawingView& view = m_desktop.Window().View();
        QTest::mouseClick(&view, button, modifiers, view.ToWidget(at).toPoint());
    });
}

void CDesktopUser::Drag(const QPointF& from, const QPointF& to, Qt::MouseButton button) const {
    Act([&] {
        CDrawingView& view = m_desktop.Window().View();
        const QPoint start = view.ToWidget(from).toPoint(), end = view.ToWidget(to).toPoint();
        QTest::mousePress(&view, button, {}, start);
        for (int i = 1; i <= 4; ++i) {
            SendMove(view, start + (end - start) * i / 4, button);
        }
        QTest::mouseRelease(&view, button, {}, end);
    });
}

void CDesktopUser::Wheel(const QPointF& at, int nNotches) const {
    Act([&] {
        CDrawingView& view = m_desktop.Window().View();
        const QPointF on = view.ToWidget(at);
        QWheelEvent wheel(on, view.mapToGlobal(on), {}, {0, 120 * nNotches}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&view, &wheel);
    });
}

std::string CDesktopUser::Said() const {
    std::string strText;
    Do([&] { strText = m_desktop.Window().CommandLine().Text().toStdString(); });
    return strText;
}

std::string CDesktopUser::Prompt() const {
    std::string strText;
    Do([&] { strText = m_desktop.Window().statusBar()->findChild<QLabel*>()->text().toStdString(); });
    return strText;
}

int CDesktopUser::Selected() const {
    int nSelected = -1;
    Do([&] { nSelected = static_cast<int>(m_desktop.Window().View().Document()->Selection().size()); });
    return nSelected;
}

std::size_t CDesktopUser::Shown() const {
    std::size_t nShown = 0;
    Do([&] { nShown = m_desktop.Window().View().Document()->Scene().Items().size(); });
    return nShown;
}

void CDesktopUser::Picture(const std::string& strPath) const {
    Do([&] { EXPECT_TRUE(m_desktop.Window().grab().save(QString::fromStdString(strPath))); });
}

void AtDesktop(const CDesktopStart& start, const std::function<void(const CDesktopUser&)>& does) {
    StartTestQt();
    const CTempFolder settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(settings.Path()));
    SetInstallationRoot(start.m_strRoot);
    const std::string strKept = start.m_strKept.empty() ? settings.Path("kept") : start.m_strKept;
    CDesktop desktop(start.m_strRoot, strKept); // a temporary folder's name is ASCII
    std::atomic<bool> bOver = false;
    std::thread user([&] {
        const CDesktopUser acting(desktop);
        try {
            does(acting);
            acting.Do([&] {
                for (const AcApDocument* const pDocument : desktop.Host().m_drawings.Documents())
                    pDocument->database()->SetModified(false);
                desktop.Answers().Start("QUIT");
            });
            while (!bOver) { // a module may ask before its sheets are lost
                QMetaObject::invokeMethod(qApp, RefuseBox, Qt::QueuedConnection);
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
            std::abort(); // nothing else ends the window
        }
    });
    desktop.Run({start.m_strRoot, {}, start.m_strDrawing, start.m_strModule, false});
    bOver = true;
    user.join();
    QCoreApplication::removePostedEvents(qApp, QEvent::MetaCall); // refusals that nothing asked for
}
