#include "host/datamanager/ini_file.h"

#include <vector>

#include "host/datamanager/failure.h"
#include "platform/windows/code_page.h"
#include "platform/windows/profile.h"

namespace {

/// Reading takes off blanks at the ends and one pair of quotes around the value.
bool NeedsQuotes(const std::string& strValue) {
    constexpr std::string_view strTakenOff = " \t\"'";
    return !strValue.empty() && (strTakenOff.find(strValue.front()) != std::string_view::npos ||
                                 strTakenOff.find(strValue.back()) != std::string_view::npos);
}

} // namespace

std::string CIniFile::Text(const char* pszSection, const char* pszKey, const std::string& strDefault) const {
    std::vector<char> buffer(1024);
    for (;;) {
        const DWORD nLength = GetPrivateProfileStringA(pszSection, pszKey, strDefault.c_str(), buffer.data(),
                                                       static_cast<DWORD>(buffer.size()), m_strPath.c_str());
        if (nLength + 2 < buffer.size()) return {buffer.data(), nLength};
        buffer.resize(buffer.size() * 4);
    }
}

std::int32_t CIniFile::Number(const char* pszSection, const char* pszKey, std::int32_t nDefault) const {
    return static_cast<std::int32_t>(GetPrivateProfileIntA(pszSection, pszKey, nDefault, m_strPath.c_str()));
}

void CIniFile::SetText(const char* pszSection, const char* pszKey, const std::string& strValue) const {
    const std::string strWritten = NeedsQuotes(strValue) ? "\"" + strValue + "\"" : strValue;
    if (!WritePrivateProfileStringA(pszSection, pszKey, strWritten.c_str(), m_strPath.c_str()))
        throw CFailure(ExitStatus::NoAccess, ToUtf8(m_strPath) + ": the file cannot be written");
}

void CIniFile::SetNumber(const char* pszSection, const char* pszKey, std::int32_t nValue) const {
    SetText(pszSection, pszKey, std::to_string(nValue));
}
