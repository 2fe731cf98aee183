#include "host/files/dxf_text.h"

#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <optional>

namespace {

constexpr wchar_t g_wcUnknown = 0xFFFD;
constexpr int g_nControlOffset = 64; // ^A is character 1

struct CIconvCloser {
    using pointer = iconv_t;
    void operator()(iconv_t converter) const { iconv_close(converter); }
};

/// Bytes as wide text by the C library; each byte that begins no character gives U+FFFD.
std::wstring Convert(std::string_view text, const std::string& strCharset) {
    const std::unique_ptr<void, CIconvCloser> converter(iconv_open("WCHAR_T", strCharset.c_str()));
    std::wstring wide(text.size(), L'\0');      // no character takes less than a byte
    char* pIn = const_cast<char*>(text.data()); // iconv reads only
    char* pOut = reinterpret_cast<char*>(wide.data());
    std::size_t nIn = text.size(), nOut = wide.size() * sizeof(wchar_t);
    while (nIn > 0 && iconv(converter.get(), &pIn, &nIn, &pOut, &nOut) == static_cast<std::size_t>(-1)) {
        *reinterpret_cast<wchar_t*>(pOut) = g_wcUnknown;
        pOut += sizeof(wchar_t);
        nOut -= sizeof(wchar_t);
        ++pIn;
        --nIn;
    }
    wide.resize(wide.size() - nOut / sizeof(wchar_t));
    return wide;
}

/// Four hexadecimal digits at a place of the text.
std::optional<unsigned> HexAt(std::wstring_view text, std::size_t nAt) {
    if (nAt + 4 > text.size()) return std::nullopt;
    unsigned value = 0;
    for (const wchar_t wc : text.substr(nAt, 4)) {
        const std::size_t nDigit = std::wstring_view(L"0123456789ABCDEFabcdef").find(wc);
        if (nDigit == std::wstring_view::npos) return std::nullopt;
        value = value * 16 + static_cast<unsigned>(nDigit < 16 ? nDigit : nDigit - 6);
    }
    return value;
}

/// Resolves escapes from the front of a text to its end.
class CUnescaper {
public:
    explicit CUnescaper(std::wstring_view text)
        : m_text(text) {}

    std::wstring Resolve() {
        while (m_nAt < m_text.size())
            if (!TakeCharacter() && !TakeOfCodePage() && !TakeControl()) m_strResult += m_text[m_nAt++];
        std::replace(m_strResult.begin(), m_strResult.end(), L'\0', g_wcUnknown);
        return m_strResult;
    }

private:
    bool Skip(std::size_t nLength) {
        m_nAt += nLength;
        return true;
    }

    /// `\U+XXXX`; one of two halves waits for the other.
    bool TakeCharacter() {
        if (!m_text.substr(m_nAt).starts_with(L"\\U+")) return false;
        const std::optional<unsigned> unit = HexAt(m_text, m_nAt + 3);
        if (!unit) return false;
        const bool bSecond = *unit >= 0xDC00 && *unit < 0xE000;
        if (bSecond && !m_strResult.empty() && m_strResult.size() == m_nAfterFirst) {
            m_strResult.back() =
                static_cast<wchar_t>(0x10000 + ((m_nFirst - 0xD800) << 10) + (*unit - 0xDC00));
            return Skip(7);
        }
        const bool bFirst = *unit >= 0xD800 && *unit < 0xDC00;
        m_strResult += bFirst || bSecond ? g_wcUnknown : static_cast<wchar_t>(*unit);
        m_nFirst = *unit;
        m_nAfterFirst = bFirst ? m_strResult.size() : 0;
        return Skip(7);
    }

    bool TakeOfCodePage() {
        static constexpr std::array s_arCharsets = {"CP932", "CP950", "CP949", "JOHAB", "CP936"};
        if (!m_text.substr(m_nAt).starts_with(L"\\M+") || m_nAt + 4 > m_text.size()) return false;
        const wchar_t wcPage = m_text[m_nAt + 3];
        const std::optional<unsigned> code = HexAt(m_text, m_nAt + 4);
        if (!code || wcPage < L'1' || wcPage > L'5') return false;
        const std::array bytes = {static_cast<char>(*code >> 8), static_cast<char>(*code)};
        m_strResult +=
            Convert({bytes.data(), bytes.size()}, s_arCharsets[static_cast<std::size_t>(wcPage - L'1')]);
        return Skip(8);
    }

    bool TakeControl() {
        if (m_text[m_nAt] != L'^' || m_nAt + 1 == m_text.size()) return false;
        const wchar_t wc = m_text[m_nAt + 1];
        if (wc != L' ' && (wc < L'@' || wc > L'_')) return false;
        m_strResult += wc == L' ' ? L'^' : static_cast<wchar_t>(wc - g_nControlOffset);
        return Skip(2);
    }

    std::wstring_view m_text;
    std::size_t m_nAt = 0;
    std::wstring m_strResult;
    unsigned m_nFirst = 0;         ///< of a character in two halves
    std::size_t m_nAfterFirst = 0; ///< the result's length behind it; 0 when no half waits
};

void AppendEscaped(unsigned unit, std::string* pText) {
    std::array<char, 8> digits{};
    const char* const pEnd = std::to_chars(digits.begin(), digits.end(), unit + 0x10000, 16).ptr;
    pText->append("\\U+");
    std::transform(pEnd - 4, pEnd, std::back_inserter(*pText),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
}

} // namespace

CDxfEncoding::CDxfEncoding(std::string_view codePage) {
    const std::wstring strName = UpperName(std::wstring(codePage.begin(), codePage.end()));
    std::string strNumber;
    for (const wchar_t wc : strName)
        if (wc >= L'0' && wc <= L'9') strNumber += static_cast<char>(wc);
    if (strName == L"GB2312") strNumber = "936";
    if (strName == L"BIG5") strNumber = "950";
    m_strCharset = strNumber == "1361" ? "JOHAB" : "CP" + strNumber;
    const iconv_t converter = iconv_open("WCHAR_T", m_strCharset.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1))
        m_strCharset = "CP1252";
    else
        iconv_close(converter);
}

std::wstring CDxfEncoding::Decode(std::string_view text) const {
    const bool bSystem = m_strCharset == "CP936"; // as all narrow text of the process
    return CUnescaper(bSystem ? WideFromGbk(text) : Convert(text, m_strCharset)).Resolve();
}

std::string EncodeDxfText(std::wstring_view text) {
    std::string strResult;
    for (const wchar_t wc : text) {
        const std::string strCharacter = GbkFromWide({&wc, 1});
        if (wc == L'^') {
            strResult += "^ ";
        } else if (wc < L' ') {
            strResult += {'^', static_cast<char>(wc + g_nControlOffset)};
        } else if (wc == L'?' || strCharacter != "?") {
            strResult += strCharacter;
        } else if (wc < 0x10000) {
            AppendEscaped(static_cast<unsigned>(wc), &strResult);
        } else {
            const unsigned nBeyond = static_cast<unsigned>(wc) - 0x10000;
            AppendEscaped(0xD800 + ((nBeyond >> 10) & 0x3FF), &strResult);
            AppendEscaped(0xDC00 + (nBeyond & 0x3FF), &strResult);
        }
    }
    return strResult;
}
