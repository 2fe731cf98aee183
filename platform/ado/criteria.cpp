#include "platform/ado/criteria.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/ado/cell_compare.h"
#include "platform/ado/com_error.h"
#include "platform/ado/criteria_parser.h"
#include "platform/ado/number_text.h"

namespace {

bool IsLike(const CCriterionValue& value, const CDbCell& cell) {
    const std::wstring strText = FoldedText(CellText(cell));
    if (value.m_bFromStart && value.m_bToEnd) return strText == value.m_strPattern;
    if (value.m_bFromStart) return strText.starts_with(value.m_strPattern);
    return strText.find(value.m_strPattern) != std::wstring::npos;
}

/// The order of a cell and a condition's value, which is taken as a number or as a text as the cell is one.
std::weak_ordering Compared(const CDbCell& cell, const CCriterionValue& value, DBTYPE wDeclared) {
    const CDbCell wanted = CellOf(value.m_value);
    const DBTYPE wType = value.m_bDate ? DBTYPE_DATE : wDeclared;
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell); pWhole && value.m_bTruth)
        return CompareCells(std::int64_t{*pWhole != 0 ? 1 : 0}, wanted, wType);
    const bool bText = std::holds_alternative<std::string_view>(cell);
    if (const auto* pText = std::get_if<std::string_view>(&wanted); pText && !bText) {
        const std::optional<double> dNumber = NumberFromText<double>(*pText);
        return dNumber ? CompareCells(cell, *dNumber, wType)
                       : CompareCells(std::string_view(CellText(cell)), wanted, wType);
    }
    if (bText) return CompareCells(cell, std::string_view(CellText(wanted)), wType);
    return CompareCells(cell, wanted, wType);
}

bool Holds(const CCriterion& criterion, const CDbCursor& rows, std::size_t nRow) {
    const std::size_t nColumn = rows.FindColumn(criterion.m_strColumn).value_or(0);
    const CDbCell& cell = rows.Cell(nRow, nColumn);
    const bool bNull = std::holds_alternative<std::monostate>(cell);
    if (std::holds_alternative<std::monostate>(criterion.m_value.m_value))
        return bNull == (criterion.m_operator == CriterionOperator::Equal);
    if (bNull) return false;
    if (criterion.m_operator == CriterionOperator::Like) return IsLike(criterion.m_value, cell);
    const std::weak_ordering order = Compared(cell, criterion.m_value, rows.Columns()[nColumn].m_wType);
    switch (criterion.m_operator) {
    case CriterionOperator::Equal:
        return order == 0;
    case CriterionOperator::NotEqual:
        return order != 0;
    case CriterionOperator::Less:
        return order < 0;
    case CriterionOperator::Greater:
        return order > 0;
    case CriterionOperator::LessOrEqual:
        return order <= 0;
    default:
        return order >= 0;
    }
}

} // namespace

CCriteria::CCriteria(std::string_view strText)
    : m_arGroups(ParseCriteria(strText)) {}

void CCriteria::RequireColumns(const CDbCursor& rows) const {
    for (const auto& arGroup : m_arGroups)
        for (const CCriterion& criterion : arGroup)
            if (!rows.FindColumn(criterion.m_strColumn))
                ADODB::RaiseAdoError(ADODB::adErrItemNotFound,
                                     "There is no column \"" + criterion.m_strColumn + "\".");
}

bool CCriteria::Meets(const CDbCursor& rows, std::size_t nRow) const {
    const auto holds = [&](const CCriterion& criterion) { return Holds(criterion, rows, nRow); };
    return m_arGroups.empty() ||
           std::any_of(m_arGroups.begin(), m_arGroups.end(), [&](const std::vector<CCriterion>& arGroup) {
               return std::all_of(arGroup.begin(), arGroup.end(), holds);
           });
}
