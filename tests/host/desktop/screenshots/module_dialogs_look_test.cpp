#include "platform/windows/message_box.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/host/desktop/screenshots/picture.h"
#include "tests/host/desktop/screenshots/sheet_project.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

namespace {

/// Looks at the dialog or box that is open.
void ExpectDialog(const CDesktopUser& user, const std::string& strName, const QString& strCaption) {
    InDialog(user, [&] { ExpectGoodLook(CUserHand::Window(), strName, strCaption); });
}

void Press(const CDesktopUser& user, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    InDialog(user, [&] { CUserHand::Key(key, modifiers); });
}

} // namespace

TEST(ModuleDialogsLook, IsGoodFromTheSelectionToTheStoredDrawing) {
    const CSheetProject project;
    AtDesktop(project.Start(), [](const CDesktopUser& user) {
        user.Say("BREN");
        InDialog(user, [] {
            CUserHand::ClickEntry(1010, 0);
            CUserHand::ClickEntry(1011, 1);
        });
        ExpectDialog(user, "selection", u"生成三轴剪切试验成果图"_qs);
        Press(user, Qt::Key_Escape);
        DrawSheet(user);
        user.Click(g_ptEnvelope);
        const QPointF end = EnvelopeEnd(user);
        user.Drag(end, end + QPointF(0.0, 3.0));
        user.Key(Qt::Key_Escape);
        user.Say("NEW");
        ExpectDialog(user, "box-store-strength", u"Tervo"_qs);
        Press(user, Qt::Key_Return);
        user.Click(g_ptEnvelope);
        ExpectDialog(user, "adopted-values", u"选择采用值入库"_qs);
        Press(user, Qt::Key_Return);
        user.Say("CLOSE");
        user.Say("SAVECHARTS");
        user.Say("BROPEN");
        ExpectDialog(user, "open-drawings", u"查看三轴剪切试验成果图"_qs);
        Press(user, Qt::Key_Escape);
    });
}

TEST(ModuleDialogsLook, IsGoodOfBoxesWithOneTwoAndThreeButtons) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        const struct {
            const char* m_pszName;
            UINT m_uStyle;
        } arBoxes[] = {{"box-one", MB_OK | MB_ICONEXCLAMATION},
                       {"box-two", MB_YESNO | MB_ICONQUESTION},
                       {"box-three", MB_YESNOCANCEL | MB_ICONINFORMATION}};
        for (const auto& box : arBoxes) {
            user.Do([&] {
                QMetaObject::invokeMethod(
                    qApp,
                    [uStyle = box.m_uStyle] {
                        MessageBoxW(nullptr, L"试样ZK1-1-2的曲线已经修改,是否存储?\nThe curves have changed.",
                                    L"提示", uStyle);
                    },
                    Qt::QueuedConnection);
            });
            user.Act([] { EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget(); })); });
            ExpectDialog(user, box.m_pszName, u"提示"_qs);
            Press(user, Qt::Key_Return);
        }
    });
}
