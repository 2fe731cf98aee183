#include "platform/ado/cursor.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/ado/error.h"
#include "platform/ado/gbk_name.h"
#include "platform/ado/number_text.h"
#include "platform/ado/report.h"

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

std::string Hexadecimal(std::span<const unsigned char> arBytes) {
    static constexpr std::string_view s_strDigits = "0123456789ABCDEF";
    std::string strText;
    for (const unsigned char byte : arBytes) {
        strText += s_strDigits[byte >> 4U];
        strText += s_strDigits[byte & 0xFU];
    }
    return strText;
}

/// The bytes behind a text or bytes; none for other cells.
std::span<const unsigned char> BytesBehind(const CDbCell& cell) {
    if (const auto* pText = std::get_if<std::string_view>(&cell))
        return {reinterpret_cast<const unsigned char*>(pText->data()), pText->size()};
    const auto* pBytes = std::get_if<std::span<const unsigned char>>(&cell);
    return pBytes ? *pBytes : std::span<const unsigned char>();
}

} // namespace

CDbCell CellOf(const CDbValue& value) {
    return std::visit([](const auto& held) -> CDbCell { return held; }, value);
}

std::string CellText(const CDbCell& cell) {
    if (const auto* pText = std::get_if<std::string_view>(&cell)) return std::string(*pText);
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return ShortestText(*pWhole);
    if (const auto* pReal = std::get_if<double>(&cell)) return ShortestText(*pReal);
    return Hexadecimal(BytesBehind(cell));
}

std::optional<std::size_t> CDbCursor::FindColumn(std::string_view strName) const {
    for (std::size_t i = 0; i < m_arColumns.size(); ++i)
        if (SameGbkName(m_arColumns[i].m_strName, strName)) return i;
    return std::nullopt;
}

DBTYPE CellType(const CDbCell& cell, DBTYPE wDeclared) {
    if (std::holds_alternative<std::monostate>(cell)) return DBTYPE_NULL;
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell))
        return FitsWhole(wDeclared, *pWhole) ? wDeclared : DBTYPE_I4;
    if (std::holds_alternative<double>(cell)) {
        const bool bReal = wDeclared == DBTYPE_R4 || wDeclared == DBTYPE_DECIMAL;
        return bReal ? wDeclared : DBTYPE_R8;
    }
    if (std::holds_alternative<std::span<const unsigned char>>(cell)) return DBTYPE_BYTES;
    return wDeclared == DBTYPE_DATE ? DBTYPE_DATE : DBTYPE_BSTR;
}

template <class Write>
void CDbCursor::ReportFailure(std::span<const CDbCell> arRow, const char* pszOutcome, const Write& write) {
    try {
        write();
    } catch (const CDbError& error) {
        const std::string strWhy =
            error.Failure() == DbFailure::Locked ? "locked by another program" : error.what();
        ReportLine(RowName(arRow) + ": " + strWhy + ", " + pszOutcome);
        throw;
    }
}

void CDbCursor::UpdateRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) {
    ReportFailure(Row(nRow), "row not stored", [&] { WriteRow(nRow, arChanges); });
    for (const CDbChange& change : arChanges)
        SetCell(nRow, change.m_nColumn, CellOf(change.m_value));
}

void CDbCursor::InsertRow(const std::vector<CDbChange>& arChanges) {
    std::vector<CDbCell> arRow(m_arColumns.size());
    for (const CDbChange& change : arChanges)
        arRow[change.m_nColumn] = CellOf(change.m_value);
    ReportFailure(arRow, "row not stored", [&] {
        try {
            AddRow(arChanges);
        } catch (...) {
            m_arCells.resize(m_nRows * m_arColumns.size()); // no part of a row stays behind
            throw;
        }
    });
}

void CDbCursor::DeleteRow(std::size_t nRow) {
    ReportFailure(Row(nRow), "row not deleted", [&] { EraseRow(nRow); });
}

bool CDbCursor::RefreshRow(std::size_t nRow) {
    return ReadRowAgain(nRow);
}

std::span<const CDbCell> CDbCursor::Row(std::size_t nRow) const {
    return std::span(m_arCells).subspan(nRow * m_arColumns.size(), m_arColumns.size());
}

std::string CDbCursor::RowName(std::span<const CDbCell> arRow) const {
    std::string strName = TableName();
    for (const char* pszKey : {"ZKBH", "QYBH"})
        if (const auto nColumn = FindColumn(pszKey)) strName += " " + CellText(arRow[*nColumn]);
    return strName;
}

CDbCell CDbCursor::Kept(const CDbCell& cell) {
    const std::span<const unsigned char> arBytes = BytesBehind(cell);
    if (arBytes.empty()) return cell;
    auto* pKept = static_cast<unsigned char*>(m_texts.allocate(arBytes.size(), 1));
    std::memcpy(pKept, arBytes.data(), arBytes.size());
    if (std::holds_alternative<std::string_view>(cell))
        return std::string_view(reinterpret_cast<const char*>(pKept), arBytes.size());
    return std::span<const unsigned char>(pKept, arBytes.size());
}

void CDbCursor::AppendCell(const CDbCell& cell) {
    m_arCells.push_back(Kept(cell));
    if (m_arCells.size() == (m_nRows + 1) * m_arColumns.size()) ++m_nRows;
}

void CDbCursor::SetCell(std::size_t nRow, std::size_t nColumn, const CDbCell& cell) {
    CDbCell& kept = m_arCells[nRow * m_arColumns.size() + nColumn];
    // Rows are read anew again and again, and what the buffer holds it holds until the cursor goes.
    const bool bSame = kept.index() == cell.index() && !BytesBehind(cell).empty() &&
                       std::ranges::equal(BytesBehind(kept), BytesBehind(cell));
    if (!bSame) kept = Kept(cell);
}
