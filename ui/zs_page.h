#pragma once

#include "platform/mfc/time.h"
#include "ui/n_property_page.h"

/// The page "标注": what the title block says of people and date. The running sheet does not show it, so its
/// first values hold.
class CZSPage : public CNPropertyPage {
public:
    CZSPage();

    int m_bDate = 1;
    int m_bTester = 1;
    int m_bUnit = 1;
    CString m_strChecker;
    CString m_strUnit;
    CString m_strTester;
    int m_bChecker = 1;
    CTime m_tDate; ///< today
    CString m_strDate;
};
