#pragma once
// Moving values between a dialog's controls and its variables.

#include "platform/mfc/window.h"

/// One exchange of a dialog. Once it has failed the rest of it does nothing.
class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate)
        , m_pDlgWnd(pDlgWnd) {}

    const BOOL m_bSaveAndValidate; ///< TRUE: from the controls to the variables
    CWnd* const m_pDlgWnd;

    void Fail() { m_bFailed = true; }
    bool HasFailed() const { return m_bFailed; }

private:
    bool m_bFailed = false;
};

/// Makes rControl the handle of the control, at the first exchange.
void DDX_Control(CDataExchange* pDX, UINT nIDC, CWnd& rControl);
/// A check box: 0 or 1.
void DDX_Check(CDataExchange* pDX, UINT nIDC, int& value);
/// The text of an edit field.
void DDX_Text(CDataExchange* pDX, UINT nIDC, CString& value);
