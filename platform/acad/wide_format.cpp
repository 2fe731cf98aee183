#include "platform/acad/wide_format.h"

#include "platform/mfc/format.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace {

constexpr int g_nWidest = 4096; // what a mistaken width may cost

struct CConversion {
    std::string m_strFlags;
    int m_nWidth = 0, m_nPrecision = -1;
    std::string m_strSize; // h, l, ll, z or nothing
    wchar_t m_cLetter = 0;
};

int ReadNumber(const ACHAR*& at, std::va_list* arguments) {
    if (*at == L'*') {
        ++at;
        return va_arg(*arguments, int);
    }
    int number = 0;
    for (; *at >= L'0' && *at <= L'9'; ++at)
        number = std::min(number * 10 + static_cast<int>(*at - L'0'), g_nWidest);
    return number;
}

void ReadSize(const ACHAR*& at, CConversion& conversion) {
    if (std::wcsncmp(at, L"I64", 3) == 0) {
        conversion.m_strSize = "ll";
        at += 3;
    }
    for (; *at && std::wcschr(L"hlz", *at); ++at)
        conversion.m_strSize += static_cast<char>(*at);
}

/// Reads what follows a percent sign.
CConversion ReadSpec(const ACHAR*& at, std::va_list* arguments) {
    CConversion conversion;
    for (; *at && std::wcschr(L"-+ #0", *at); ++at)
        if (conversion.m_strFlags.find(static_cast<char>(*at)) == std::string::npos)
            conversion.m_strFlags += static_cast<char>(*at);
    const int width = ReadNumber(at, arguments);
    if (width < 0 && conversion.m_strFlags.find('-') == std::string::npos) conversion.m_strFlags += '-';
    conversion.m_nWidth = width < -g_nWidest ? g_nWidest : std::min(width < 0 ? -width : width, g_nWidest);
    if (*at == L'.') {
        ++at;
        conversion.m_nPrecision = std::clamp(ReadNumber(at, arguments), -1, g_nWidest);
    }
    ReadSize(at, conversion);
    conversion.m_cLetter = *at;
    if (*at) ++at;
    return conversion;
}

/// The conversion as a narrow format of one conversion.
std::string Narrow(const CConversion& conversion, const std::string& strSize) {
    std::string format = "%" + conversion.m_strFlags;
    if (conversion.m_nWidth) format += std::to_string(conversion.m_nWidth);
    if (conversion.m_nPrecision >= 0) format += "." + std::to_string(conversion.m_nPrecision);
    return format + strSize + static_cast<char>(conversion.m_cLetter);
}

void AppendPadded(std::wstring& text, std::wstring_view piece, const CConversion& conversion) {
    if (conversion.m_nPrecision >= 0)
        piece = piece.substr(0, static_cast<std::size_t>(conversion.m_nPrecision));
    const auto width = static_cast<std::size_t>(conversion.m_nWidth);
    const std::size_t padding = width > piece.size() ? width - piece.size() : 0;
    const bool bLeft = conversion.m_strFlags.find('-') != std::string::npos;
    if (!bLeft) text.append(padding, L' ');
    text += piece;
    if (bLeft) text.append(padding, L' ');
}

void AppendText(std::wstring& text, const CConversion& conversion, std::va_list* arguments) {
    const bool bNarrow =
        conversion.m_strSize == "h" || (conversion.m_cLetter == L'S' && conversion.m_strSize != "l");
    if (bNarrow) {
        const char* const pText = va_arg(*arguments, const char*);
        return AppendPadded(text, pText ? WideFromGbk(pText) : L"(null)", conversion);
    }
    const wchar_t* const pText = va_arg(*arguments, const wchar_t*);
    AppendPadded(text, pText ? pText : L"(null)", conversion);
}

void AppendCharacter(std::wstring& text, CConversion conversion, std::va_list* arguments) {
    const auto character = static_cast<wchar_t>(va_arg(*arguments, int));
    conversion.m_nPrecision = -1;
    AppendPadded(text, std::wstring_view(&character, 1), conversion);
}

std::string Integer(const CConversion& conversion, std::va_list* arguments) {
    if (conversion.m_strSize == "ll" || conversion.m_strSize == "l" || conversion.m_strSize == "z") {
        // On Windows a long has 32 bits, here 64; callers hand over this system's long.
        const long long value = va_arg(*arguments, long long);
        return FormatText(Narrow(conversion, "ll").c_str(), value);
    }
    const int value = va_arg(*arguments, int); // char and short come as int
    return FormatText(Narrow(conversion, conversion.m_strSize == "h" ? "h" : "").c_str(), value);
}

/// False for a conversion that is none here.
bool AppendConversion(std::wstring& text, const CConversion& conversion, std::va_list* arguments) {
    if (!conversion.m_cLetter) return false;
    if (conversion.m_cLetter == L'%') {
        text += L'%';
    } else if (conversion.m_cLetter == L's' || conversion.m_cLetter == L'S') {
        AppendText(text, conversion, arguments);
    } else if (conversion.m_cLetter == L'c' || conversion.m_cLetter == L'C') {
        AppendCharacter(text, conversion, arguments);
    } else if (std::wcschr(L"diuxXo", conversion.m_cLetter)) {
        text += WideFromGbk(Integer(conversion, arguments));
    } else if (std::wcschr(L"fFeEgG", conversion.m_cLetter)) {
        text += WideFromGbk(FormatText(Narrow(conversion, "").c_str(), va_arg(*arguments, double)));
    } else if (conversion.m_cLetter == L'p') {
        text += WideFromGbk(FormatText("%p", va_arg(*arguments, void*)));
    } else {
        return false;
    }
    return true;
}

} // namespace

std::wstring FormatWideV(const ACHAR* format, std::va_list arguments) {
    std::wstring text;
    if (!format) return text;
    std::va_list left;
    va_copy(left, arguments);
    while (const ACHAR* const pPercent = std::wcschr(format, L'%')) {
        text.append(format, pPercent);
        format = pPercent + 1;
        if (AppendConversion(text, ReadSpec(format, &left), &left)) continue;
        format = pPercent;
        break;
    }
    va_end(left);
    return text + format;
}
