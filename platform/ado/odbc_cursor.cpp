#include "platform/ado/odbc_cursor.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"

namespace {

/// How often a row is sought that other programs keep changing.
constexpr int g_nMostSearches = 5;

[[noreturn]] void Refuse(DbFailure failure, const char* pszWhy) {
    throw CDbError(failure, 0, "ODBC", pszWhy);
}

std::vector<CDbValue> Values(const std::vector<CDbChange>& arChanges) {
    std::vector<CDbValue> arValues;
    arValues.reserve(arChanges.size());
    for (const CDbChange& change : arChanges)
        arValues.push_back(change.m_value);
    return arValues;
}

} // namespace

COdbcCursor::COdbcCursor(COdbcHandle pLink, std::string strSqlUtf8, std::span<const CDbValue> arParameters)
    : m_pLink(std::move(pLink))
    , m_strSql(std::move(strSqlUtf8))
    , m_arParameters(arParameters.begin(), arParameters.end())
    , m_select(ReadPlainSelect(m_strSql)) {
    if (m_select) m_strTable = NameFromUtf8(m_select->m_strTable);
    if (m_pLink->Engine().MarkColumns().empty()) m_select.reset();
    COdbcStatement statement(m_pLink);
    RunWithMarks(statement);
    ReadColumns(statement);
    while (statement.Fetch())
        ReadRow(statement);
}

void COdbcCursor::RunWithMarks(COdbcStatement& statement) {
    if (m_select) {
        try {
            const auto strWithMarks = WithHiddenColumns(m_strSql, m_pLink->Engine().MarkColumns());
            statement.Run(*strWithMarks, m_arParameters);
            return;
        } catch (const CDbError& error) {
            // A view has no marks and is read without; the plain statement says what else is wrong.
            if (error.Failure() == DbFailure::Locked || error.Failure() == DbFailure::NotInCodePage) throw;
            m_select.reset();
        }
    }
    statement.Run(m_strSql, m_arParameters);
}

void COdbcCursor::ReadColumns(const COdbcStatement& statement) {
    std::vector<COdbcColumn> arGiven = statement.Columns();
    if (arGiven.empty()) Refuse(DbFailure::General, "The statement gives no rows.");
    if (m_select) arGiven.resize(arGiven.size() - g_nMarkColumns);
    std::vector<CDbColumn> arColumns;
    arColumns.reserve(arGiven.size());
    for (const COdbcColumn& column : arGiven)
        arColumns.push_back({NameFromUtf8(column.m_strName), column.m_wType});
    SetColumns(std::move(arColumns));
    if (!m_select) return;
    const auto& arNames = m_select->m_arColumns;
    if (std::ranges::count(arNames, "*") > 1) {
        m_select.reset(); // which column is which cannot be told
        return;
    }
    for (const std::string& strName : arNames) {
        if (strName != "*") {
            m_arOrigins.push_back(strName);
            continue;
        }
        const std::size_t nAll = arGiven.size() + 1 - arNames.size();
        for (std::size_t i = 0; i < nAll; ++i)
            m_arOrigins.push_back(QuotedName(arGiven[m_arOrigins.size()].m_strName));
    }
}

void COdbcCursor::ReadRow(COdbcStatement& statement) {
    const std::size_t nColumns = Columns().size();
    for (std::size_t i = 0; i < nColumns; ++i)
        AppendCell(ReadCell(statement, i));
    if (m_select) m_arMarks.push_back(ReadMark(statement, nColumns));
}

