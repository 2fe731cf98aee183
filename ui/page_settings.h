#pragma once

#include "platform/mfc/string.h"

/// A value that a page of the chart's options keeps in section CBRENDlg of the settings file.
struct CPageSetting {
    const char* m_pszKey;
    const char* m_pszDefault;
};

// Of the options page.
inline constexpr CPageSetting g_settingOuterFrame = {"bWJKX", "1"}; ///< an outer frame line
inline constexpr CPageSetting g_settingOneFile = {"bYZT", "1"};     ///< one drawing file for all charts
inline constexpr CPageSetting g_settingSheetSize = {"sTF", "A4"};
inline constexpr CPageSetting g_settingFramesPerRow = {"nNUM", "2"};

// Of the annotation page: what is shown, and as what.
inline constexpr CPageSetting g_settingShowDate = {"bRQ", "1"};
inline constexpr CPageSetting g_settingShowTester = {"bSYZ", "1"};
inline constexpr CPageSetting g_settingShowUnit = {"bWCDW", "1"};
inline constexpr CPageSetting g_settingShowChecker = {"bJCZ", "1"};
inline constexpr CPageSetting g_settingChecker = {"sJCZ", ""};
inline constexpr CPageSetting g_settingUnit = {"sWCDW", ""};
inline constexpr CPageSetting g_settingTester = {"sSYZ", ""};
inline constexpr CPageSetting g_settingDate = {"sRQ", ""}; ///< as "%d年%d月%d日"

/// The first 14 bytes of the value, cut at a character: a date with a two-digit month and day just fits.
CString ReadPageText(const CPageSetting& setting);
/// The number that this text begins with; 0 for other text.
int ReadPageNumber(const CPageSetting& setting);

/// Stores the whole text.
void WritePageText(const CPageSetting& setting, const CString& strValue);
void WritePageNumber(const CPageSetting& setting, int nValue);
