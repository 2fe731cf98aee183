#pragma once

#include "platform/mfc/window.h"

/// A dialog or a sheet of pages: what the user has before him until it closes.
class CModalWindow : public CWnd {
public:
    /// pOwner is the window it stands before; null for the main window.
    explicit CModalWindow(void* pOwner)
        : m_pOwner(pOwner) {}

    /// Shows it and returns when it is closed: ID_OK, ID_CANCEL or the number handed to EndDialog; -1 when
    /// there is no such dialog resource, or nothing that shows dialogs.
    int DoModal();
    virtual void EndDialog(int nResult);
    /// Nonzero from the beginning of OnInitDialog until EndDialog.
    virtual BOOL ContinueModal() const { return m_bOpen; }

    /// Called once, when the controls exist and before anything is shown.
    virtual BOOL OnInitDialog() = 0;
    /// A notification arrives from one of the window's own controls.
    virtual void OnCommand(UINT nId, int nCode);

    CWnd* GetDlgItem(UINT nId) const override;
    /// All controls before the user, in tab order.
    virtual std::vector<CWnd*> GetItems() const;
    /// The number of the dialog's template.
    virtual UINT GetNumber() const { return GetDlgCtrlID(); }
    void* GetOwner() const { return m_pOwner; }

    void SetIcon(UINT nIcon, BOOL bBigIcon) { (bBigIcon ? m_nBigIcon : m_nSmallIcon) = nIcon; }
    /// Number of the icon's resource, 0 when there is none.
    UINT GetIcon(BOOL bBigIcon) const { return bBigIcon ? m_nBigIcon : m_nSmallIcon; }

protected:
    /// Makes the window and its controls. False when it cannot be made.
    virtual bool Create() = 0;
    virtual void Destroy();
    void CreateFrom(const CDialogTemplate& dialog);

private:
    void* m_pOwner;
    bool m_bOpen = false;
    int m_nResult = -1;
    UINT m_nBigIcon = 0;
    UINT m_nSmallIcon = 0;
    std::vector<std::unique_ptr<CWnd>> m_arItems; // in tab order
};

/// Shows dialogs and plays the user's part: a script, or a window on the screen.
class CDialogPresenter {
public:
    virtual ~CDialogPresenter() = default;
    /// Shows the window and returns when it is no longer open. If it returns earlier the window is cancelled.
    virtual void RunModal(CModalWindow& window) = 0;
};

CDialogPresenter* DialogPresenter(); ///< null when none is registered
void SetDialogPresenter(CDialogPresenter* pPresenter);
