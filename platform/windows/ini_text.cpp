#include "platform/windows/ini_text.h"

#include <algorithm>

#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

namespace {

constexpr std::string_view MARK = "\xEF\xBB\xBF";
constexpr std::string_view BLANKS = " \t\r\n\v\f";
constexpr std::size_t NONE = static_cast<std::size_t>(-1);

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(BLANKS);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(BLANKS) - first + 1);
}

std::string_view WithoutQuotes(std::string_view text) {
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

/// The part before the first ']' that is no trail byte.
std::string_view UpToBracket(std::string_view text, bool utf8) {
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] == ']') return text.substr(0, i);
        i += utf8 ? 1 : static_cast<std::size_t>(GbkCharLength(text.data() + i, text.data() + text.size()));
    }
    return text;
}

bool IsOneLine(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos;
}

bool IsSectionName(std::string_view name) {
    return IsOneLine(name) && Trimmed(name) == name && UpToBracket(name, false).size() == name.size();
}

bool IsKeyName(std::string_view name) {
    return !name.empty() && IsOneLine(name) && Trimmed(name) == name && name.find('=') == name.npos &&
           name.front() != '[' && name.front() != ';';
}

} // namespace

CIniText::CIniText(std::string_view bytes) {
    m_bMark = bytes.starts_with(MARK);
    if (m_bMark) bytes.remove_prefix(MARK.size());
    m_bUtf8 = m_bMark || LooksLikeUtf8(bytes);
    while (!bytes.empty()) {
        const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        m_arLines.push_back(Line(std::string(bytes.substr(0, length))));
        bytes.remove_prefix(length);
    }
}

CIniText::CLine CIniText::Line(std::string bytes) const {
    CLine line;
    line.m_strBytes = std::move(bytes);
    const std::string_view text = Trimmed(line.m_strBytes);
    if (text.empty() || text.front() == ';') return line;
    if (text.front() == '[') {
        line.m_kind = CKind::Section;
        // A heading whose name the page lacks still ends the section before it.
        if (!Decode(Trimmed(UpToBracket(text.substr(1), m_bUtf8)), &line.m_strName)) line.m_strName = "\n";
        return line;
    }
    const std::size_t sign = line.m_strBytes.find('=');
    if (sign == std::string::npos) return line;
    const std::string_view name = Trimmed(std::string_view(line.m_strBytes).substr(0, sign));
    if (name.empty() || !Decode(name, &line.m_strName)) return line;
    line.m_kind = CKind::Key;
    line.m_nValue = sign + 1;
    return line;
}

bool CIniText::Decode(std::string_view bytes, std::string* text, std::string* refused) const {
    if (m_bUtf8) return Utf8ToGbk(bytes, text, refused);
    *text = bytes;
    return true;
}

bool CIniText::Encode(std::string_view text, std::string* bytes) const {
    std::string utf8;
    if (!GbkToUtf8(text, &utf8)) return false;
    *bytes = m_bUtf8 ? std::move(utf8) : std::string(text);
    return true;
}

std::size_t CIniText::FindSection(std::string_view section) const {
    for (std::size_t i = 0; i < m_arLines.size(); ++i)
        if (m_arLines[i].m_kind == CKind::Section && SameFileName(m_arLines[i].m_strName, Trimmed(section)))
            return i;
    return NONE;
}

std::size_t CIniText::SectionEnd(std::size_t heading) const {
    std::size_t end = heading + 1;
    while (end < m_arLines.size() && m_arLines[end].m_kind != CKind::Section)
        ++end;
    return end;
}

std::size_t CIniText::FindKey(std::size_t heading, std::string_view key) const {
    for (std::size_t i = heading + 1, end = SectionEnd(heading); i < end; ++i)
        if (m_arLines[i].m_kind == CKind::Key && SameFileName(m_arLines[i].m_strName, Trimmed(key))) return i;
    return NONE;
}

