#include "ui/page_settings.h"

#include <array>
#include <cstdlib>

#include "data/project_context.h"
#include "platform/windows/profile.h"

namespace {

constexpr const char* g_pSection = "CBRENDlg";
constexpr std::size_t g_nTextSize = 15;

} // namespace

CString ReadPageText(const CPageSetting& setting) {
    std::array<char, g_nTextSize> szText{};
    GetPrivateProfileStringA(g_pSection, setting.m_pszKey, setting.m_pszDefault, szText.data(), szText.size(),
                             g_strSettingsIni);
    return szText.data();
}

int ReadPageNumber(const CPageSetting& setting) {
    return std::atoi(ReadPageText(setting));
}

void WritePageText(const CPageSetting& setting, const CString& strValue) {
    WritePrivateProfileStringA(g_pSection, setting.m_pszKey, strValue, g_strSettingsIni);
}

void WritePageNumber(const CPageSetting& setting, int nValue) {
    CString strText;
    strText.Format("%d", nValue);
    WritePageText(setting, strText);
}
