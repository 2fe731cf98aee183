#include "host/files/code_page.h"

#include "platform/acad/wide_names.h"

#include <charconv>
#include <map>
#include <string>

int CodePageOfDwg(std::uint16_t nNumber) {
    static const std::map<std::uint16_t, int> s_pages = {
        {28, 1250}, {29, 1251},           {g_nDwgAnsi1252, g_nWesternPage},
        {32, 1253}, {33, 1254},           {34, 1255},
        {35, 1256}, {36, 1257},           {37, 874},
        {38, 932},  {g_nDwgAnsi936, 936}, {40, 949},
        {41, 950},  {42, 1361},           {44, 1258}};
    const auto found = s_pages.find(nNumber);
    return found == s_pages.end() ? g_nWesternPage : found->second;
}

int CodePageOfDxf(std::string_view name) {
    const std::wstring strName = UpperName(std::wstring(name.begin(), name.end()));
    if (strName == L"GB2312") return g_nChinesePage;
    if (strName == L"BIG5") return 950;
    std::string strDigits;
    for (const wchar_t ch : strName)
        if (ch >= L'0' && ch <= L'9') strDigits += static_cast<char>(ch);
    int nPage = g_nWesternPage;
    std::from_chars(strDigits.data(), strDigits.data() + strDigits.size(), nPage);
    return nPage;
}
