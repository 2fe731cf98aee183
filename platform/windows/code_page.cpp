#include "platform/windows/code_page.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

#include "platform/windows/host_assert.h"

namespace {

constexpr char32_t UNKNOWN = 0xFFFD;

bool IsLead(unsigned char byte) {
    return byte >= 0x81 && byte <= 0xFE;
}
bool IsTrail(unsigned char byte) {
    return byte >= 0x40 && byte <= 0xFE && byte != 0x7F;
}

/// Both directions of the code page; 0 means there is no such character (but for NUL itself).
class CCodePage {
public:
    CCodePage() {
        const iconv_t converter = iconv_open("UTF-32LE", "CP936");
        HOST_ASSERT(reinterpret_cast<std::intptr_t>(converter) != -1,
                    "the C library has no converter for CP936");
        for (unsigned byte = 0; byte <= 0xFF; ++byte)
            if (!IsLead(static_cast<unsigned char>(byte))) Enter(converter, byte, 1);
        for (unsigned code = 0x8140; code <= 0xFEFE; ++code)
            if (IsLead(static_cast<unsigned char>(code >> 8)) && IsTrail(static_cast<unsigned char>(code)))
                Enter(converter, code, 2);
        iconv_close(converter);
        // The compiler, which writes literals as GB18030, puts the euro sign here; the page has it at 0x80.
        m_decoded[0xA2E3] = 0x20AC;
    }

    char32_t Decode(unsigned code) const { return m_decoded[code]; }
    unsigned Encode(char32_t character) const { return character <= 0xFFFF ? m_encoded[character] : 0; }

private:
    void Enter(iconv_t converter, unsigned code, std::size_t length) {
        std::array<char, 2> bytes = {static_cast<char>(code >> 8), static_cast<char>(code)};
        std::array<char, 8> wide = {};
        char* in = bytes.data() + (2 - length);
        char* out = wide.data();
        std::size_t inLeft = length;
        std::size_t outLeft = wide.size();
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        if (iconv(converter, &in, &inLeft, &out, &outLeft) != 0 || outLeft != 4) return;
        std::uint32_t character = 0;
        std::memcpy(&character, wide.data(), sizeof character);
        if (character > 0xFFFF) return;
        m_decoded[code] = static_cast<std::uint16_t>(character);
        if (!m_encoded[character]) m_encoded[character] = static_cast<std::uint16_t>(code);
    }

    std::array<std::uint16_t, 0x10000> m_decoded = {};
    std::array<std::uint16_t, 0x10000> m_encoded = {};
};

const CCodePage& CodePage() {
    static const std::unique_ptr<const CCodePage> s_page = std::make_unique<CCodePage>();
    return *s_page;
}

/// The character at *position, which is moved past it; UNKNOWN for a byte that is none.
char32_t NextGbk(std::string_view text, std::size_t* position) {
    const unsigned char first = static_cast<unsigned char>(text[*position]);
    if (first < 0x80) {
        ++*position;
        return first;
    }
    const int length = GbkCharLength(text.data() + *position, text.data() + text.size());
    unsigned code = first;
    if (length == 2) code = (code << 8) | static_cast<unsigned char>(text[*position + 1]);
    const char32_t character = CodePage().Decode(code);
    *position += static_cast<std::size_t>(length);
    return character ? character : UNKNOWN;
}

/// Appends the character in the code page; false, and nothing appended, when it is not in it.
bool AppendGbk(char32_t character, std::string* gbk) {
    if (character < 0x80) {
        gbk->push_back(static_cast<char>(character));
        return true;
    }
    const unsigned code = CodePage().Encode(character);
    if (!code) return false;
    if (code > 0xFF) gbk->push_back(static_cast<char>(code >> 8));
    gbk->push_back(static_cast<char>(code));
    return true;
}

/// Moves the run of ASCII at *position, which is the same in every encoding here, over to the result.
void TakeAscii(std::string_view text, std::size_t* position, std::string* result) {
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(*position);
    const auto end =
        std::find_if(begin, text.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
    result->append(begin, end);
    *position += static_cast<std::size_t>(end - begin);
}

bool IsSystemCodePage(UINT codePage) {
    return codePage == CP_ACP || codePage == CP_GBK;
}

} // namespace

bool GbkToUtf8(std::string_view gbk, std::string* utf8) {
    std::string result;
    result.reserve(gbk.size() + gbk.size() / 2);
    for (std::size_t position = 0;;) {
        TakeAscii(gbk, &position, &result);
        if (position == gbk.size()) break;
        const char32_t character = NextGbk(gbk, &position);
        if (character == UNKNOWN) return false;
        AppendUtf8(character, &result);
    }
    *utf8 = std::move(result);
    return true;
}

bool Utf8ToGbk(std::string_view utf8, std::string* gbk, std::string* refused) {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t position = 0;;) {
        TakeAscii(utf8, &position, &result);
        if (position == utf8.size()) break;
        char32_t character = UNKNOWN;
        if (!NextUtf8(utf8, &position, &character) || !AppendGbk(character, &result)) {
            if (refused) {
                refused->clear();
                AppendUtf8(character, refused);
            }
            return false;
        }
    }
    *gbk = std::move(result);
    return true;
}

std::string ToUtf8(std::string_view gbk) {
    std::string result;
    for (std::size_t position = 0; position < gbk.size();)
        AppendUtf8(NextGbk(gbk, &position), &result);
    return result;
}

