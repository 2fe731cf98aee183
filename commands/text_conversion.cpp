#include "commands/text_conversion.h"

#include "platform/windows/code_page.h"

#include <algorithm>
#include <array>

namespace {
constexpr std::size_t g_nBuffer = 1024;
}

const ACHAR* ToWide(const char* pText) {
    static std::array<ACHAR, g_nBuffer> buffer;
    const std::wstring wide = WideFromGbk(pText);
    const std::size_t nLength = std::min(wide.size(), g_nBuffer - 1);
    std::copy_n(wide.begin(), nLength, buffer.begin());
    buffer[nLength] = L'\0';
    return buffer.data();
}

const char* ToNarrow(const ACHAR* pText) {
    static std::array<char, g_nBuffer> buffer;
    GbkCopy(buffer.data(), buffer.size(), GbkFromWide(pText));
    return buffer.data();
}
