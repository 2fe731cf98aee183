#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// Narrow text in the system code page, counted in bytes. Searches, cuts and changes of case know double-byte
/// characters: the second byte of one is never taken for a character of its own. Counts and positions out of
/// range are clamped; a bad index of a single byte stops the process.
class CString {
public:
    CString() = default;
    CString(const char* text)
        : m_strText(text ? text : "") {} // NOLINT: implicit, as its users write it
    CString(const char* text, int length);
    CString(std::string text)
        : m_strText(std::move(text)) {} // NOLINT: likewise
    /// repeat times one character.
    explicit CString(char character, int repeat = 1);
    /// Wide text; a character outside the code page becomes '?'.
    explicit CString(const wchar_t* wide);

    CString& operator=(const char* text);
    CString& operator=(char character);

    int GetLength() const { return static_cast<int>(m_strText.size()); }
    bool IsEmpty() const { return m_strText.empty(); }
    void Empty() { m_strText.clear(); }
    /// The byte at index; that at GetLength() is 0.
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char character);
    operator const char*() const { return m_strText.c_str(); } // NOLINT: implicit, as its users write it
    const char* GetString() const { return m_strText.c_str(); }
    std::string_view View() const { return m_strText; }

    /// Replaces the text; see FormatText.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));
    void AppendFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char character);
    void Append(const char* text) { *this += text; }
    void AppendChar(char character) { *this += character; }

    /// Below, equal or above 0, by bytes; CompareNoCase takes the letters A to Z for a to z.
    int Compare(const char* text) const;
    int CompareNoCase(const char* text) const;

    /// count bytes of the beginning, end, or from first on. A character that a cut would divide is left out.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    /// The leading part that consists of characters of the set, or of none of them.
    CString SpanIncluding(const char* set) const;
    CString SpanExcluding(const char* set) const;
    /// The next part between characters of the set, empty parts skipped; *start moves behind it, and is -1
    /// with an empty result when there is none left.
    CString Tokenize(const char* set, int& start) const;

    /// Byte position of the first one from start on, -1 when there is none.
    int Find(char character, int start = 0) const;
    int Find(const char* text, int start = 0) const;
    /// Of the last one.
    int ReverseFind(char character) const;
    /// Of the first character that is in the set.
    int FindOneOf(const char* set) const;

    /// These return the number of places changed (Replace, Remove) or the new length (Insert, Delete).
    int Replace(char from, char to);
    int Replace(const char* from, const char* to);
    int Remove(char character);
    int Insert(int index, char character);
    int Insert(int index, const char* text);
    int Delete(int index, int count = 1);

    /// Take away blanks (space, \t to \r), one character, or characters of a set.
    CString& Trim() { return TrimLeft().TrimRight(); }
    CString& Trim(char character) { return TrimLeft(character).TrimRight(character); }
    CString& Trim(const char* set) { return TrimLeft(set).TrimRight(set); }
    CString& TrimLeft() { return TrimLeft(BLANKS); }
    CString& TrimLeft(char character);
    CString& TrimLeft(const char* set);
    CString& TrimRight() { return TrimRight(BLANKS); }
    CString& TrimRight(char character);
    CString& TrimRight(const char* set);

    /// Letters A to Z only.
    CString& MakeUpper();
    CString& MakeLower();

    /// Room for at least length bytes and the ending zero, holding the text; to be ended by ReleaseBuffer,
    /// which takes the new length, or finds it by the ending zero.
    char* GetBuffer(int length = 0);
    void ReleaseBuffer(int length = -1);

private:
    static constexpr const char* BLANKS = " \t\n\v\f\r";

    std::string m_strText;
};

CString operator+(const CString& left, const CString& right);
CString operator+(const CString& left, const char* right);
CString operator+(const char* left, const CString& right);
CString operator+(const CString& left, char right);
CString operator+(char left, const CString& right);

inline bool operator==(const CString& left, const CString& right) {
    return left.View() == right.View();
}
inline bool operator==(const CString& left, const char* right) {
    return left.Compare(right) == 0;
}
inline auto operator<=>(const CString& left, const CString& right) {
    return left.Compare(right) <=> 0;
}
inline auto operator<=>(const CString& left, const char* right) {
    return left.Compare(right) <=> 0;
}

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& text) const noexcept {
        return std::hash<std::string_view>()(text.View());
    }
};