CDbCell COdbcCursor::ReadCell(COdbcStatement& statement, std::size_t nColumn) {
    switch (Columns()[nColumn].m_wType) {
    case DBTYPE_I2:
    case DBTYPE_I4:
    case DBTYPE_UI1:
    case DBTYPE_BOOL: {
        std::int64_t nValue = 0;
        return statement.ReadWhole(nColumn, &nValue) ? CDbCell(nValue) : CDbCell();
    }
    case DBTYPE_R4:
    case DBTYPE_R8:
    case DBTYPE_DECIMAL: {
        double dValue = 0.0;
        return statement.ReadReal(nColumn, &dValue) ? CDbCell(dValue) : CDbCell();
    }
    case DBTYPE_BYTES:
        if (!statement.ReadBytes(nColumn, &m_arBytes)) return {};
        return std::span<const unsigned char>(m_arBytes);
    default: {
        std::string strUtf8;
        if (!statement.ReadText(nColumn, &strUtf8)) return {};
        m_strText = TextFromUtf8(strUtf8, m_strTable, Columns()[nColumn].m_strName, "ODBC");
        return std::string_view(m_strText);
    }
    }
}

CRowMark COdbcCursor::ReadMark(COdbcStatement& statement, std::size_t nFirstColumn) {
    CRowMark mark;
    statement.ReadText(nFirstColumn, &mark.m_strPlace);
    statement.ReadText(nFirstColumn + 1, &mark.m_strVersion);
    statement.ReadText(nFirstColumn + 2, &mark.m_strFile);
    return mark;
}

void COdbcCursor::RequireOneTable() const {
    if (!m_select) Refuse(DbFailure::ReadOnly, "the result is not the rows of one table");
}

const std::string& COdbcCursor::WrittenName(const CDbChange& change) const {
    return m_arOrigins[change.m_nColumn];
}

void COdbcCursor::WriteRow(std::size_t nRow, const std::vector<CDbChange>& arChanges) {
    RequireOneTable();
    std::string strSql = "UPDATE " + m_select->Target() + " SET ";
    for (const CDbChange& change : arChanges)
        strSql += (&change == arChanges.data() ? "" : ",") + WrittenName(change) + "=?";
    RunOnRow(strSql, Values(arChanges), nRow);
}

void COdbcCursor::EraseRow(std::size_t nRow) {
    RequireOneTable();
    RunOnRow("DELETE FROM " + m_select->Target(), {}, nRow);
}

void COdbcCursor::AddRow(const std::vector<CDbChange>& arChanges) {
    RequireOneTable();
    std::vector<std::string> arNames;
    arNames.reserve(arChanges.size());
    for (const CDbChange& change : arChanges)
        arNames.push_back(WrittenName(change));
    std::string strSql = InsertStatement(m_select->Target(), arNames);
    strSql.append(" RETURNING ").append(m_select->m_strColumns).append(", ");
    COdbcStatement statement(m_pLink);
    statement.Run(strSql.append(m_pLink->Engine().MarkColumns()), Values(arChanges));
    if (statement.Fetch()) ReadRow(statement);
}

bool COdbcCursor::ReadRowAgain(std::size_t nRow) {
    RequireOneTable();
    const std::string strSql = "SELECT " + m_select->m_strColumns + ", " +
                               std::string(m_pLink->Engine().MarkColumns()) + " FROM " + m_select->Target() +
                               " WHERE ";
    for (int i = 0; i < g_nMostSearches; ++i) {
        COdbcStatement statement(m_pLink);
        statement.Run(strSql + m_pLink->Engine().RowCondition(m_arMarks[nRow]), {});
        if (statement.Fetch()) {
            for (std::size_t nColumn = 0; nColumn < Columns().size(); ++nColumn)
                SetCell(nRow, nColumn, ReadCell(statement, nColumn));
            return true;
        }
        if (FindAgain(nRow) != Search::Found) return false;
    }
    return false;
}

