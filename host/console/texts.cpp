#include "host/console/texts.h"

#include "host/console/answers.h"
#include "platform/windows/code_page.h"

std::string GbkAnswer(std::string_view utf8) {
    std::string gbk, refused;
    if (!Utf8ToGbk(utf8, &gbk, &refused)) RefuseAnswer("the system code page lacks the character " + refused);
    return gbk;
}

std::wstring WideAnswer(std::string_view utf8) {
    return WideFromGbk(GbkAnswer(utf8));
}

std::string Utf8FromWide(std::wstring_view wide) {
    std::string utf8;
    for (const wchar_t c : wide) {
        const auto character = static_cast<char32_t>(c);
        const bool bCharacter = character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
        AppendUtf8(bCharacter ? character : U'\xFFFD', &utf8);
    }
    return utf8;
}
