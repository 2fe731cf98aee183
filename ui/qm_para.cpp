#include "ui/qm_para.h"

#include <array>
#include <cstdlib>

#include "data/project_context.h"
#include "platform/windows/profile.h"

namespace {

constexpr std::size_t g_nLongestValue = 255;

const CString& FileOf(int bProjectFile) {
    return bProjectFile ? g_strProjectIni : g_strSettingsIni;
}

CString NumberText(double dValue) {
    CString strText;
    strText.Format("%f", dValue);
    return strText;
}

} // namespace

int CQMPara::ExchangeFloat(const CString& strSection, const CString& strKey, float fDefault, float* pfValue,
                           int bProjectFile) {
    double dValue = *pfValue;
    ExchangeDouble(strSection, strKey, fDefault, &dValue, bProjectFile);
    *pfValue = static_cast<float>(dValue);
    return 1;
}

int CQMPara::ExchangeDouble(const CString& strSection, const CString& strKey, double dDefault,
                            double* pdValue, int bProjectFile) {
    CString strText = NumberText(*pdValue);
    ExchangeString(strSection, strKey, NumberText(dDefault), &strText, bProjectFile);
    if (m_bLoad) *pdValue = std::atof(strText);
    return 1;
}

int CQMPara::ExchangeString(const CString& strSection, const CString& strKey, const CString& strDefault,
                            CString* pText, int bProjectFile) {
    if (!m_bLoad) {
        WritePrivateProfileStringA(strSection, strKey, *pText, FileOf(bProjectFile));
        return 1;
    }
    std::array<char, g_nLongestValue> szText{};
    GetPrivateProfileStringA(strSection, strKey, strDefault, szText.data(), szText.size(),
                             FileOf(bProjectFile));
    *pText = szText.data();
    return 1;
}

int CQMPara::ExchangeInt(const CString& strSection, const CString& strKey, int nDefault, int* pnValue,
                         int bProjectFile) {
    if (m_bLoad) {
        *pnValue =
            static_cast<int>(GetPrivateProfileIntA(strSection, strKey, nDefault, FileOf(bProjectFile)));
        return 1;
    }
    CString strText;
    strText.Format("%d", *pnValue);
    WritePrivateProfileStringA(strSection, strKey, strText, FileOf(bProjectFile));
    return 1;
}
