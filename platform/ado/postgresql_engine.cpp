#include "platform/ado/postgresql_engine.h"

#include "platform/ado/postgresql_dialect.h"
#include "platform/ado/postgresql_script.h"

namespace {

std::string Literal(std::string_view strText) {
    std::string strLiteral = "'";
    for (const char c : strText)
        strLiteral.append(c == '\'' ? 2 : 1, c);
    return strLiteral + "'";
}

class CPostgresqlEngine : public COdbcEngine {
public:
    [[nodiscard]] std::string Statement(std::string_view strSql) const override {
        return TranslateForPostgresql(strSql);
    }

    [[nodiscard]] std::string Opening(int nLockTimeout) const override {
        // 0 would mean to wait for ever
        return "SET lock_timeout = " + std::to_string(nLockTimeout > 0 ? nLockTimeout : 1);
    }

    /// The engine has no write lock of the whole database, and two importers that both read what is stored
    /// before they write would refuse nothing and store keys twice. So a transaction takes one lock of a
    /// number of ours, at its first statement: the second importer waits, then reads what the first one
    /// stored. Single statements and readers do not ask for it, and it goes with the transaction. LOCK TABLE
    /// would also keep out other tools, but every program that stores one row meanwhile, too.
    [[nodiscard]] std::string TransactionLock() const override {
        return "SELECT pg_advisory_xact_lock(1413830223)"; // "TERO"
    }

    [[nodiscard]] std::string_view MarkColumns() const override {
        return "ctid, xmin, pg_relation_filenode(tableoid)";
    }

    [[nodiscard]] std::string RowCondition(const CRowMark& mark) const override {
        return "ctid = " + Literal(mark.m_strPlace) + " AND xmin = " + Literal(mark.m_strVersion) +
               " AND pg_relation_filenode(tableoid) = " + Literal(mark.m_strFile);
    }

    /// A version that was replaced knows the place of its successor until it is swept away.
    [[nodiscard]] std::string SuccessorCondition(std::string_view strTable,
                                                 const CRowMark& mark) const override {
        return "ctid = (SELECT currtid2(" + Literal(strTable) + ", " + Literal(mark.m_strPlace) +
               "::tid)) AND ctid <> " + Literal(mark.m_strPlace) +
               " AND pg_relation_filenode(tableoid) = " + Literal(mark.m_strFile);
    }

    [[nodiscard]] std::size_t InsertParameters() const override { return 4000; }
    [[nodiscard]] std::string_view DialectQuery() const override {
        return "SELECT 1 WHERE to_regprocedure('tervo_dialect_1()') IS NOT NULL";
    }
    [[nodiscard]] std::string_view DialectScript() const override { return PostgresqlScript(); }
};

} // namespace

const COdbcEngine& PostgresqlEngine() {
    static const CPostgresqlEngine s_engine;
    return s_engine;
}
