#include "tests/host/desktop/dialogs/user_hand.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

#include <gtest/gtest.h>

#include <array>

#include "host/console/dialog_text.h"
#include "host/desktop/dialogs/dialog_presenter.h"
#include "host/desktop/dialogs/gbk_text.h"
#include "host/kept_locale.h"
#include "platform/windows/code_page.h"

namespace {

constexpr int g_nMostStops = 100;

// A widget as a line of `show`, without its number and kind.
std::string EntriesOf(const QListWidget& list) {
    std::string entries;
    for (int nRow = 0; nRow < list.count(); ++nRow)
        entries += (list.item(nRow)->isSelected() ? ">" : " ") + list.item(nRow)->text().toStdString();
    return entries;
}

std::string EntriesOf(const QComboBox& combo) {
    std::string entries;
    for (int nRow = 0; nRow < combo.count(); ++nRow)
        entries += (combo.currentIndex() == nRow ? ">" : " ") + combo.itemText(nRow).toStdString();
    return entries;
}

std::string EntriesOf(const CControl& control) {
    std::string entries;
    for (const CListEntry& entry : control.m_arEntries)
        entries += (entry.m_bSelected ? ">" : " ") + ToUtf8(entry.m_strText.View());
    return entries;
}

std::string ShownBy(const QWidget& widget) {
    if (const auto* pList = qobject_cast<const QListWidget*>(&widget)) return EntriesOf(*pList);
    if (const auto* pCombo = qobject_cast<const QComboBox*>(&widget)) return EntriesOf(*pCombo);
    if (const auto* pEdit = qobject_cast<const QLineEdit*>(&widget)) return pEdit->text().toStdString();
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget)) return pLabel->text().toStdString();
    if (const auto* pDate = qobject_cast<const QDateEdit*>(&widget))
        return pDate->date().toString(Qt::ISODate).toStdString();
    const auto& button = dynamic_cast<const QAbstractButton&>(widget);
    return button.text().toStdString() + (button.isChecked() ? "*" : "");
}

std::string HeldBy(const CControl& control) {
    switch (control.m_kind) {
    case CControlKind::List:
    case CControlKind::MultiList:
    case CControlKind::Combo:
        return EntriesOf(control);
    case CControlKind::Date:
        return QDate(static_cast<int>(control.m_date.year()),
                     static_cast<int>(static_cast<unsigned>(control.m_date.month())),
                     static_cast<int>(static_cast<unsigned>(control.m_date.day())))
            .toString(Qt::ISODate)
            .toStdString();
    default:
        return CaptionFromGbk(control.m_strText.View()).toStdString() + (control.m_nCheck != 0 ? "*" : "");
    }
}

// The next widget of the control's number; labels share one.
QWidget* FindWidget(const CControl& control, QList<QWidget*>* pWidgets) {
    const QString strName = QString::number(control.m_nId);
    for (QWidget* pWidget : *pWidgets) {
        if (pWidget->objectName() != strName || pWidget->isVisible() != control.m_bVisible) continue;
        pWidgets->removeOne(pWidget);
        return pWidget;
    }
    return nullptr;
}

bool WaitUntilActive(const QWidget& window) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
}

// A window manager does this when a box closes; here is none.
void ActivateBehindBox() {
    QWidget* const pWindow = QApplication::activeModalWidget();
    if (!pWindow) return;
    pWindow->activateWindow();
    EXPECT_TRUE(WaitUntilActive(*pWindow));
}

} // namespace

void StartWidgets() {
    if (QCoreApplication::instance()) return;
    const CKeptLocale locale;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int s_nArguments = 1;
    static std::array<char, 6> s_szProgram = {"tests"};
    static std::array<char*, 2> s_arArguments = {s_szProgram.data(), nullptr};
    // Never deleted: fonts held by other statics need it to the last.
    [[maybe_unused]] static QApplication& s_application =
        *new QApplication(s_nArguments, s_arArguments.data());
}

QWidget& CUserHand::Window() {
    QWidget* const pWindow = QApplication::activeModalWidget();
    if (!pWindow) throw std::logic_error("there is no window before the user");
    return *pWindow;
}

