#include "platform/mfc/string.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

#include "platform/mfc/format.h"
#include "platform/windows/code_page.h"
#include "platform/windows/host_assert.h"

namespace {

std::string_view ViewOf(const char* text) {
    return text ? std::string_view(text) : std::string_view();
}

char Lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}
char Upper(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
}

/// Changes each single-byte character; the bytes of a double-byte one stay.
void ChangeSingleBytes(std::string* text, char (*change)(char)) {
    const char* end = text->data() + text->size();
    for (std::size_t i = 0; i < text->size();) {
        const int length = GbkCharLength(text->data() + i, end);
        if (length == 1) (*text)[i] = change((*text)[i]);
        i += static_cast<std::size_t>(length);
    }
}

/// The least position of a character's beginning that is at or behind position.
std::size_t CharacterFrom(std::string_view text, std::size_t position) {
    std::size_t at = 0;
    while (at < position && at < text.size())
        at += static_cast<std::size_t>(GbkCharLength(text.data() + at, text.data() + text.size()));
    return at;
}

/// The greatest beginning of a character, or the end, that is at or before position.
std::size_t CharacterUpTo(std::string_view text, std::size_t position) {
    const std::size_t at = CharacterFrom(text, position);
    return at > position ? at - 2 : at;
}

} // namespace

CString::CString(const char* text, int length)
    : m_strText(text && length > 0 ? std::string(text, static_cast<std::size_t>(length)) : std::string()) {}

CString::CString(char character, int repeat)
    : m_strText(static_cast<std::size_t>(std::max(repeat, 0)), character) {}

CString::CString(const wchar_t* wide)
    : m_strText(wide ? GbkFromWide(wide) : std::string()) {}

CString& CString::operator=(const char* text) {
    m_strText = std::string(ViewOf(text)); // through a copy: text may lie in this very string
    return *this;
}

CString& CString::operator=(char character) {
    m_strText.assign(1, character);
    return *this;
}

char CString::GetAt(int index) const {
    HOST_ASSERT(index >= 0 && index <= GetLength(), "the index lies in the text");
    return m_strText.c_str()[index];
}

void CString::SetAt(int index, char character) {
    HOST_ASSERT(index >= 0 && index < GetLength(), "the index lies in the text");
    m_strText[static_cast<std::size_t>(index)] = character;
}

void CString::Format(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    m_strText = FormatTextV(format, arguments);
    va_end(arguments);
}

void CString::AppendFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    m_strText += FormatTextV(format, arguments);
    va_end(arguments);
}

CString& CString::operator+=(const CString& text) {
    m_strText += text.m_strText;
    return *this;
}

CString& CString::operator+=(const char* text) {
    m_strText.append(ViewOf(text));
    return *this;
}

CString& CString::operator+=(char character) {
    m_strText.push_back(character);
    return *this;
}

int CString::Compare(const char* text) const {
    return std::strcmp(m_strText.c_str(), text ? text : "");
}

int CString::CompareNoCase(const char* text) const {
    CString left(*this);
    CString right(text);
    return left.MakeLower().Compare(right.MakeLower());
}

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    const int kept = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - kept, kept);
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const int length = GetLength();
    const int from = std::clamp(first, 0, length);
    const int taken = std::clamp(count, 0, length - from);
    const std::size_t begin = CharacterFrom(m_strText, static_cast<std::size_t>(from));
    const std::size_t end =
        CharacterUpTo(m_strText, static_cast<std::size_t>(from) + static_cast<std::size_t>(taken));
    return end > begin ? CString(m_strText.substr(begin, end - begin)) : CString();
}

int CString::Insert(int index, char character) {
    const char text[2] = {character, 0};
    return Insert(index, text);
}

int CString::Insert(int index, const char* text) {
    const std::string inserted(ViewOf(text));
    m_strText.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), inserted);
    return GetLength();
}

int CString::Delete(int index, int count) {
    const int from = std::max(index, 0);
    if (from < GetLength() && count > 0)
        m_strText.erase(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
    return GetLength();
}

CString& CString::MakeUpper() {
    ChangeSingleBytes(&m_strText, Upper);
    return *this;
}

CString& CString::MakeLower() {
    ChangeSingleBytes(&m_strText, Lower);
    return *this;
}

char* CString::GetBuffer(int length) {
    m_strText.resize(static_cast<std::size_t>(std::max(length, GetLength())));
    return m_strText.data();
}

void CString::ReleaseBuffer(int length) {
    HOST_ASSERT(length <= GetLength(), "the new length fits the buffer that was asked for");
    m_strText.resize(length < 0 ? std::strlen(m_strText.c_str()) : static_cast<std::size_t>(length));
}

CString operator+(const CString& left, const CString& right) {
    return CString(left) += right;
}
CString operator+(const CString& left, const char* right) {
    return CString(left) += right;
}
CString operator+(const char* left, const CString& right) {
    return CString(left) += right;
}
CString operator+(const CString& left, char right) {
    return CString(left) += right;
}
CString operator+(char left, const CString& right) {
    return CString(left) += right;
}
