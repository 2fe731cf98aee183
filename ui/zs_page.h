#pragma once

#include "platform/mfc/date_time_ctrl.h"
#include "platform/mfc/runtime_class.h"
#include "ui/n_property_page.h"

/// The page "标注": what the title block says of people and date, kept in the settings file. The running
/// sheet does not show it, so its first values hold there.
class CZSPage : public CNPropertyPage {
public:
    CZSPage();

    static const CRuntimeClass classCZSPage;

    BOOL OnInitDialog() override;
    void OnOK() override;

    CDateTimeCtrl m_dateCtrl;
    int m_bDate = 1;
    int m_bTester = 1;
    int m_bUnit = 1;
    CString m_strChecker;
    CString m_strUnit;
    CString m_strTester;
    int m_bChecker = 1;
    CTime m_tDate;     ///< today, until a date is read from the settings
    CString m_strDate; ///< the date as the settings hold it

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void ReadSettings();
    void ReadDate();
};