void COdbcCursor::RunOnRow(const std::string& strSql, std::span<const CDbValue> arValues, std::size_t nRow) {
    const COdbcEngine& engine = m_pLink->Engine();
    for (int i = 0; i < g_nMostSearches; ++i) {
        COdbcStatement statement(m_pLink);
        statement.Run(strSql + " WHERE " + engine.RowCondition(m_arMarks[nRow]) + " RETURNING " +
                          std::string(engine.MarkColumns()),
                      arValues);
        if (statement.Fetch()) {
            m_mapEarlier[nRow].push_back(std::exchange(m_arMarks[nRow], ReadMark(statement, 0)));
            return;
        }
        switch (FindAgain(nRow)) {
        case Search::Found:
            break;
        case Search::Gone:
            Refuse(DbFailure::RowGone, "the row was deleted by another program");
        case Search::Ambiguous:
            Refuse(DbFailure::General,
                   "the row was changed by another program and cannot be told from others");
        }
    }
    Refuse(DbFailure::General, "the row is changed by other programs all the time");
}

COdbcCursor::Search COdbcCursor::FindAgain(std::size_t nRow) {
    const COdbcEngine& engine = m_pLink->Engine();
    // A write that was rolled back leaves the row as it was before.
    const std::vector<CRowMark>& arEarlier = m_mapEarlier[nRow];
    for (auto it = arEarlier.rbegin(); it != arEarlier.rend(); ++it) {
        if (const auto mark = MarkWhere(engine.RowCondition(*it))) {
            m_arMarks[nRow] = *mark;
            return Search::Found;
        }
    }
    const auto successor = MarkWhere(engine.SuccessorCondition(m_select->m_strTable, m_arMarks[nRow]));
    if (!successor || std::ranges::find(m_arMarks, *successor) != m_arMarks.end())
        return FindByElimination(nRow);
    m_arMarks[nRow] = *successor;
    return Search::Found;
}

std::optional<CRowMark> COdbcCursor::MarkWhere(const std::string& strCondition) const {
    try {
        COdbcStatement statement(m_pLink);
        statement.Run("SELECT " + std::string(m_pLink->Engine().MarkColumns()) + " FROM " +
                          m_select->m_strTable + " WHERE " + strCondition,
                      {});
        if (statement.Fetch()) return ReadMark(statement, 0);
    } catch (const CDbError& error) {
        // The place may lie outside a table that has shrunk, and an engine may have lost the function.
        if (error.Failure() == DbFailure::Locked) throw;
    }
    return std::nullopt;
}

/// The statement is run again. Rows of it that stand here too are accounted for. Is there one that does not,
/// and is this row the only one here that it can be, it is this row; of several those count that hold this
/// row's values.
COdbcCursor::Search COdbcCursor::FindByElimination(std::size_t nRow) {
    const COdbcCursor now(m_pLink, m_strSql, m_arParameters);
    if (!now.m_select) return Search::Gone;
    std::vector<std::size_t> arNew = now.RowsNotIn(*this);
    std::vector<std::size_t> arMissing = RowsNotIn(now);
    if (arNew.empty()) return Search::Gone;
    if (arNew.size() > 1 || arMissing.size() > 1) {
        std::erase_if(arNew, [&](std::size_t i) { return !SameValues(nRow, now, i); });
        std::erase_if(arMissing, [&](std::size_t i) { return !SameValues(nRow, *this, i); });
    }
    if (arNew.size() != 1 || arMissing.size() != 1) return Search::Ambiguous;
    m_arMarks[nRow] = now.m_arMarks[arNew[0]];
    return Search::Found;
}

std::vector<std::size_t> COdbcCursor::RowsNotIn(const COdbcCursor& other) const {
    const std::set<CRowMark> setMarks(other.m_arMarks.begin(), other.m_arMarks.end());
    std::vector<std::size_t> arRows;
    for (std::size_t i = 0; i < m_arMarks.size(); ++i)
        if (!setMarks.contains(m_arMarks[i])) arRows.push_back(i);
    return arRows;
}

bool COdbcCursor::SameValues(std::size_t nRow, const COdbcCursor& other, std::size_t nOther) const {
    for (std::size_t i = 0; i < Columns().size(); ++i) {
        const CDbCell& mine = Cell(nRow, i);
        const CDbCell& theirs = other.Cell(nOther, i);
        if (mine.index() != theirs.index() || CellText(mine) != CellText(theirs)) return false;
    }
    return true;
}