QWidget& CUserHand::Widget(UINT nId) {
    for (QWidget* pWidget : Window().findChildren<QWidget*>(QString::number(nId)))
        if (pWidget->isVisible()) return *pWidget;
    throw std::logic_error("no control " + std::to_string(nId) + " to be seen");
}

UINT CUserHand::Focused() {
    const QWidget* const pWidget = QApplication::focusWidget();
    return pWidget ? pWidget->objectName().toUInt() : 0;
}

void CUserHand::Key(int nKey, Qt::KeyboardModifiers modifiers) {
    QWidget* const pFocused = QApplication::focusWidget();
    QTest::keyClick(pFocused ? pFocused : &Window(), static_cast<Qt::Key>(nKey), modifiers);
}

void CUserHand::Type(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
}

void CUserHand::Commit(const char* text) {
    QInputMethodEvent event;
    event.setCommitString(FromGbk(text));
    QApplication::sendEvent(QApplication::focusWidget(), &event);
}

void CUserHand::TabTo(UINT nId) {
    for (int i = 0; i < g_nMostStops && Focused() != nId; ++i)
        Key(Qt::Key_Tab);
    EXPECT_EQ(Focused(), nId) << "no Tab leads there";
}

void CUserHand::Click(UINT nId) {
    QWidget& widget = Widget(nId);
    // At its left end, where a check box has its mark.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
}

void CUserHand::ClickEntry(UINT nId, int nRow, Qt::KeyboardModifiers modifiers) {
    auto& list = dynamic_cast<QListWidget&>(Widget(nId));
    const QPoint place = list.visualItemRect(list.item(nRow)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place);
}

void CUserHand::DoubleClickEntry(UINT nId, int nRow) {
    auto& list = dynamic_cast<QListWidget&>(Widget(nId));
    const QPoint place = list.visualItemRect(list.item(nRow)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

int WorkIn(CModalWindow& dialog, const std::function<void()>& user) {
    StartWidgets();
    CDesktopDialogPresenter presenter(nullptr);
    CDialogPresenter* const pFormer = DialogPresenter();
    SetDialogPresenter(&presenter);
    QTimer begin;
    begin.setSingleShot(true);
    QObject::connect(&begin, &QTimer::timeout, [&] {
        auto& window = dynamic_cast<QDialog&>(CUserHand::Window());
        EXPECT_TRUE(WaitUntilActive(window));
        try {
            EXPECT_EQ(DifferencesOnScreen(dialog), "");
            user();
            if (dialog.ContinueModal() && window.isVisible()) {
                EXPECT_EQ(DifferencesOnScreen(dialog), "");
            }
        } catch (const std::logic_error& fault) {
            ADD_FAILURE() << fault.what();
        }
        window.done(0);
    });
    begin.start();
    const int nResult = dialog.DoModal();
    SetDialogPresenter(pFormer);
    return nResult;
}

void WithBox(const std::function<void()>& action, const std::function<void(QMessageBox& box)>& user) {
    bool bShown = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!pBox) return;
        watch.stop();
        bShown = true;
        EXPECT_TRUE(WaitUntilActive(*pBox));
        user(*pBox);
    });
    watch.start();
    action();
    EXPECT_TRUE(bShown) << "no box came up";
    ActivateBehindBox();
}

std::string DifferencesOnScreen(const CModalWindow& dialog) {
    QList<QWidget*> widgets = CUserHand::Window().findChildren<QWidget*>();
    std::string differences;
    for (const CWnd* pItem : VisibleItems(dialog)) {
        const CControl& control = *pItem->GetControl();
        const std::string strName = std::to_string(control.m_nId) + " " + KindName(control.m_kind);
        const QWidget* const pWidget = FindWidget(control, &widgets);
        if (!pWidget) {
            differences += strName + " is missing\n";
        } else if (ShownBy(*pWidget) != HeldBy(control)) {
            differences += strName + " shows " + ShownBy(*pWidget) + ", holds " + HeldBy(control) + "\n";
        } else if (pWidget->isEnabled() != control.m_bEnabled) {
            differences += strName + (control.m_bEnabled ? " is greyed\n" : " is not greyed\n");
        }
    }
    return differences;
}
