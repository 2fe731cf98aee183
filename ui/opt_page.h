#pragma once

#include "platform/mfc/combo_box.h"
#include "platform/mfc/runtime_class.h"
#include "ui/n_property_page.h"

/// The page "选项": sheet size and layout, kept in the settings file. The running sheet does not have it.
class COptPage : public CNPropertyPage {
public:
    COptPage();

    static const CRuntimeClass classCOptPage;

    BOOL OnInitDialog() override;
    void OnOK() override;

    CComboBox m_comboSize;
    int m_bFrameBorder = 1;
    CString m_strSheetSize = "A4";
    int m_bOneDwg = 0;
    int m_nPerRow = 2; ///< frames in a row
    int m_nMode = 0;   ///< 2: the sheet size is not to be chosen

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    std::span<const CMessageEntry> GetMessageMap() const override;

private:
    void EnablePerRow();
    void OnSizeClosedUp();
    void OnOneDwg();
};