std::optional<std::string> CIniText::Value(std::string_view section, std::string_view key) const {
    m_strRefused.clear();
    const std::size_t heading = FindSection(section);
    const std::size_t found = heading == NONE ? NONE : FindKey(heading, key);
    if (found == NONE) return std::nullopt;
    const std::string_view bytes =
        std::string_view(m_arLines[found].m_strBytes).substr(m_arLines[found].m_nValue);
    std::string value;
    if (!Decode(WithoutQuotes(Trimmed(bytes)), &value, &m_strRefused)) return std::nullopt;
    return value;
}

std::vector<std::string> CIniText::Sections() const {
    std::vector<std::string> names;
    for (const CLine& line : m_arLines)
        if (line.m_kind == CKind::Section && line.m_strName != "\n") names.push_back(line.m_strName);
    return names;
}

std::vector<std::string> CIniText::Keys(std::string_view section) const {
    std::vector<std::string> names;
    const std::size_t heading = FindSection(section);
    if (heading == NONE) return names;
    for (std::size_t i = heading + 1, end = SectionEnd(heading); i < end; ++i)
        if (m_arLines[i].m_kind == CKind::Key) names.push_back(m_arLines[i].m_strName);
    return names;
}

bool CIniText::Set(std::string_view section, std::string_view key, std::string_view value) {
    std::string heading;
    std::string name;
    std::string text;
    if (!IsSectionName(section) || !IsKeyName(key) || !IsOneLine(value)) return false;
    if (!Encode(section, &heading) || !Encode(key, &name) || !Encode(value, &text)) return false;
    std::size_t at = FindSection(section);
    if (at == NONE) {
        InsertLine(m_arLines.size(), '[' + heading + ']');
        at = m_arLines.size() - 1;
    }
    const std::size_t found = FindKey(at, key);
    if (found == NONE) {
        std::size_t end = SectionEnd(at);
        while (end > at + 1 && Trimmed(m_arLines[end - 1].m_strBytes).empty())
            --end;
        InsertLine(end, name + '=' + text);
        return true;
    }
    CLine& line = m_arLines[found];
    const std::size_t lineEnd = line.m_strBytes.find_last_not_of("\r\n") + 1;
    line.m_strBytes.replace(line.m_nValue, std::max(lineEnd, line.m_nValue) - line.m_nValue, text);
    return true;
}

void CIniText::Remove(std::string_view section, std::string_view key) {
    const std::size_t heading = FindSection(section);
    const std::size_t found = heading == NONE ? NONE : FindKey(heading, key);
    if (found != NONE) m_arLines.erase(m_arLines.begin() + static_cast<std::ptrdiff_t>(found));
}

void CIniText::RemoveSection(std::string_view section) {
    const std::size_t heading = FindSection(section);
    if (heading == NONE) return;
    const auto first = m_arLines.begin() + static_cast<std::ptrdiff_t>(heading);
    m_arLines.erase(first, m_arLines.begin() + static_cast<std::ptrdiff_t>(SectionEnd(heading)));
}

std::string CIniText::LineEnd() const {
    return !m_arLines.empty() && m_arLines.front().m_strBytes.ends_with("\r\n") ? "\r\n" : "\n";
}

void CIniText::InsertLine(std::size_t index, const std::string& text) {
    const std::string lineEnd = LineEnd();
    if (index > 0 && !m_arLines[index - 1].m_strBytes.ends_with('\n'))
        m_arLines[index - 1].m_strBytes += lineEnd;
    m_arLines.insert(m_arLines.begin() + static_cast<std::ptrdiff_t>(index), Line(text + lineEnd));
}

std::string CIniText::Bytes() const {
    std::string bytes;
    for (const CLine& line : m_arLines)
        bytes += line.m_strBytes;
    if (m_bMark) return std::string(MARK) + bytes;
    if (IsAscii(bytes) || LooksLikeUtf8(bytes) == m_bUtf8) return bytes;
    if (m_bUtf8) return std::string(MARK) + bytes; // a two-byte character came in
    // Rare text in the code page reads as UTF-8 too; one line that does not tells the reader what it is.
    if (!bytes.ends_with('\n')) bytes += LineEnd();
    return bytes + "; 系统代码页" + LineEnd();
}
