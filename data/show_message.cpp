#include "data/show_message.h"

#include "platform/acad/editor.h"
#include "platform/windows/code_page.h"

namespace {

UINT WithIcon(UINT uStyle) {
    if ((uStyle & MB_ICONMASK) != 0) return uStyle;
    switch (uStyle & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
        return uStyle | MB_ICONEXCLAMATION;
    case MB_YESNOCANCEL:
    case MB_YESNO:
        return uStyle | MB_ICONQUESTION;
    default:
        return uStyle;
    }
}

} // namespace

HWND FindBoxOwner(HWND hWindow) {
    while (const HWND hParent = GetParent(hWindow))
        hWindow = hParent;
    return GetLastActivePopup(hWindow);
}

int ShowMessage(const CString& strText, UINT uStyle) {
    const HWND hOwner = FindBoxOwner(static_cast<HWND>(adsw_acadMainWnd()));
    return MessageBoxW(hOwner, WideFromGbk(strText.View()).c_str(), L"Tervo", WithIcon(uStyle));
}
