#include "host/console/progress.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/host/desktop/screenshots/picture.h"
#include "tests/host/desktop/screenshots/sheet_project.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProgressDialog>

#include <gtest/gtest.h>

namespace {

void ExpectDialogAndLeave(const CDesktopUser& user, const std::string& strName, const QString& strCaption) {
    InDialog(user, [&] { ExpectGoodLook(CUserHand::Window(), strName, strCaption); });
    InDialog(user, [] { QTest::keyClick(&CUserHand::Window(), Qt::Key_Escape); });
}

} // namespace

TEST(HostDialogsLook, IsGoodOfThoseThatAskForFiles) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Say("OPEN");
        ExpectDialogAndLeave(user, "file-open", u"Open file"_qs);
        user.Say("SAVEAS");
        ExpectDialogAndLeave(user, "file-save", u"Save file"_qs);
        user.Menu("Export...");
        ExpectDialogAndLeave(user, "file-export", u"Export"_qs);
    });
}

TEST(HostDialogsLook, IsGoodOfTheQuestionWhetherToSave) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Say("LINE 0,0 10,10");
        user.Say("CLOSE");
        ExpectDialogAndLeave(user, "box-save-changes", u"Tervo"_qs);
    });
}

TEST(HostDialogsLook, IsGoodOfThePreview) {
    const CSheetProject project;
    AtDesktop(project.Start(), [](const CDesktopUser& user) {
        DrawSheet(user);
        user.Menu("Print preview...");
        ExpectDialogAndLeave(user, "print-preview", u"Print Preview"_qs);
        user.Menu("Print...");
        ExpectDialogAndLeave(user, "print", u"Print"_qs);
    });
}

TEST(HostDialogsLook, IsGoodOfProgress) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        user.Act([&] {
            const QProgressDialog* pProgress = nullptr;
            ASSERT_TRUE(QTest::qWaitFor([&] { // it comes up when the work lasts
                ShowProgress("Plotting", 31, 100);
                pProgress = user.Desktop().Window().findChild<QProgressDialog*>();
                return pProgress && pProgress->isVisible();
            }));
            ExpectGoodLook(const_cast<QProgressDialog&>(*pProgress), "progress", u"Tervo"_qs);
        });
        user.Say("REGEN"); // the work is over
    });
}
