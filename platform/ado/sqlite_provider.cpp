#include "platform/ado/sqlite_provider.h"

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/ado/sql_dialect.h"
#include "platform/ado/sqlite_cursor.h"
#include "platform/ado/sqlite_pool.h"
#include "platform/ado/sqlite_statement.h"
#include "platform/windows/path.h"

namespace {

std::string EngineStatement(std::string_view strSql) {
    return TranslateDialect(StatementToUtf8(strSql, "SQLite"));
}

class CSqlitePrepared : public CDbStatement {
public:
    CSqlitePrepared(CSqliteHandle pDatabase, std::string_view strSqlUtf8)
        : m_statement(std::move(pDatabase), strSqlUtf8) {}

    void Execute(std::span<const CDbValue> arParameters) override {
        sqlite3_reset(m_statement.Get());
        m_statement.Bind(arParameters);
        while (m_statement.Step()) {
        }
        sqlite3_reset(m_statement.Get());
    }

private:
    CSqliteStatement m_statement;
};

class CSqliteConnection : public CDbConnection {
public:
    explicit CSqliteConnection(CSqliteHandle pDatabase)
        : m_pDatabase(std::move(pDatabase)) {}
    using CDbConnection::Execute;
    using CDbConnection::Query;

    std::unique_ptr<CDbCursor> Query(std::string_view strSql,
                                     std::span<const CDbValue> arParameters) override {
        return std::make_unique<CSqliteCursor>(m_pDatabase, EngineStatement(strSql), arParameters);
    }

    std::int64_t Execute(std::string_view strSql, std::span<const CDbValue> arParameters) override {
        CSqliteStatement statement(m_pDatabase, EngineStatement(strSql));
        statement.Bind(arParameters);
        const int nBefore = sqlite3_total_changes(m_pDatabase.get());
        while (statement.Step()) {
        }
        return sqlite3_total_changes(m_pDatabase.get()) == nBefore ? 0 : sqlite3_changes(m_pDatabase.get());
    }

    std::unique_ptr<CDbStatement> Prepare(std::string_view strSql) override {
        return std::make_unique<CSqlitePrepared>(m_pDatabase, EngineStatement(strSql));
    }

    void BeginTransaction() override { Execute("BEGIN IMMEDIATE"); }
    void CommitTransaction() override { Execute("COMMIT"); }
    void RollbackTransaction() override { Execute("ROLLBACK"); }

private:
    CSqliteHandle m_pDatabase;
};

/// The path in UTF-8 in the file system's spelling, in a form that the engine takes for a plain file whatever
/// its name begins with.
std::string FilePath(std::string_view strPath) {
    if (strPath.empty())
        throw CDbError(DbFailure::General, 0, "SQLite", "The connection text has no Data Source.");
    std::string strUtf8;
    ResolvePath("", strPath, &strUtf8);
    if (strUtf8.empty())
        throw CDbError(DbFailure::NotInCodePage, 0, "SQLite", "The database's path is broken.");
    return strUtf8.front() == '/' ? strUtf8 : "./" + strUtf8;
}

CSqliteHandle Handle(std::string_view strPath, int nFlags) {
    try {
        return OpenSqliteFile(FilePath(strPath), nFlags);
    } catch (const CDbError& error) {
        if (error.Code() != SQLITE_CANTOPEN) throw;
        throw CDbError(DbFailure::General, SQLITE_CANTOPEN, "SQLite",
                       "There is no database " + std::string(strPath) + ", or it cannot be opened.");
    }
}

std::shared_ptr<CDbConnection> OpenFile(std::string_view strPath, int nFlags, int nLockTimeout) {
    CSqliteHandle pDatabase = Handle(strPath, nFlags);
    sqlite3_busy_timeout(pDatabase.get(), nLockTimeout);
    return std::make_shared<CSqliteConnection>(std::move(pDatabase));
}

class CSqliteProvider : public CDbProvider {
public:
    [[nodiscard]] std::string_view Name() const override { return "SQLite"; }

    [[nodiscard]] std::shared_ptr<CDbConnection> Open(const CConnectionText& text) const override {
        return OpenFile(text.Value("Data Source"), SQLITE_OPEN_READWRITE, LockTimeout(text));
    }
};

} // namespace

const CDbProvider& SqliteProvider() {
    static const CSqliteProvider s_provider;
    return s_provider;
}

std::shared_ptr<CDbConnection> CreateSqliteDatabase(std::string_view strPath) {
    return OpenFile(strPath, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, g_nLockTimeout);
}
