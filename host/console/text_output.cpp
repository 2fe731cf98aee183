#include "host/console/text_output.h"

#include <string>

void CTextOutput::Write(std::string_view text) {
    std::string shown(text);
    std::erase(shown, '\r');
    if (shown.empty()) return;
    std::fwrite(shown.data(), 1, shown.size(), m_pFile);
    m_bAtLineStart = shown.back() == '\n';
}

void CTextOutput::WriteLine(std::string_view text) {
    BeginLine();
    Write(text);
    Write("\n");
}

void CTextOutput::BeginLine() {
    if (!m_bAtLineStart) Write("\n");
}

void CTextOutput::Flush() {
    std::fflush(m_pFile);
}
