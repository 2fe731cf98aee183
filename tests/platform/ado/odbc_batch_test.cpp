#include "platform/ado/odbc_batch.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/ado/error.h"
#include "tests/platform/ado/database_fixture.h"

namespace {
class OdbcBatch : public CEngineTest {};
INSTANTIATE_TEST_SUITE_P(Engines, OdbcBatch, testing::Values(TestEngine::Postgresql), TestEngineName);
} // namespace

TEST_P(OdbcBatch, SendsQueuedRowsTogether) {
    m_pDatabase->Execute("create table t(a integer)");
    const auto pInsert = m_pDatabase->Prepare("insert into t values(?)");
    pInsert->Queue(std::array<CDbValue, 1>{std::int64_t{1}});
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from t"), CRows{"0"}); // it waits for others
    pInsert->Execute(std::array<CDbValue, 1>{std::int64_t{2}});          // which keeps its place
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t"), (CRows{"1", "2"}));
}

TEST_P(OdbcBatch, TellsOfARowThatFailsAndKeepsNoneOfItsCompany) {
    m_pDatabase->Execute("create table t(a integer unique)");
    const auto pInsert = m_pDatabase->Prepare("insert into t values(?)");
    for (const std::int64_t nValue : {1, 2, 2})
        pInsert->Queue(std::array<CDbValue, 1>{nValue});
    EXPECT_THROW(pInsert->Flush(), CDbError);
    EXPECT_NO_THROW(pInsert->Flush());
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t"), CRows{});
}

TEST_P(OdbcBatch, RunsOtherStatementsOneByOne) {
    m_pDatabase->Execute("create table t(a integer)");
    m_pDatabase->Execute("insert into t values(1)");
    const auto pUpdate = m_pDatabase->Prepare("update t set a = a + ?");
    for (const std::int64_t nValue : {10, 100})
        pUpdate->Queue(std::array<CDbValue, 1>{nValue});
    EXPECT_EQ(Rows(*m_pDatabase, "select a from t"), CRows{"111"});
}
