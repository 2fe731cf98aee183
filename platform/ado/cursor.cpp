#include "platform/ado/cursor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>

#include "platform/ado/error.h"
#include "platform/ado/report.h"
#include "platform/ado/text.h"

namespace {

bool FitsWhole(DBTYPE wType, std::int64_t nValue) {
    const auto within = [nValue](auto limits) { return nValue >= limits.min() && nValue <= limits.max(); };
    switch (wType) {
    case DBTYPE_I2:
        return within(std::numeric_limits<std::int16_t>());
    case DBTYPE_I4:
        return within(std::numeric_limits<std::int32_t>());
    case DBTYPE_I1:
        return within(std::numeric_limits<std::int8_t>());
    case DBTYPE_UI1:
        return within(std::numeric_limits<std::uint8_t>());
    case DBTYPE_UI4:
        return within(std::numeric_limits<std::uint32_t>());
    case DBTYPE_BOOL:
    case DBTYPE_R4:
    case DBTYPE_R8:
    case DBTYPE_DECIMAL:
        return true;
    default:
        return false;
    }
}

template <class Number>
std::string NumberText(Number value) {
    std::array<char, 64> szText{};
    return {szText.data(), std::to_chars(szText.data(), szText.data() + szText.size(), value).ptr};
}

} // namespace

std::string CellText(const CDbCell& cell) {
    if (const auto* pText = std::get_if<std::string_view>(&cell)) return std::string(*pText);
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return NumberText(*pWhole);
    if (const auto* pReal = std::get_if<double>(&cell)) return NumberText(*pReal);
    return {};
}

std::optional<std::size_t> CDbCursor::FindColumn(std::string_view strName) const {
    for (std::size_t i = 0; i < m_arColumns.size(); ++i)
        if (EqualNoCase(m_arColumns[i].m_strName, strName)) return i;
    return std::nullopt;
}

DBTYPE CDbCursor::CellType(std::size_t nRow, std::size_t nColumn) const {
    const CDbCell& cell = Cell(nRow, nColumn);
    const DBTYPE wDeclared = m_arColumns[nColumn].m_wType;
    if (std::holds_alternative<std::monostate>(cell)) return DBTYPE_NULL;
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell))
        return FitsWhole(wDeclared, *pWhole) ? wDeclared : DBTYPE_I4;
    if (std::holds_alternative<double>(cell)) {
        const bool bReal = wDeclared == DBTYPE_R4 || wDeclared == DBTYPE_DECIMAL;
        return bReal ? wDeclared : DBTYPE_R8;
    }
    return wDeclared == DBTYPE_DATE ? DBTYPE_DATE : DBTYPE_BSTR;
}

void CDbCursor::UpdateRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) {
    try {
        WriteRow(nRow, arChanges);
    } catch (const CDbError& error) {
        const std::string strWhy =
            error.Failure() == DbFailure::Locked ? "locked by another program" : error.what();
        ReportLine(RowName(nRow) + ": " + strWhy + ", row not stored");
        throw;
    }
    for (const CDbChange& change : arChanges) {
        const CDbCell cell = std::visit([](const auto& value) -> CDbCell { return value; },
                                        change.m_value); // the text is kept in the next step
        m_arCells[nRow * m_arColumns.size() + change.m_nColumn] = Kept(cell);
    }
}

std::string CDbCursor::RowName(std::size_t nRow) const {
    std::string strName = TableName();
    for (const char* pszKey : {"ZKBH", "QYBH"})
        if (const auto nColumn = FindColumn(pszKey)) strName += " " + CellText(Cell(nRow, *nColumn));
    return strName;
}

CDbCell CDbCursor::Kept(const CDbCell& cell) {
    const auto* pText = std::get_if<std::string_view>(&cell);
    if (!pText || pText->empty()) return cell;
    char* pKept = static_cast<char*>(m_texts.allocate(pText->size(), 1));
    std::memcpy(pKept, pText->data(), pText->size());
    return std::string_view(pKept, pText->size());
}

void CDbCursor::AppendCell(const CDbCell& cell) {
    m_arCells.push_back(Kept(cell));
    if (m_arCells.size() == (m_nRows + 1) * m_arColumns.size()) ++m_nRows;
}
