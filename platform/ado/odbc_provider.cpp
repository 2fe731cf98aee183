#include "platform/ado/odbc_provider.h"

#include <utility>

#include "platform/ado/database_text.h"
#include "platform/ado/error.h"
#include "platform/ado/odbc_batch.h"
#include "platform/ado/odbc_cursor.h"
#include "platform/ado/odbc_link.h"
#include "platform/ado/odbc_statement.h"

namespace {

constexpr const char* g_pSource = "ODBC";

class COdbcConnection : public CDbConnection {
public:
    explicit COdbcConnection(COdbcHandle pLink)
        : m_pLink(std::move(pLink)) {}
    using CDbConnection::Execute;
    using CDbConnection::Query;

    std::unique_ptr<CDbCursor> Query(std::string_view strSql,
                                     std::span<const CDbValue> arParameters) override {
        return std::make_unique<COdbcCursor>(m_pLink, EngineStatement(strSql), arParameters);
    }

    std::int64_t Execute(std::string_view strSql, std::span<const CDbValue> arParameters) override {
        COdbcStatement statement(m_pLink);
        statement.Run(EngineStatement(strSql), arParameters);
        return statement.RowCount();
    }

    std::unique_ptr<CDbStatement> Prepare(std::string_view strSql) override {
        return std::make_unique<COdbcBatch>(m_pLink, EngineStatement(strSql));
    }

    void BeginTransaction() override {
        m_pLink->BeginTransaction();
        const std::string strLock = m_pLink->Engine().TransactionLock();
        try {
            if (!strLock.empty()) COdbcStatement(m_pLink).Run(strLock, {});
        } catch (...) {
            m_pLink->EndTransaction(SQL_ROLLBACK);
            throw;
        }
    }
    void CommitTransaction() override { m_pLink->EndTransaction(SQL_COMMIT); }
    void RollbackTransaction() override { m_pLink->EndTransaction(SQL_ROLLBACK); }

    void LayOutDialect() override {
        const COdbcEngine& engine = m_pLink->Engine();
        if (engine.DialectScript().empty()) return;
        COdbcStatement asked(m_pLink);
        asked.Run(engine.DialectQuery(), {});
        if (!asked.Fetch()) COdbcStatement(m_pLink).Run(engine.DialectScript(), {});
    }

    [[nodiscard]] std::string_view RealType() const override { return "DOUBLE PRECISION"; }

private:
    [[nodiscard]] std::string EngineStatement(std::string_view strSql) const {
        std::string strStatement = m_pLink->Engine().Statement(StatementToUtf8(strSql, g_pSource));
        if (strStatement.empty()) throw CDbError(DbFailure::General, 0, g_pSource, "The statement is empty.");
        return strStatement;
    }

    COdbcHandle m_pLink;
};

class COdbcProvider : public CDbProvider {
public:
    [[nodiscard]] std::string_view Name() const override { return g_pSource; }

    [[nodiscard]] std::shared_ptr<CDbConnection> Open(const CConnectionText& text) const override {
        const std::string strDriver = CConnectionText(text.Without("Provider")).Without("Lock Timeout");
        if (strDriver.empty())
            throw CDbError(DbFailure::General, 0, g_pSource,
                           "The connection text names neither a driver nor a data source.");
        COdbcHandle pLink;
        try {
            pLink = std::make_shared<COdbcLink>(StatementToUtf8(strDriver, g_pSource));
        } catch (const CDbError& error) {
            throw CDbError(error.Failure(), error.Code(), g_pSource, OdbcPlace(text) + ": " + error.what());
        }
        const std::string strOpening = pLink->Engine().Opening(LockTimeout(text));
        if (!strOpening.empty()) COdbcStatement(pLink).Run(strOpening, {});
        return std::make_shared<COdbcConnection>(std::move(pLink));
    }
};

} // namespace

std::string OdbcPlace(const CConnectionText& text) {
    const std::string strSource = text.Value("DSN");
    if (!strSource.empty()) return "data source " + strSource;
    std::string strPlace = "database";
    if (!text.Value("Database").empty()) strPlace += " " + text.Value("Database");
    const std::string strServer =
        text.Value("Server").empty() ? text.Value("Servername") : text.Value("Server");
    if (!strServer.empty()) strPlace += " on " + strServer;
    if (!text.Value("Port").empty()) strPlace += ":" + text.Value("Port");
    return strPlace;
}

const CDbProvider& OdbcProvider() {
    static const COdbcProvider s_provider;
    return s_provider;
}
