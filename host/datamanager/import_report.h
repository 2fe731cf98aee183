#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// What an import says of a place in a file; texts are UTF-8.
struct CImportRemark {
    bool m_bRefusal = true; ///< else a warning, which stops nothing
    std::string m_strFile;
    std::size_t m_nLine = 0; ///< from 1
    std::string m_strColumn;
    std::string m_strReason;
};

/// `FILE:LINE: COLUMN: reason`, behind `warning: ` for a warning; one line, without its
/// end. Of a text longer than any column's it tells the start and the end.
std::string RemarkLine(const CImportRemark& remark);

/// Takes the remarks of an import, counts the refusals, and hears how far it is.
class CImportReport {
public:
    using CListener = std::function<void(const CImportRemark& remark)>;
    /// Hears how many bytes of all files have been read; its false gives the import up.
    using CProgress = std::function<bool(std::uintmax_t nRead)>;

    explicit CImportReport(CListener fnListener, CProgress fnProgress = {})
        : m_fnListener(std::move(fnListener))
        , m_fnProgress(std::move(fnProgress)) {}

    void Refuse(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
                std::string_view strReason);
    void Warn(std::string_view strFile, std::size_t nLine, std::string_view strColumn,
              std::string_view strReason);
    [[nodiscard]] std::size_t Refusals() const { return m_nRefusals; }

    /// Tells how far the import is. CFailure (refused) when it is given up.
    void TellProgress(std::uintmax_t nRead) const;

private:
    CListener m_fnListener;
    CProgress m_fnProgress;
    std::size_t m_nRefusals = 0;
};
