#pragma once

#include <cstdio>
#include <string_view>

/// Standard output of a run, or a file in its place. Texts are UTF-8; '\r' is dropped. It knows whether a
/// line is begun, so that what needs a line of its own gets one.
class CTextOutput {
public:
    explicit CTextOutput(std::FILE* pFile = stdout)
        : m_pFile(pFile) {}

    void Write(std::string_view text);     ///< as it stands
    void WriteLine(std::string_view text); ///< on a line of its own
    void BeginLine();                      ///< ends the line that is begun, if one is
    void Flush();

private:
    std::FILE* m_pFile;
    bool m_bAtLineStart = true;
};
