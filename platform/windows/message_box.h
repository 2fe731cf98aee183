#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/windows/types.h"

// Message boxes, and the few questions about windows that finding a box's owner takes.

inline constexpr UINT MB_OK = 0x0;
inline constexpr UINT MB_OKCANCEL = 0x1;
inline constexpr UINT MB_YESNOCANCEL = 0x3;
inline constexpr UINT MB_YESNO = 0x4;
inline constexpr UINT MB_TYPEMASK = 0xF; ///< the bits that say which buttons there are
inline constexpr UINT MB_ICONERROR = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_ICONMASK = 0xF0; ///< the bits that say which icon it has

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

/// The results of a box's buttons in their order, the one for giving up last. A box with one button only
/// tells.
std::vector<int> MessageBoxButtons(UINT uStyle);

/// What the host does for boxes and windows. A member left empty stands for its default.
struct CMessageBoxHost {
    /// Shows a box and gives the button pressed; by default nothing is shown and the answer is 0.
    std::function<int(HWND hOwner, const std::wstring& strText, const std::wstring& strCaption, UINT uStyle)>
        m_show;
    /// The parent of a child window, null for a window that is no child; by default no window is one.
    std::function<HWND(HWND hWindow)> m_parent;
    /// The popup of a window that was active last; by default the window itself.
    std::function<HWND(HWND hWindow)> m_lastActivePopup;
};

/// Registers the host's part; an empty one takes it back.
void SetMessageBoxHost(CMessageBoxHost host);

/// Shows a box and waits for its button, one of IDOK, IDCANCEL, IDYES, IDNO; 0 when no box could be shown.
/// Null texts are empty ones.
int MessageBoxW(HWND hOwner, const wchar_t* pszText, const wchar_t* pszCaption, UINT uStyle);
int MessageBoxA(HWND hOwner, const char* pszText, const char* pszCaption, UINT uStyle);

/// The parent of a child window; null for a window that is no child.
HWND GetParent(HWND hWindow);
/// Of a window and its popups the one active last.
HWND GetLastActivePopup(HWND hWindow);