std::wstring WideFromGbk(std::string_view gbk) {
    std::wstring result;
    result.reserve(gbk.size());
    for (std::size_t position = 0; position < gbk.size();)
        result.push_back(static_cast<wchar_t>(NextGbk(gbk, &position)));
    return result;
}

std::string GbkFromWide(std::wstring_view wide) {
    std::string result;
    for (const wchar_t character : wide)
        if (!AppendGbk(static_cast<char32_t>(character), &result)) result.push_back('?');
    return result;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

int GbkCharLength(const char* text) {
    return IsLead(static_cast<unsigned char>(text[0])) && IsTrail(static_cast<unsigned char>(text[1])) ? 2
                                                                                                       : 1;
}

int GbkCharLength(const char* text, const char* end) {
    return end - text < 2 ? 1 : GbkCharLength(text);
}

std::size_t GbkSafeLength(const char* text, std::size_t maxBytes) {
    std::size_t length = 0;
    while (text[length]) {
        const std::size_t step = static_cast<std::size_t>(GbkCharLength(text + length));
        if (length + step > maxBytes) break;
        length += step;
    }
    return length;
}

std::size_t GbkCopy(char* buffer, std::size_t size, std::string_view text) {
    if (!size) return 0;
    std::size_t length = 0;
    while (length < text.size()) {
        const char* at = text.data() + length;
        const std::size_t step = static_cast<std::size_t>(GbkCharLength(at, text.data() + text.size()));
        if (length + step > size - 1) break;
        length += step;
    }
    std::copy_n(text.data(), length, buffer);
    buffer[length] = 0;
    return length;
}

bool NextUtf8(std::string_view text, std::size_t* position, char32_t* character) {
    const unsigned char first = static_cast<unsigned char>(text[*position]);
    const std::size_t length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (!length || text.size() - *position < length) return false;
    char32_t value = length == 1 ? first : first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = static_cast<unsigned char>(text[*position + i]);
        if ((next & 0xC0) != 0x80) return false;
        value = (value << 6) | (next & 0x3Fu);
    }
    if (length == 3 && (value < 0x800 || (value >= 0xD800 && value <= 0xDFFF))) return false;
    if (length == 4 && (value < 0x10000 || value > 0x10FFFF)) return false;
    *position += length;
    *character = value;
    return true;
}

bool LooksLikeUtf8(std::string_view bytes) {
    bool beyondAscii = false;
    for (std::size_t i = 0; i < bytes.size();) {
        char32_t character = 0;
        if (!NextUtf8(bytes, &i, &character) || (character >= 0x80 && character < 0x800)) return false;
        beyondAscii = beyondAscii || character >= 0x80;
    }
    return beyondAscii;
}

void AppendUtf8(char32_t character, std::string* utf8) {
    const auto put = [utf8](char32_t byte) { utf8->push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
        return;
    }
    if (character < 0x800) {
        put(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            put(0xE0 | (character >> 12));
        } else {
            put(0xF0 | (character >> 18));
            put(0x80 | ((character >> 12) & 0x3F));
        }
        put(0x80 | ((character >> 6) & 0x3F));
    }
    put(0x80 | (character & 0x3F));
}

int MultiByteToWideChar(UINT codePage, DWORD flags, const char* text, int textBytes, wchar_t* wide,
                        int wideCount) {
    if (!IsSystemCodePage(codePage) || !text || !textBytes || textBytes < -1 || wideCount < 0) return 0;
    if (wideCount && !wide) return 0;
    const std::size_t bytes = textBytes < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(textBytes);
    const std::wstring result = WideFromGbk(std::string_view(text, bytes));
    if ((flags & MB_ERR_INVALID_CHARS) && result.find(static_cast<wchar_t>(UNKNOWN)) != std::wstring::npos)
        return 0;
    if (!wideCount) return static_cast<int>(result.size());
    const std::size_t count = std::min(result.size(), static_cast<std::size_t>(wideCount));
    std::copy_n(result.data(), count, wide);
    return count < result.size() ? 0 : static_cast<int>(count);
}

int WideCharToMultiByte(UINT codePage, DWORD /*flags*/, const wchar_t* wide, int wideCount, char* text,
                        int textBytes, const char* defaultChar, BOOL* usedDefault) {
    if (!IsSystemCodePage(codePage) || !wide || !wideCount || wideCount < -1 || textBytes < 0) return 0;
    if (textBytes && !text) return 0;
    const std::wstring_view source = wideCount < 0
                                         ? std::wstring_view(wide, std::wcslen(wide) + 1)
                                         : std::wstring_view(wide, static_cast<std::size_t>(wideCount));
    if (usedDefault) *usedDefault = FALSE;
    std::string result;
    std::size_t fitting = 0;
    for (const wchar_t character : source) {
        if (!AppendGbk(static_cast<char32_t>(character), &result)) {
            result.push_back(defaultChar ? *defaultChar : '?');
            if (usedDefault) *usedDefault = TRUE;
        }
        if (result.size() <= static_cast<std::size_t>(textBytes)) fitting = result.size();
    }
    if (!textBytes) return static_cast<int>(result.size());
    std::copy_n(result.data(), fitting, text);
    return fitting < result.size() ? 0 : static_cast<int>(fitting);
}
