#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The text of an ini file: lines that are kept byte for byte but for those that are set or removed. Names
/// and values are handed in and out in the code page; the file itself may be UTF-8. Names compare without
/// case; of two equal sections or keys the first one counts.
class CIniText {
public:
    /// A file with a UTF-8 mark is UTF-8; without it only when all of it is valid and each character beyond
    /// ASCII takes three bytes or more. Everything else is in the code page.
    explicit CIniText(std::string_view bytes);

    /// The value without the blanks and one pair of quotes around it; nothing when there is no such key. A
    /// value with a character that the code page lacks counts as missing, and Refused() names it.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    std::vector<std::string> Sections() const;
    std::vector<std::string> Keys(std::string_view section) const;
    /// The character (UTF-8) for which the last Value gave nothing; empty when the key is missing.
    const std::string& Refused() const { return m_strRefused; }

    /// Sets or adds a key, and its section. False, and nothing changed, for a name or value that could not be
    /// read back (a line break, an empty key, '=' in a key, ']' in a section, broken characters).
    bool Set(std::string_view section, std::string_view key, std::string_view value);
    void Remove(std::string_view section, std::string_view key);
    void RemoveSection(std::string_view section);

    /// The file's bytes, in its encoding and such that it is recognised again.
    std::string Bytes() const;

private:
    enum class CKind { Other, Section, Key };
    struct CLine {
        std::string m_strBytes; // with its line end
        CKind m_kind = CKind::Other;
        std::string m_strName;    // of a section or key, in the code page
        std::size_t m_nValue = 0; // where a key's value begins in m_strBytes
    };

    CLine Line(std::string bytes) const;
    bool Decode(std::string_view bytes, std::string* text, std::string* refused = nullptr) const;
    bool Encode(std::string_view text, std::string* bytes) const;
    std::size_t FindSection(std::string_view section) const;
    std::size_t SectionEnd(std::size_t heading) const;
    std::size_t FindKey(std::size_t heading, std::string_view key) const;
    void InsertLine(std::size_t index, const std::string& text);
    std::string LineEnd() const;

    bool m_bMark = false;
    bool m_bUtf8 = false;
    std::vector<CLine> m_arLines;
    mutable std::string m_strRefused;
};
