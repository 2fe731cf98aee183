#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/ado/connection_text.h"
#include "platform/ado/cursor.h"
#include "platform/ado/value.h"

/// A statement that gives no rows, prepared once and run many times. It holds its database open.
class CDbStatement {
public:
    CDbStatement() = default;
    CDbStatement(const CDbStatement&) = delete;
    CDbStatement& operator=(const CDbStatement&) = delete;
    virtual ~CDbStatement() = default;

    /// Runs it with these values for its parameters; failures throw CDbError, and it can be run again.
    virtual void Execute(std::span<const CDbValue> arParameters) = 0;
    /// Runs it with these values now or with later ones in one go, which is quicker where every run is a way
    /// to a server; at the latest Flush runs it. What fails may so be told by a later call, and rows are not
    /// seen before Flush.
    virtual void Queue(std::span<const CDbValue> arParameters) { Execute(arParameters); }
    virtual void Flush() {}
};

/// An open database. Statements and values are GBK, in the suite's SQL dialect; `?` stands for a parameter.
/// Operations that fail throw CDbError. A cursor may outlive the object that gave it: it holds the database
/// open itself.
class CDbConnection {
public:
    CDbConnection() = default;
    CDbConnection(const CDbConnection&) = delete;
    CDbConnection& operator=(const CDbConnection&) = delete;
    virtual ~CDbConnection() = default;

    /// Runs a statement that gives rows and reads them all.
    [[nodiscard]] virtual std::unique_ptr<CDbCursor> Query(std::string_view strSql,
                                                           std::span<const CDbValue> arParameters) = 0;
    /// Runs a statement that gives none; the result is the number of rows it inserted, changed or deleted.
    virtual std::int64_t Execute(std::string_view strSql, std::span<const CDbValue> arParameters) = 0;

    /// Prepares a statement that gives no rows.
    [[nodiscard]] virtual std::unique_ptr<CDbStatement> Prepare(std::string_view strSql) = 0;

    /// A transaction takes the write lock at once; one that is neither committed nor rolled back is undone on
    /// close.
    virtual void BeginTransaction() = 0;
    virtual void CommitTransaction() = 0;
    virtual void RollbackTransaction() = 0;

    /// Puts into the database what it needs to understand the suite's dialect, if it is not there; for
    /// whoever lays out its tables, in the same transaction. Nothing where the functions come with the
    /// connection.
    virtual void LayOutDialect() {}

    /// The type of a column for real numbers. It keeps eight bytes on every engine: a depth that was written
    /// as 4.6 is not less than the 4.6 in a statement.
    [[nodiscard]] virtual std::string_view RealType() const { return "REAL"; }

    /// The statement, in the engine's words, that runs a stored procedure with so many parameters. Throws
    /// where the engine has none, which is what a connection answers unless it says otherwise.
    [[nodiscard]] virtual std::string ProcedureCall(std::string_view strName, std::size_t nParameters) const;

    [[nodiscard]] std::unique_ptr<CDbCursor> Query(std::string_view strSql) { return Query(strSql, {}); }
    std::int64_t Execute(std::string_view strSql) { return Execute(strSql, {}); }
};

/// How long a statement waits for another program's lock, in ms, unless its connection text says otherwise.
inline constexpr int g_nLockTimeout = 10000;

/// The wait of a connection text: its key `Lock Timeout`, in ms, else g_nLockTimeout.
int LockTimeout(const CConnectionText& text);

/// A kind of database.
class CDbProvider {
public:
    CDbProvider() = default;
    CDbProvider(const CDbProvider&) = delete;
    CDbProvider& operator=(const CDbProvider&) = delete;
    virtual ~CDbProvider() = default;

    /// The value of key `Provider` that means this kind.
    [[nodiscard]] virtual std::string_view Name() const = 0;
    [[nodiscard]] virtual std::shared_ptr<CDbConnection> Open(const CConnectionText& text) const = 0;
};

/// Opens the database that a connection text names: `Provider=SQLite;Data Source=/path/file.db` or
/// `Provider=ODBC;<what a driver manager takes>`; SQLite is meant where no provider is named. Throws CDbError
/// when the provider is unknown or its database cannot be had. Never creates a database.
std::shared_ptr<CDbConnection> OpenDbConnection(std::string_view strConnection);
