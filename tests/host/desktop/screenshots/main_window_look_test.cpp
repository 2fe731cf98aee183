#include "tests/host/desktop/screenshots/picture.h"
#include "tests/host/desktop/screenshots/sheet_project.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

void ExpectMainWindow(const CDesktopUser& user, const std::string& strName, const QString& strCaption) {
    user.Act([&] { ExpectGoodLook(user.Desktop().Window(), strName, strCaption); });
}

/// The colour of a grip on the screen, beside the middle, where a band may begin.
QColor GripColor(const CDesktopUser& user, const QPointF& ptDrawing) {
    QColor color;
    user.Act([&] {
        CDrawingView& view = user.Desktop().Window().View();
        const QImage picture = PictureOf(user.Desktop().Window());
        const QPoint at =
            view.mapTo(&user.Desktop().Window(), view.ToWidget(ptDrawing).toPoint() + QPoint(3, 2));
        color = picture.pixelColor(at * picture.devicePixelRatio());
    });
    return color;
}

QAbstractItemView* Popup(const CDesktopUser& user) {
    return user.Desktop().Window().CommandLine().findChild<QLineEdit*>()->completer()->popup();
}

} // namespace

TEST(MainWindowLook, IsGoodAtTheStartOnBothBackgrounds) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        ExpectMainWindow(user, "window-empty-dark", u"Drawing1[*] - Tervo"_qs);
        user.Menu("Dark background");
        ExpectMainWindow(user, "window-empty-light", u"Drawing1[*] - Tervo"_qs);
    });
}

TEST(MainWindowLook, IsGoodWithASheetItsGripsADragAndASelectionBox) {
    const CSheetProject project;
    AtDesktop(project.Start(), [](const CDesktopUser& user) {
        const QString strCaption = u"Drawing1[*] - Tervo"_qs;
        DrawSheet(user);
        ExpectMainWindow(user, "window-sheet-dark", strCaption);
        user.Menu("Dark background");
        ExpectMainWindow(user, "window-sheet", strCaption);
        user.Click(g_ptEnvelope);
        ExpectMainWindow(user, "window-grips", strCaption);
        user.Click(EnvelopeEnd(user));
        user.Move(EnvelopeEnd(user) + QPointF(0.0, 9.0));
        ExpectMainWindow(user, "window-drag", strCaption);
        EXPECT_EQ(GripColor(user, EnvelopeEnd(user)).rgb(), LightColors().m_hotGrip.rgb());
        user.Key(Qt::Key_Escape);
        user.Key(Qt::Key_Escape);
        user.Click({-10.0, 20.0});
        user.Move({90.0, 120.0});
        ExpectMainWindow(user, "window-box", strCaption);
        user.Key(Qt::Key_Escape);
        user.Say("MOVE");
        user.Click(g_ptEnvelope);
        user.Key(Qt::Key_Return);
        user.Click({20.0, 20.0});
        user.Move({80.0, 90.0});
        ExpectMainWindow(user, "window-band", strCaption);
    });
}

TEST(MainWindowLook, ProposesCommandsAboveTheLineThatIsTyped) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Keys("l");
        user.Act([&] {
            QAbstractItemView* const pPopup = Popup(user);
            EXPECT_TRUE(QTest::qWaitForWindowExposed(pPopup));
            pPopup->repaint();
            CMainWindow& window = user.Desktop().Window();
            Keep(PictureOf(window), "window-proposals");
            const QRect line(window.CommandLine().mapToGlobal(QPoint()), window.CommandLine().size());
            EXPECT_TRUE(window.geometry().contains(pPopup->geometry()));
            EXPECT_FALSE(pPopup->geometry().intersects(QRect(line.left(),
                                                             line.bottom() - window.fontMetrics().height(),
                                                             line.width(), window.fontMetrics().height())))
                << "it hides what is typed";
            EXPECT_EQ(pPopup->sizeHintForRow(0) > 0 ? pPopup->model()->rowCount() : 0, 3)
                << "LINE, LIST, LOADMODULE";
            pPopup->hide();
        });
    });
}

TEST(MainWindowLook, TellsAllThatWasSaidInTheTextWindow) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Menu("Commands of the host");
        user.Menu("Text window");
        user.Act([&] {
            for (QPlainTextEdit* const pEdit : user.Desktop().Window().findChildren<QPlainTextEdit*>())
                if (pEdit->isWindow()) ExpectGoodLook(*pEdit, "text-window", u"Text window"_qs);
        });
    });
}
