#include "platform/mfc/string.h"

#include <algorithm>
#include <cstring>

#include "platform/windows/code_page.h"

// The operations of CString that look for characters; each walks whole characters from the beginning.

namespace {

std::string_view CharacterAt(std::string_view text, std::size_t position) {
    const char* at = text.data() + position;
    return text.substr(position, static_cast<std::size_t>(GbkCharLength(at, text.data() + text.size())));
}

bool IsOneOf(std::string_view character, std::string_view set) {
    for (std::size_t i = 0; i < set.size();) {
        const std::string_view member = CharacterAt(set, i);
        if (member == character) return true;
        i += member.size();
    }
    return false;
}

/// Position of the first character from start on that is (wanted) or is not in the set, or the text's length.
std::size_t FirstOf(std::string_view text, std::string_view set, bool wanted, std::size_t start = 0) {
    std::size_t i = start;
    while (i < text.size()) {
        const std::string_view character = CharacterAt(text, i);
        if (IsOneOf(character, set) == wanted) break;
        i += character.size();
    }
    return i;
}

/// Position of the first occurrence at or behind start, npos when there is none.
std::size_t FirstText(std::string_view text, std::string_view wanted, std::size_t start) {
    for (std::size_t i = 0; i < text.size();) {
        if (i >= start && text.substr(i).starts_with(wanted)) return i;
        i += CharacterAt(text, i).size();
    }
    return wanted.empty() && start <= text.size() ? text.size() : std::string_view::npos;
}

std::string_view SetOf(const char* set) {
    return set ? std::string_view(set) : std::string_view();
}

} // namespace

CString CString::SpanIncluding(const char* set) const {
    return CString(m_strText.substr(0, FirstOf(m_strText, SetOf(set), false)));
}

CString CString::SpanExcluding(const char* set) const {
    return CString(m_strText.substr(0, FirstOf(m_strText, SetOf(set), true)));
}

CString CString::Tokenize(const char* set, int& start) const {
    if (start >= 0 && start < GetLength()) {
        const std::size_t from = FirstOf(m_strText, SetOf(set), false, static_cast<std::size_t>(start));
        if (from < m_strText.size()) {
            const std::size_t until = FirstOf(m_strText, SetOf(set), true, from);
            const std::size_t separator = until < m_strText.size() ? CharacterAt(m_strText, until).size() : 1;
            start = static_cast<int>(until + separator);
            return CString(m_strText.substr(from, until - from));
        }
    }
    start = -1;
    return {};
}

int CString::Find(char character, int start) const {
    const char text[2] = {character, 0};
    return character ? Find(text, start) : -1;
}

int CString::Find(const char* text, int start) const {
    if (!text || start < 0 || start > GetLength()) return -1;
    const std::size_t position = FirstText(m_strText, text, static_cast<std::size_t>(start));
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

int CString::ReverseFind(char character) const {
    int found = -1;
    for (int position = Find(character); position >= 0; position = Find(character, position + 1))
        found = position;
    return found;
}

int CString::FindOneOf(const char* set) const {
    const std::size_t position = FirstOf(m_strText, SetOf(set), true);
    return position < m_strText.size() ? static_cast<int>(position) : -1;
}

int CString::Replace(char from, char to) {
    int count = 0;
    for (int position = Find(from); position >= 0; position = Find(from, position + 1), ++count)
        m_strText[static_cast<std::size_t>(position)] = to;
    return count;
}

int CString::Replace(const char* from, const char* to) {
    const std::string_view wanted = SetOf(from);
    if (wanted.empty()) return 0;
    std::string result;
    int count = 0;
    for (std::size_t i = 0; i < m_strText.size();) {
        if (std::string_view(m_strText).substr(i).starts_with(wanted)) {
            result.append(SetOf(to));
            i += wanted.size();
            ++count;
        } else {
            const std::string_view character = CharacterAt(m_strText, i);
            result.append(character);
            i += character.size();
        }
    }
    if (count) m_strText = std::move(result);
    return count;
}

int CString::Remove(char character) {
    const char text[2] = {character, 0};
    return character ? Replace(text, "") : 0;
}

CString& CString::TrimLeft(char character) {
    const char set[2] = {character, 0};
    return TrimLeft(set);
}

CString& CString::TrimLeft(const char* set) {
    m_strText.erase(0, FirstOf(m_strText, SetOf(set), false));
    return *this;
}

CString& CString::TrimRight(char character) {
    const char set[2] = {character, 0};
    return TrimRight(set);
}

CString& CString::TrimRight(const char* set) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_strText.size();) {
        const std::string_view character = CharacterAt(m_strText, i);
        i += character.size();
        if (!IsOneOf(character, SetOf(set))) kept = i;
    }
    m_strText.resize(kept);
    return *this;
}
