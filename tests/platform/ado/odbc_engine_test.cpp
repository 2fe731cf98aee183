#include "platform/ado/odbc_engine.h"

#include <gtest/gtest.h>

#include "platform/ado/postgresql_engine.h"

TEST(OdbcEngine, KnowsPostgresqlByTheNameThatItsDriversGive) {
    EXPECT_EQ(&OdbcEngine("PostgreSQL"), &PostgresqlEngine());
    EXPECT_EQ(&OdbcEngine("postgresql"), &PostgresqlEngine());
}

TEST(OdbcEngine, HandsStatementsToAnUnknownEngineAsTheyStand) {
    const COdbcEngine& engine = OdbcEngine("Other");
    EXPECT_NE(&engine, &PostgresqlEngine());
    EXPECT_EQ(engine.Statement("select left([A],1)+'b';"), "select left([A],1)+'b';");
    EXPECT_EQ(engine.Opening(10), "");
    EXPECT_EQ(engine.TransactionLock(), "");
    EXPECT_EQ(engine.MarkColumns(), "");
    EXPECT_EQ(engine.InsertParameters(), 0U);
    EXPECT_EQ(engine.DialectScript(), "");
}

TEST(PostgresqlEngine, QuotesWhatItPutsIntoConditions) {
    EXPECT_EQ(PostgresqlEngine().RowCondition({"(0,1)", "5", "7"}),
              "ctid = '(0,1)' AND xmin = '5' AND pg_relation_filenode(tableoid) = '7'");
    EXPECT_NE(
        PostgresqlEngine().SuccessorCondition("\"o'k\"", {"(0,1)", "5", "7"}).find("currtid2('\"o''k\"'"),
        std::string::npos);
    EXPECT_EQ(PostgresqlEngine().Opening(0), "SET lock_timeout = 1");
}
