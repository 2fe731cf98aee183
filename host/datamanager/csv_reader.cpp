#include "host/datamanager/csv_reader.h"

#include <string_view>

namespace {
constexpr int g_nEnd = std::char_traits<char>::eof();
}

CCsvReader::CCsvReader(std::istream& stream)
    : m_buffer(*stream.rdbuf()) {
    SkipMark();
}

void CCsvReader::SkipMark() {
    constexpr std::string_view strMark = "\xEF\xBB\xBF";
    for (std::size_t i = 0; i < strMark.size(); ++i) {
        if (Peek() == static_cast<unsigned char>(strMark[i])) {
            m_buffer.sbumpc();
            continue;
        }
        while (i-- > 0)
            m_buffer.sungetc();
        return;
    }
}

int CCsvReader::Peek() {
    return m_buffer.sgetc();
}

int CCsvReader::Take() {
    const int c = m_buffer.sbumpc();
    if (c == '\n') ++m_nLine;
    return c;
}

/// Whether the line, or the file, ends here. A CR before the LF belongs to the end.
bool CCsvReader::AtLineEnd() {
    if (Peek() != '\r') return Peek() == '\n' || Peek() == g_nEnd;
    m_buffer.sbumpc();
    if (Peek() == '\n') return true;
    m_buffer.sungetc();
    return false;
}

bool CCsvReader::Next(CCsvRecord* pRecord) {
    while (Peek() != g_nEnd && AtLineEnd())
        Take();
    if (Peek() == g_nEnd) return false;
    pRecord->m_nLine = m_nLine;
    pRecord->m_arFields.clear();
    pRecord->m_strFault.clear();
    ReadField(pRecord);
    while (pRecord->m_strFault.empty() && Peek() == ',') {
        Take();
        ReadField(pRecord);
    }
    if (!pRecord->m_strFault.empty()) SkipLine();
    Take();
    return true;
}

void CCsvReader::ReadField(CCsvRecord* pRecord) {
    pRecord->m_arFields.emplace_back();
    if (Peek() == '"')
        ReadQuoted(pRecord);
    else
        ReadPlain(pRecord);
}

void CCsvReader::ReadPlain(CCsvRecord* pRecord) {
    std::string& strField = pRecord->m_arFields.back();
    while (Peek() != ',' && !AtLineEnd()) {
        if (Peek() == '"' || Peek() == '\r') {
            pRecord->m_strFault = Peek() == '"' ? "a quote stands inside a field that is not quoted"
                                                : "a carriage return stands without a line feed";
            return;
        }
        strField.push_back(static_cast<char>(Take()));
    }
}

void CCsvReader::ReadQuoted(CCsvRecord* pRecord) {
    std::string& strField = pRecord->m_arFields.back();
    Take();
    for (int c = Take(); c != g_nEnd; c = Take()) {
        if (c == '"' && Peek() != '"') {
            if (Peek() != ',' && !AtLineEnd()) pRecord->m_strFault = "text follows the closing quote";
            return;
        }
        if (c == '"') Take();
        strField.push_back(static_cast<char>(c));
    }
    pRecord->m_strFault = "the quote is never closed";
}

void CCsvReader::SkipLine() {
    while (Peek() != '\n' && Peek() != g_nEnd)
        Take();
}
