#pragma once
// Moving values between a dialog's controls and its variables.

#include "platform/mfc/time.h"
#include "platform/mfc/window.h"

/// One exchange of a dialog. Once it has failed the rest of it does nothing.
class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate)
        , m_pDlgWnd(pDlgWnd) {}

    const BOOL m_bSaveAndValidate; ///< TRUE: from the controls to the variables
    CWnd* const m_pDlgWnd;

    /// The control whose turn it is. Null when the exchange has failed, or fails since there is no such
    /// control.
    CWnd* PrepareCtrl(UINT nIDC);
    /// Refuses what the control whose turn it is holds.
    void Fail() { m_bFailed = true; }
    bool HasFailed() const { return m_bFailed; }
    /// The control whose turn it was last: after a failure the one at fault. 0 when none had its turn.
    UINT GetLastControl() const { return m_nLastControl; }

private:
    bool m_bFailed = false;
    UINT m_nLastControl = 0;
};

/// Makes rControl the handle of the control, at the first exchange.
void DDX_Control(CDataExchange* pDX, UINT nIDC, CWnd& rControl);
/// A check box: 0 or 1.
void DDX_Check(CDataExchange* pDX, UINT nIDC, int& value);
/// The group of radio buttons that begins with this one: the place of the one marked, from 0; -1 for none.
void DDX_Radio(CDataExchange* pDX, UINT nIDC, int& value);

/// The text of an edit field. A text that is no number, or none that the variable can hold, is refused with a
/// message box and leaves the variable as it was; blanks around a number count for nothing. A double is shown
/// with up to 15 digits.
void DDX_Text(CDataExchange* pDX, UINT nIDC, CString& value);
void DDX_Text(CDataExchange* pDX, UINT nIDC, int& value);
void DDX_Text(CDataExchange* pDX, UINT nIDC, double& value);
/// After DDX_Text of the same control: refuses a value out of range with a message box.
void DDV_MinMaxInt(CDataExchange* pDX, int value, int nMinVal, int nMaxVal);

/// The text of the selected entry, empty when there is none. To the control: selects the first entry that
/// begins with the text, upper and lower case alike; without one, or for an empty text, the selection stays.
void DDX_LBString(CDataExchange* pDX, UINT nIDC, CString& value);
void DDX_CBString(CDataExchange* pDX, UINT nIDC, CString& value);

/// The day that a date field shows, at 00:00:00.
void DDX_DateTimeCtrl(CDataExchange* pDX, UINT nIDC, CTime& value);
