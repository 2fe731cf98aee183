#include "platform/ado/odbc_provider.h"

#include <gtest/gtest.h>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"

namespace {

class OdbcProvider : public CEngineTest {
protected:
    /// The database's connection text with one value put for another.
    [[nodiscard]] std::string With(const std::string& strKey, const std::string& strValue) const {
        return CConnectionText(ConnectionText()).Without(strKey) + ";" + strKey + "=" + strValue;
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, OdbcProvider, testing::Values(TestEngine::Postgresql), TestEngineName);

std::string WhyNotOpened(const std::string& strText) {
    try {
        OpenDbConnection(strText);
    } catch (const CDbError& error) {
        EXPECT_EQ(error.Failure(), DbFailure::General);
        EXPECT_EQ(error.Source(), "ODBC");
        EXPECT_EQ(std::string(error.what()).find('\n'), std::string::npos);
        return error.what();
    }
    return {};
}

} // namespace

TEST_P(OdbcProvider, HandsOnAllThatADriverManagerTakes) {
    EXPECT_EQ(Rows(*OpenDbConnection(With("ApplicationName", "{a;b}")), "select 5"), CRows{"5"});
    EXPECT_EQ(Rows(*OpenDbConnection(With("ConnSettings", "{SET search_path TO elsewhere}")),
                   "select current_setting('search_path')"),
              CRows{"elsewhere"});
}

TEST_P(OdbcProvider, SaysThatAServerIsDown) {
    const std::string strWhy = WhyNotOpened(With("Port", "1"));
    EXPECT_TRUE(strWhy.starts_with("database test")) << strWhy;
    EXPECT_NE(strWhy.find(" on 127.0.0.1:1: "), std::string::npos) << strWhy;
    EXPECT_NE(strWhy.find("Connection refused"), std::string::npos) << strWhy;
}

TEST_P(OdbcProvider, SaysThatThePasswordIsWrongWithoutPrintingIt) {
    const std::string strWhy = WhyNotOpened(With("Pwd", "hidden"));
    EXPECT_NE(strWhy.find("password authentication failed for user \"tervo\""), std::string::npos) << strWhy;
    EXPECT_EQ(strWhy.find("hidden"), std::string::npos) << strWhy;
}

TEST_P(OdbcProvider, SaysThatDriverDataSourceOrDatabaseIsMissing) {
    const std::string strDriver = WhyNotOpened(With("Driver", "No Such Driver"));
    EXPECT_NE(strDriver.find("No Such Driver"), std::string::npos) << strDriver;
    EXPECT_EQ(strDriver.find("only for tests"), std::string::npos) << strDriver;
    EXPECT_EQ(WhyNotOpened("Provider=ODBC;DSN=none;Pwd=x"),
              "data source none: Data source name not found and no default driver "
              "specified");
    EXPECT_NE(WhyNotOpened(With("Database", "nowhere")).find("database \"nowhere\" does not exist"),
              std::string::npos);
    EXPECT_EQ(WhyNotOpened("Provider=ODBC;Lock Timeout=5"),
              "The connection text names neither a driver nor a data source.");
}

TEST(OdbcPlace, NamesSourceOrDatabaseAndServerAndNothingElse) {
    EXPECT_EQ(OdbcPlace(CConnectionText("Provider=ODBC;DSN=gc;Pwd=x")), "data source gc");
    EXPECT_EQ(
        OdbcPlace(CConnectionText("Driver=D;Server=h;Port=5;Database=gc1;Uid=u;Pwd=x;pqopt={password=x}")),
        "database gc1 on h:5");
    EXPECT_EQ(OdbcPlace(CConnectionText("Driver=D;Servername=h;Database=gc1")), "database gc1 on h");
    EXPECT_EQ(OdbcPlace(CConnectionText("Driver=D;Database=gc1")), "database gc1");
}

TEST_P(OdbcProvider, FailsPlainlyWhenTheServerGoesAwayAndFindsItAgain) {
    m_pDatabase->Execute("create table t(a integer)");
    m_pDatabase->Execute("insert into t values(7)");
    const auto pRows = m_pDatabase->Query("select * from t");
    m_database.Break();
    EXPECT_THROW((void)m_pDatabase->Query("select * from t"), CDbError);
    EXPECT_THROW(pRows->UpdateRow(0, {{0, std::int64_t{8}}}), CDbError);
    EXPECT_EQ(m_arLines.size(), 1U);
    EXPECT_EQ(CellText(pRows->Cell(0, 0)), "7"); // what was read stays
    EXPECT_EQ(Rows(*OpenDbConnection(ConnectionText()), "select * from t"), CRows{"7"});
}

TEST_P(OdbcProvider, ReadsEveryTypeOfTheEngine) {
    const auto pCursor = m_pDatabase->Query(
        "select 1::smallint, 2::integer, 3::bigint, 1.5::real, 2.5::double precision, 1.25::numeric(8,2), "
        "'t'::varchar(9), 'u'::text, 'c'::char(3), date '2024-03-09', timestamp '2024-03-09 10:20:30', "
        "time '10:20:30', true, false, 'z'::bytea, null::integer, count(*) from pg_class where 1 = 0");
    const std::vector<DBTYPE> arTypes = {DBTYPE_I2,      DBTYPE_I4,   DBTYPE_I4,   DBTYPE_R4,   DBTYPE_R8,
                                         DBTYPE_DECIMAL, DBTYPE_BSTR, DBTYPE_BSTR, DBTYPE_BSTR, DBTYPE_DATE,
                                         DBTYPE_DATE,    DBTYPE_DATE, DBTYPE_BOOL, DBTYPE_BOOL, DBTYPE_BYTES,
                                         DBTYPE_NULL,    DBTYPE_I4};
    const CRows arTexts = {
        "1",        "2", "3", "1.5", "2.5", "1.25", "t", "u", "c  ", "2024-03-09", "2024-03-09 10:20:30",
        "10:20:30", "1", "0", "7A",  "",    "0"};
    ASSERT_EQ(pCursor->RowCount(), 1U);
    for (std::size_t i = 0; i < arTypes.size(); ++i) {
        EXPECT_EQ(pCursor->CellType(0, i), arTypes[i]) << i;
        EXPECT_EQ(CellText(pCursor->Cell(0, i)), arTexts[i]) << i;
    }
}

TEST_P(OdbcProvider, StoresNumbersWithoutLosingDigits) {
    m_pDatabase->Execute("create table t(d double precision, n integer, b bigint, m numeric)");
    const std::vector<CDbValue> arValues = {0.1 + 0.2, 100000.0, std::int64_t{9007199254740993}, 1e-300};
    m_pDatabase->Execute("insert into t values(?,?,?,?)", arValues);
    const auto pCursor = m_pDatabase->Query("select * from t");
    EXPECT_EQ(std::get<double>(pCursor->Cell(0, 0)), 0.1 + 0.2);
    EXPECT_EQ(std::get<std::int64_t>(pCursor->Cell(0, 1)), 100000);
    EXPECT_EQ(std::get<std::int64_t>(pCursor->Cell(0, 2)), 9007199254740993);
    EXPECT_EQ(std::get<double>(pCursor->Cell(0, 3)), 1e-300);
}

TEST_P(OdbcProvider, LaysTheDialectOutOnceAlsoForAUserWhoDoesNotOwnIt) {
    m_pDatabase->LayOutDialect();
    m_pDatabase->Execute("do $$ begin if not exists (select from pg_roles where rolname = 'guest') then "
                         "create role guest login password 'g'; end if; end $$");
    const auto pGuest = OpenDbConnection(CConnectionText(With("Uid", "guest")).Without("Pwd") + ";Pwd=g");
    EXPECT_NO_THROW(pGuest->LayOutDialect());
    EXPECT_EQ(Rows(*pGuest, "select val('12A')"), CRows{"12"});
    EXPECT_EQ(Rows(*pGuest, "select 'a'+'b'"), CRows{"ab"});
}
