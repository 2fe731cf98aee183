#pragma once

#include "platform/mfc/property_page.h"

/// A window with pages, one of them shown, and the buttons 1 and 2 below. The pages belong to the caller.
class CPropertySheet : public CModalWindow {
public:
    explicit CPropertySheet(const char* caption, void* pOwner = nullptr, UINT iSelectPage = 0);

    void AddPage(CPropertyPage* pPage);
    int GetPageCount() const { return static_cast<int>(m_arPages.size()); }
    /// Null for a bad index.
    CPropertyPage* GetPage(int index) const;
    /// Null before one was shown.
    CPropertyPage* GetActivePage() const { return m_pActive; }
    /// Nothing happens when it is shown already. Zero when the page shown could not be left, or this one not
    /// made.
    BOOL SetActivePage(CPropertyPage* pPage);
    /// The page's caption, also of one that was not shown yet.
    CString GetPageCaption(const CPropertyPage& page) const;

    /// Shows the first page.
    BOOL OnInitDialog() override;
    /// What no handler takes closes the sheet, for the buttons 1 and 2.
    void OnCommand(UINT nId, int nCode) override;

    /// Those of the page shown, then the sheet's own.
    std::vector<CWnd*> GetItems() const override;
    /// That of the page shown.
    UINT GetNumber() const override { return m_pActive ? m_pActive->GetNumber() : 0; }

protected:
    bool Create() override;
    void Destroy() override;

private:
    void PressOk();
    void PressCancel();

    CString m_strCaption;
    UINT m_nFirstPage;
    std::vector<CPropertyPage*> m_arPages;
    CPropertyPage* m_pActive = nullptr;
};
