#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

/// Where a row stands in its table, as the engine puts it in its hidden columns.
struct CRowMark {
    std::string m_strPlace;   ///< where this version of the row lies
    std::string m_strVersion; ///< who wrote it
    std::string m_strFile;    ///< the table's file, which changes when the table is written anew

    auto operator<=>(const CRowMark&) const = default;
};

/// The number of hidden columns that make a CRowMark, in its order.
inline constexpr std::size_t g_nMarkColumns = 3;

/// What the ODBC provider has to know of the engine behind a driver. Statements are UTF-8. This one stands
/// for every engine that nothing is known of: its results can be read, and rows are written by statements
/// only.
class COdbcEngine {
public:
    COdbcEngine() = default;
    COdbcEngine(const COdbcEngine&) = delete;
    COdbcEngine& operator=(const COdbcEngine&) = delete;
    virtual ~COdbcEngine() = default;

    /// A statement of the suite's dialect in the engine's words.
    [[nodiscard]] virtual std::string Statement(std::string_view strSql) const { return std::string(strSql); }
    /// Sent first on every connection; empty for nothing. The wait for a lock is in ms.
    [[nodiscard]] virtual std::string Opening(int /*nLockTimeout*/) const { return {}; }
    /// Sent first in a transaction, to take the write lock; empty for nothing.
    [[nodiscard]] virtual std::string TransactionLock() const { return {}; }
    /// The columns that tell a table's rows apart, g_nMarkColumns of them; empty where there are none.
    [[nodiscard]] virtual std::string_view MarkColumns() const { return {}; }
    /// The condition that only the row with this mark meets.
    [[nodiscard]] virtual std::string RowCondition(const CRowMark& /*mark*/) const { return {}; }
    /// The condition that the row meets into which other programs turned the one with this mark.
    [[nodiscard]] virtual std::string SuccessorCondition(std::string_view /*strTable*/,
                                                         const CRowMark& /*mark*/) const {
        return {};
    }
    /// How many parameters an INSERT may have that inserts several rows; 0 where it takes but one.
    [[nodiscard]] virtual std::size_t InsertParameters() const { return 0; }
    /// A query that gives a row when the database has the functions of the suite's dialect, and the script
    /// that makes them; both empty where the engine needs none.
    [[nodiscard]] virtual std::string_view DialectQuery() const { return {}; }
    [[nodiscard]] virtual std::string_view DialectScript() const { return {}; }
};

/// The engine of a name that a driver gives.
const COdbcEngine& OdbcEngine(std::string_view strDbms);
