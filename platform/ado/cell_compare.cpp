#include "platform/ado/cell_compare.h"

#include <algorithm>
#include <optional>

#include "platform/ado/date_text.h"
#include "platform/windows/code_page.h"

namespace {

std::optional<double> NumberIn(const CDbCell& cell) {
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*pWhole);
    if (const auto* pReal = std::get_if<double>(&cell)) return *pReal;
    return std::nullopt;
}

/// NULL, number, text, bytes.
int Rank(const CDbCell& cell) {
    if (std::holds_alternative<std::monostate>(cell)) return 0;
    if (NumberIn(cell)) return 1;
    return std::holds_alternative<std::string_view>(cell) ? 2 : 3;
}

std::weak_ordering CompareNumbers(double dLeft, double dRight) {
    return dLeft < dRight   ? std::weak_ordering::less
           : dLeft > dRight ? std::weak_ordering::greater
                            : std::weak_ordering::equivalent;
}

} // namespace

std::wstring FoldedText(std::string_view strText) {
    std::wstring strFolded = WideFromGbk(strText);
    for (wchar_t& character : strFolded)
        if (character >= L'A' && character <= L'Z') character += L'a' - L'A';
    return strFolded;
}

std::weak_ordering CompareCells(const CDbCell& left, const CDbCell& right, DBTYPE wDeclared) {
    if (Rank(left) != Rank(right)) return Rank(left) <=> Rank(right);
    const auto* pWhole = std::get_if<std::int64_t>(&left);
    const auto* pOtherWhole = std::get_if<std::int64_t>(&right);
    if (pWhole && pOtherWhole) return *pWhole <=> *pOtherWhole;
    if (const auto dNumber = NumberIn(left)) return CompareNumbers(*dNumber, NumberIn(right).value_or(0));
    if (const auto* pText = std::get_if<std::string_view>(&left)) {
        const auto& strOther = std::get<std::string_view>(right);
        if (wDeclared == DBTYPE_DATE) {
            const std::optional<double> dDays = DaysFromText(*pText);
            const std::optional<double> dOther = DaysFromText(strOther);
            if (dDays && dOther) return CompareNumbers(*dDays, *dOther);
        }
        return FoldedText(*pText) <=> FoldedText(strOther);
    }
    if (const auto* pBytes = std::get_if<std::span<const unsigned char>>(&left)) {
        const auto& arOther = std::get<std::span<const unsigned char>>(right);
        return std::lexicographical_compare_three_way(pBytes->begin(), pBytes->end(), arOther.begin(),
                                                      arOther.end());
    }
    return std::weak_ordering::equivalent;
}
