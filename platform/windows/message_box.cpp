#include "platform/windows/message_box.h"

#include <utility>

#include "platform/windows/code_page.h"

namespace {
CMessageBoxHost& Host() {
    static CMessageBoxHost s_host;
    return s_host;
}
} // namespace

std::vector<int> MessageBoxButtons(UINT uStyle) {
    switch (uStyle & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return {IDOK, IDCANCEL};
    case MB_YESNOCANCEL:
        return {IDYES, IDNO, IDCANCEL};
    case MB_YESNO:
        return {IDYES, IDNO};
    default:
        return {IDOK};
    }
}

void SetMessageBoxHost(CMessageBoxHost host) {
    Host() = std::move(host);
}

int MessageBoxW(HWND hOwner, const wchar_t* pszText, const wchar_t* pszCaption, UINT uStyle) {
    if (!Host().m_show) return 0;
    return Host().m_show(hOwner, pszText ? pszText : L"", pszCaption ? pszCaption : L"", uStyle);
}

int MessageBoxA(HWND hOwner, const char* pszText, const char* pszCaption, UINT uStyle) {
    return MessageBoxW(hOwner, WideFromGbk(pszText ? pszText : "").c_str(),
                       WideFromGbk(pszCaption ? pszCaption : "").c_str(), uStyle);
}

HWND GetParent(HWND hWindow) {
    return Host().m_parent ? Host().m_parent(hWindow) : nullptr;
}

HWND GetLastActivePopup(HWND hWindow) {
    return Host().m_lastActivePopup ? Host().m_lastActivePopup(hWindow) : hWindow;
}
