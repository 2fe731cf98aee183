#include "host/files/code_table.h"

#include "host/files/code_page.h"
#include "platform/windows/code_page.h"

#include <iconv.h>

#include <array>
#include <cstring>
#include <map>

namespace {

constexpr unsigned g_nCodes = 0x10000;

/// The C library's conversion of single characters.
class CConverter {
public:
    explicit CConverter(int nCodePage)
        : m_converter(iconv_open("UTF-32LE",
                                 nCodePage == 1361 ? "JOHAB" : ("CP" + std::to_string(nCodePage)).c_str())) {}
    ~CConverter() {
        if (IsKnown()) iconv_close(m_converter);
    }
    CConverter(const CConverter&) = delete;
    CConverter& operator=(const CConverter&) = delete;
    bool IsKnown() const { return reinterpret_cast<std::intptr_t>(m_converter) != -1; }

    /// The character whose bytes these are, all of them; 0 for none.
    wchar_t Convert(std::string bytes) const {
        std::array<char, 8> wide{};
        char *pIn = bytes.data(), *pOut = wide.data();
        std::size_t nIn = bytes.size(), nOut = wide.size();
        iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
        if (iconv(m_converter, &pIn, &nIn, &pOut, &nOut) != 0) return 0;
        iconv(m_converter, nullptr, nullptr, &pOut, &nOut); // some hold a character back
        std::uint32_t nCharacter = 0;
        std::memcpy(&nCharacter, wide.data(), sizeof nCharacter);
        return nOut == 4 ? static_cast<wchar_t>(nCharacter) : 0;
    }

private:
    iconv_t m_converter;
};

/// The same by the platform, whose page this is.
wchar_t FromSystemPage(const std::string& bytes) {
    const std::wstring text = WideFromGbk(bytes);
    return text.size() == 1 && text[0] != g_chUnknown ? text[0] : L'\0';
}

std::string BytesOf(unsigned nCode) {
    std::string bytes(1, static_cast<char>(nCode));
    return nCode > 0xFF ? static_cast<char>(nCode >> 8) + bytes : bytes;
}

} // namespace

const CCodeTable& CCodeTable::Of(int nCodePage) {
    static std::map<int, CCodeTable> s_tables;
    const auto found = s_tables.find(nCodePage);
    if (found != s_tables.end()) return found->second;
    if (!CConverter(nCodePage).IsKnown()) return Of(g_nWesternPage);
    return s_tables.try_emplace(nCodePage, nCodePage).first->second;
}

CCodeTable::CCodeTable(int nCodePage)
    : m_decoded(g_nCodes)
    , m_encoded(g_nCodes) {
    for (unsigned nCode = 1; nCode < 0x80; ++nCode)
        Enter(nCode, static_cast<wchar_t>(nCode));
    const CConverter converter(nCodePage);
    const auto convert = [&](unsigned nCode) {
        return nCodePage == CP_GBK ? FromSystemPage(BytesOf(nCode)) : converter.Convert(BytesOf(nCode));
    };
    for (unsigned nLead = 0x80; nLead <= 0xFF; ++nLead) {
        Enter(nLead, convert(nLead));
        if (m_decoded[nLead]) continue;
        for (unsigned nTrail = 0x31; nTrail <= 0xFE; ++nTrail)
            Enter(nLead << 8 | nTrail, convert(nLead << 8 | nTrail));
    }
}

void CCodeTable::Enter(unsigned nCode, wchar_t character) {
    if (character <= 0 || character >= static_cast<wchar_t>(g_nCodes)) return;
    m_decoded[nCode] = static_cast<std::uint16_t>(static_cast<std::uint32_t>(character));
    std::uint16_t& nEncoded = m_encoded[static_cast<std::size_t>(character)];
    if (!nEncoded) nEncoded = static_cast<std::uint16_t>(nCode);
}

wchar_t CCodeTable::Next(std::string_view text, std::size_t& nAt) const {
    const auto byteAt = [text](std::size_t n) { return static_cast<unsigned char>(text[n]); };
    const unsigned nFirst = byteAt(nAt++);
    if (m_decoded[nFirst]) return m_decoded[nFirst];
    if (nFirst == 0 || nAt == text.size()) return g_chUnknown;
    const wchar_t character = m_decoded[nFirst << 8 | byteAt(nAt)];
    if (!character) return g_chUnknown;
    ++nAt;
    return character;
}

bool CCodeTable::Append(wchar_t character, std::string& strText) const {
    if (character <= 0 || character >= static_cast<wchar_t>(g_nCodes)) return false;
    const unsigned nCode = m_encoded[static_cast<std::size_t>(character)];
    if (!nCode) return false;
    strText += BytesOf(nCode);
    return true;
}
