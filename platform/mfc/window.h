#pragma once
// Windows as a model: what controls hold and which handlers they run. Nothing here draws; a presenter does.

#include <chrono>
#include <memory>
#include <span>
#include <vector>

#include "platform/mfc/dialog_template.h"
#include "platform/mfc/string.h"

class CDataExchange;
class CWnd;

/// Numbers of the buttons that close a dialog; also what DoModal gives.
inline constexpr UINT ID_OK = 1;
inline constexpr UINT ID_CANCEL = 2;
inline constexpr UINT ID_HELP = 9;

/// Notification codes of the controls.
inline constexpr int BN_CLICKED = 0;
inline constexpr int LBN_SELCHANGE = 1;
inline constexpr int LBN_DBLCLK = 2;
inline constexpr int CBN_SELCHANGE = 1;
inline constexpr int CBN_DROPDOWN = 7;
inline constexpr int CBN_CLOSEUP = 8;
inline constexpr int CBN_SELENDOK = 9;
inline constexpr int EN_CHANGE = 0x300;
inline constexpr int EN_UPDATE = 0x400;
inline constexpr int DTN_DATETIMECHANGE = -759;

/// One row of a message map: a notification of a control, and the method of the dialog that takes it.
struct CMessageEntry {
    using CHandler = void (CWnd::*)();

    template <class T>
    CMessageEntry(UINT nId, int nCode, void (T::*pHandler)())
        : m_nId(nId)
        , m_nCode(nCode)
        , m_pHandler(static_cast<CHandler>(pHandler)) {}

    UINT m_nId;
    int m_nCode;
    CHandler m_pHandler;
};

struct CListEntry {
    CString m_strText;
    bool m_bSelected = false;
};

/// What a window holds while it exists. CWnd objects are its handles.
struct CControl {
    UINT m_nId = 0;
    CControlKind m_kind = CControlKind::Dialog;
    CControlPlace m_place;
    unsigned m_nFlags =
        CONTROL_PLAIN; ///< as the template has them; enabled, visible and read-only stand below
    CString m_strText; ///< an edit field's text, any other window's caption
    bool m_bEnabled = true;
    bool m_bVisible = true;
    bool m_bReadOnly = false;
    int m_nCheck = 0;
    std::vector<CListEntry> m_arEntries;  ///< of a list or combo box
    int m_nCaret = 0;                     ///< entry of a list box that has the focus, clicked last
    std::chrono::year_month_day m_date{}; ///< of a date field; today at first
    /// Of a dialog: the control whose text was refused and which is to have the focus; who gives it the focus
    /// sets this to 0 again.
    UINT m_nFocus = 0;
    CWnd* m_pParent = nullptr;
    CWnd* m_pHandle = nullptr; ///< the object that GetDlgItem gives
};

struct AFX_CMDHANDLERINFO;

/// A window or control. Before its window exists, and after, questions answer "nothing" and changes do
/// nothing.
class CWnd {
public:
    CWnd() = default;
    virtual ~CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// What the window holds; null while there is none.
    CControl* GetControl() const { return m_pControl.get(); }
    UINT GetDlgCtrlID() const { return m_pControl ? m_pControl->m_nId : 0; }
    CWnd* GetParent() const { return m_pControl ? m_pControl->m_pParent : nullptr; }
    /// The control of that number on this window; null when there is none.
    virtual CWnd* GetDlgItem(UINT nId) const;

    /// Nonzero when the window was disabled before.
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const { return m_pControl && m_pControl->m_bEnabled; }
    /// 0 hides, any other value shows. Nonzero when the window was visible before.
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const { return m_pControl && m_pControl->m_bVisible; }

    virtual void SetWindowText(const char* text);
    virtual void GetWindowText(CString& text) const;

    /// Makes this object the handle of a control of a dialog. Zero when the dialog has no such control.
    BOOL SubclassDlgItem(UINT nId, CWnd* pParent);

    /// Moves values from the controls to the variables (TRUE) or back. Zero when a control's text was
    /// refused; that control is to have the focus then.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    /// Hands a notification to the handler of the message map. Zero when there is none.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    virtual void DoDataExchange(CDataExchange* /*pDX*/) {}
    virtual std::span<const CMessageEntry> GetMessageMap() const { return {}; }

    void Attach(std::shared_ptr<CControl> pControl) { m_pControl = std::move(pControl); }

private:
    friend class CModalWindow; // makes and ends the windows

    std::shared_ptr<CControl> m_pControl;
};
