#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>

/// Takes the remarks of an import, one line each, UTF-8, and counts the refusals.
class CImportReport {
public:
    explicit CImportReport(std::FILE* pOut)
        : m_pOut(pOut) {}

    /// `FILE:LINE: COLUMN: reason`
    void Refuse(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                std::string_view strReason);
    /// `warning: FILE:LINE: COLUMN: reason`; stops nothing.
    void Warn(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
              std::string_view strReason);
    [[nodiscard]] std::size_t Refusals() const { return m_nRefusals; }

private:
    void Write(std::string_view strBegin, std::string_view strFile, std::size_t nLine,
               std::string_view strColumn, std::string_view strReason);

    std::FILE* m_pOut;
    std::size_t m_nRefusals = 0;
};
