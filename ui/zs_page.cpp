#include "ui/zs_page.h"

#include "ui/resources.h"

CZSPage::CZSPage()
    : CNPropertyPage(IDD_ZS_PAGE)
    , m_tDate(CTime::GetCurrentTime()) {
    m_psp.dwFlags &= ~PSP_HASHELP;
}
