#pragma once
// Text that a program typed at a command line in a user's place.

#include <deque>
#include <optional>
#include <string>
#include <string_view>

/// One answer of it.
struct CTypedLine {
    std::wstring m_strText;
    bool m_bEscape = false; ///< Escape was pressed instead; the text is empty
    bool m_bEcho = true;    ///< shown like what a user types
};

/// What was typed and not yet read. A line ends at a line break, and at a blank that a piece of typing ends
/// with; what is begun beyond that waits for more. Character 3 is Escape: it drops what is begun.
class CTypedText {
public:
    void Type(std::wstring_view text, bool bEcho);
    bool HasLine() const { return !m_arLines.empty(); }
    std::optional<CTypedLine> TakeLine();

private:
    void EndLine(bool bEcho);

    std::wstring m_strBegun;
    std::deque<CTypedLine> m_arLines;
};
