#include "platform/acad/typed_text.h"

namespace {

constexpr wchar_t g_cEscape = 3;

} // namespace

void CTypedText::Type(std::wstring_view text, bool bEcho) {
    for (const wchar_t c : text) {
        if (c == g_cEscape) {
            m_strBegun.clear();
            m_arLines.push_back({{}, true, bEcho});
        } else if (c == L'\n') {
            EndLine(bEcho);
        } else if (c != L'\r') {
            m_strBegun += c;
        }
    }
    if (!m_strBegun.ends_with(L' ')) return;
    m_strBegun.pop_back();
    EndLine(bEcho);
}

std::optional<CTypedLine> CTypedText::TakeLine() {
    if (m_arLines.empty()) return std::nullopt;
    CTypedLine line = std::move(m_arLines.front());
    m_arLines.pop_front();
    return line;
}

void CTypedText::EndLine(bool bEcho) {
    m_arLines.push_back({std::move(m_strBegun), false, bEcho});
    m_strBegun.clear();
}
