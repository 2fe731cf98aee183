#pragma once

#include "platform/mfc/dialog.h"

class CPropertySheet;

/// Flags of a page.
inline constexpr DWORD PSP_DLGINDIRECT = 0x1; ///< the template is the one at pResource
inline constexpr DWORD PSP_HASHELP = 0x20;    ///< the sheet has a help button

struct PROPSHEETPAGE {
    DWORD dwFlags = PSP_HASHELP;
    const CDialogTemplate* pResource = nullptr;
};

/// A page of a sheet. It is made when it is first shown, and lives until the sheet closes.
class CPropertyPage : public CDialog {
public:
    explicit CPropertyPage(UINT nIDTemplate)
        : CDialog(nIDTemplate) {}
    explicit CPropertyPage(const char* templateName)
        : CDialog(templateName) {}

    /// These are the sheet's.
    void EndDialog(int nResult) override;
    BOOL ContinueModal() const override;
    /// The user confirms, or gives up, the whole sheet: the sheet closes, not the page.
    void OnOK() override {}
    void OnCancel() override {}

    /// The page comes up; the variables go to the controls, except at the first time, when OnInitDialog did
    /// it.
    virtual BOOL OnSetActive();
    /// The page is about to be left or confirmed; the controls go to the variables. Zero keeps it.
    virtual BOOL OnKillActive() { return UpdateData(TRUE); }
    /// The sheet is confirmed, after OnKillActive of the page shown. Zero keeps it open.
    virtual BOOL OnApply();
    virtual void OnReset() { OnCancel(); }

    PROPSHEETPAGE m_psp;

protected:
    const CDialogTemplate* FindTemplate() const override;

private:
    friend class CPropertySheet;

    CPropertySheet* m_pSheet = nullptr;
    bool m_bShownBefore = false;
};
