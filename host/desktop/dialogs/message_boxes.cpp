#include "host/desktop/dialogs/message_boxes.h"

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "host/desktop/dialogs/gbk_text.h"
#include "host/desktop/dialogs/window_in_front.h"

namespace {

QMessageBox::Icon IconOf(UINT uStyle) {
    switch (uStyle & MB_ICONMASK) {
    case MB_ICONERROR:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

struct CBoxButton {
    QMessageBox::ButtonRole m_role;
    const char* m_caption;
};

CBoxButton ButtonOf(int nResult) {
    switch (nResult) {
    case IDYES:
        return {QMessageBox::YesRole, "是(&Y)"};
    case IDNO:
        return {QMessageBox::NoRole, "否(&N)"};
    case IDCANCEL:
        return {QMessageBox::RejectRole, "取消"};
    default:
        return {QMessageBox::AcceptRole, "确定"};
    }
}

QString Text(const std::wstring& strText) {
    return QString::fromStdWString(strText).remove(u'\r');
}

} // namespace

int ShowMessageBox(QWidget* pParent, const std::wstring& strText, const std::wstring& strCaption,
                   UINT uStyle) {
    QMessageBox box(IconOf(uStyle), Text(strCaption), Text(strText), QMessageBox::NoButton, pParent);
    box.setTextFormat(Qt::PlainText);
    const std::vector<int> arResults = MessageBoxButtons(uStyle);
    QList<QPushButton*> arButtons;
    for (const int nResult : arResults) {
        const CBoxButton button = ButtonOf(nResult);
        arButtons.append(box.addButton(FromGbk(button.m_caption), button.m_role));
    }
    box.setDefaultButton(arButtons.front());
    box.setEscapeButton(arButtons.back());
    box.exec();
    const auto nPressed = arButtons.indexOf(static_cast<QPushButton*>(box.clickedButton()));
    return nPressed < 0 ? arResults.back() : arResults[nPressed];
}

CMessageBoxHost DesktopMessageBoxes(QWidget* pMainWindow) {
    CMessageBoxHost host;
    host.m_show = [pMainWindow](HWND, const std::wstring& strText, const std::wstring& strCaption,
                                UINT uStyle) {
        return ShowMessageBox(WindowInFront(pMainWindow), strText, strCaption, uStyle);
    };
    return host;
}
