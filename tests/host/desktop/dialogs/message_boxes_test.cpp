#include "host/desktop/dialogs/message_boxes.h"

#include <QtWidgets/QPushButton>

#include <gtest/gtest.h>

#include "tests/host/desktop/dialogs/user_hand.h"

namespace {

class MessageBoxesOnScreen : public testing::Test {
protected:
    MessageBoxesOnScreen() {
        StartWidgets();
        SetMessageBoxHost(DesktopMessageBoxes(nullptr));
    }
    ~MessageBoxesOnScreen() override { SetMessageBoxHost({}); }

    /// The result of a box in which the user does this.
    static int Answer(UINT uStyle, const std::function<void(QMessageBox& box)>& user) {
        int nResult = 0;
        WithBox([&] { nResult = MessageBoxA(nullptr, "是否入库?", "提示", uStyle); }, user);
        return nResult;
    }
    static int AnswerByKey(UINT uStyle, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return Answer(uStyle, [&](QMessageBox& box) { QTest::keyClick(&box, key, modifiers); });
    }
    /// The captions of the buttons, each in brackets.
    static QString Captions(const QMessageBox& box) {
        QString captions;
        for (const auto* pButton : box.findChildren<QPushButton*>())
            captions += QStringLiteral("[") + pButton->text() + QStringLiteral("]");
        return captions;
    }
};

} // namespace

TEST_F(MessageBoxesOnScreen, ShowCaptionTextAndIcon) {
    const struct {
        UINT m_uIcon;
        QMessageBox::Icon m_icon;
    } cases[] = {{0, QMessageBox::NoIcon},
                 {MB_ICONERROR, QMessageBox::Critical},
                 {MB_ICONQUESTION, QMessageBox::Question},
                 {MB_ICONEXCLAMATION, QMessageBox::Warning},
                 {MB_ICONINFORMATION, QMessageBox::Information}};
    for (const auto& each : cases)
        Answer(MB_YESNO | each.m_uIcon, [&](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("提示"));
            EXPECT_EQ(box.text(), QStringLiteral("是否入库?"));
            EXPECT_EQ(box.icon(), each.m_icon);
            box.close();
        });
}

TEST_F(MessageBoxesOnScreen, TakeTheTextAsItStands) {
    WithBox([] { MessageBoxA(nullptr, "<b>一</b>\r\n二", nullptr, MB_OK); },
            [](QMessageBox& box) {
                EXPECT_EQ(box.text(), QStringLiteral("<b>一</b>\n二"));
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                box.close();
            });
}

TEST_F(MessageBoxesOnScreen, HaveTheButtonsOfTheirStyle) {
    const struct {
        UINT m_uStyle;
        QString m_captions;
    } cases[] = {{MB_OK, QStringLiteral("[确定]")},
                 {MB_OKCANCEL, QStringLiteral("[确定][取消]")},
                 {MB_YESNO, QStringLiteral("[是(&Y)][否(&N)]")},
                 {MB_YESNOCANCEL, QStringLiteral("[是(&Y)][否(&N)][取消]")}};
    for (const auto& each : cases)
        Answer(each.m_uStyle, [&](QMessageBox& box) {
            EXPECT_EQ(Captions(box), each.m_captions);
            box.close();
        });
}

TEST_F(MessageBoxesOnScreen, EnterPressesTheFirstButtonAndEscapeGivesUp) {
    const struct {
        UINT m_uStyle;
        int m_nEnter, m_nEscape;
    } cases[] = {{MB_OK, IDOK, IDOK},
                 {MB_OKCANCEL, IDOK, IDCANCEL},
                 {MB_YESNO, IDYES, IDNO},
                 {MB_YESNOCANCEL, IDYES, IDCANCEL}};
    for (const auto& each : cases) {
        EXPECT_EQ(AnswerByKey(each.m_uStyle, Qt::Key_Return), each.m_nEnter) << each.m_uStyle;
        EXPECT_EQ(AnswerByKey(each.m_uStyle, Qt::Key_Escape), each.m_nEscape) << each.m_uStyle;
        EXPECT_EQ(Answer(each.m_uStyle, [](QMessageBox& box) { box.close(); }), each.m_nEscape)
            << each.m_uStyle;
    }
}

TEST_F(MessageBoxesOnScreen, AreAnsweredByTheLettersOfTheirButtonsAndByTheMouse) {
    EXPECT_EQ(AnswerByKey(MB_YESNOCANCEL, Qt::Key_N, Qt::AltModifier), IDNO);
    EXPECT_EQ(AnswerByKey(MB_YESNOCANCEL, Qt::Key_Y, Qt::AltModifier), IDYES);
    EXPECT_EQ(Answer(MB_OKCANCEL,
                     [](QMessageBox& box) {
                         QTest::mouseClick(box.findChildren<QPushButton*>().back(), Qt::LeftButton);
                     }),
              IDCANCEL);
}
