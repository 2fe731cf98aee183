#include "host/datamanager/results.h"

#include <gtest/gtest.h>

#include "host/datamanager/layout.h"
#include "host/datamanager/schema.h"
#include "platform/windows/code_page.h"
#include "tests/support/programs.h"
#include "tests/support/test_database.h"

namespace {

class Results : public testing::TestWithParam<TestEngine> {
protected:
    Results() {
        LayOutTables(*m_pDatabase, ProjectTables());
        // Values as the suite stores them: 4-byte floats widened.
        m_pDatabase->Execute(
            "INSERT INTO z_c_SanZhou VALUES "
            "(3,'ZK10','1','固结不排水剪','2024.3.9',NULL,NULL,12.350000381,20,0.10000000149,-1.5,NULL,NULL),"
            "(3,'ZK9','b,\"c','固结排水剪',NULL,NULL,NULL,NULL,NULL,NULL,NULL,100000,33.5),"
            "(4,'ZK1','1','other','2024.1.1',1,1,1,1,1,1,1,1),"
            "(3,'ZK9','2',NULL,'',NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL)");
    }

    CTestDatabase m_database{GetParam()};
    std::shared_ptr<CDbConnection> m_pDatabase = m_database.Connect();
};

INSTANTIATE_TEST_SUITE_P(Engines, Results, TestEngines(), TestEngineName);

} // namespace

TEST_P(Results, AreCsvWithTheShortestNumbersInNaturalOrder) {
    EXPECT_EQ(ResultsText(ReadResults(*m_pDatabase, 3), ResultForm::Csv),
              Utf8(u8"ZKBH,QYBH,SYFF,SYRQ,UUC,UUF,CUC,CUF,CUCE,CUFE,CDC,CDF\n"
                   u8"ZK9,2,,,,,,,,,,\n"
                   u8"ZK9,\"b,\"\"c\",固结排水剪,,,,,,,,1e+05,33.5\n"
                   u8"ZK10,1,固结不排水剪,2024.3.9,,,12.35,20,0.1,-1.5,,\n"));
}

TEST_P(Results, AreTheSameWithTabsBetweenTheFields) {
    m_pDatabase->Execute("INSERT INTO z_c_SanZhou VALUES "
                         "(5,'ZK,9','a\tb','x','y \"z\"',1.5,NULL,NULL,NULL,NULL,NULL,NULL,2)");
    EXPECT_EQ(ResultsText(ReadResults(*m_pDatabase, 5), ResultForm::Tabs),
              "ZKBH\tQYBH\tSYFF\tSYRQ\tUUC\tUUF\tCUC\tCUF\tCUCE\tCUFE\tCDC\tCDF\n"
              "ZK,9\t\"a\tb\"\tx\t\"y \"\"z\"\"\"\t1.5\t\t\t\t\t\t\t2\n");
}

TEST_P(Results, AreAListOfObjectsInJson) {
    EXPECT_EQ(
        ResultsText(ReadResults(*m_pDatabase, 3), ResultForm::Json),
        Utf8(u8"[\n"
             u8"{\"ZKBH\":\"ZK9\",\"QYBH\":\"2\",\"SYFF\":null,\"SYRQ\":\"\",\"UUC\":null,\"UUF\":null,"
             u8"\"CUC\":null,"
             u8"\"CUF\":null,\"CUCE\":null,\"CUFE\":null,\"CDC\":null,\"CDF\":null},\n"
             u8"{\"ZKBH\":\"ZK9\",\"QYBH\":\"b,\\\"c\",\"SYFF\":\"固结排水剪\",\"SYRQ\":null,\"UUC\":null,"
             u8"\"UUF\":null,"
             u8"\"CUC\":null,\"CUF\":null,\"CUCE\":null,\"CUFE\":null,\"CDC\":1e+05,\"CDF\":33.5},\n"
             u8"{\"ZKBH\":\"ZK10\",\"QYBH\":\"1\",\"SYFF\":\"固结不排水剪\",\"SYRQ\":\"2024.3.9\",\"UUC\":"
             u8"null,"
             u8"\"UUF\":null,\"CUC\":12.35,\"CUF\":20,\"CUCE\":0.1,\"CUFE\":-1.5,\"CDC\":null,\"CDF\":null}\n"
             u8"]\n"));
    EXPECT_EQ(ResultsText(ReadResults(*m_pDatabase, 99), ResultForm::Json), "[\n]\n");
}

TEST_P(Results, AreAlignedForPeople) {
    EXPECT_EQ(ResultsText(ReadResults(*m_pDatabase, 3), ResultForm::Aligned),
              Utf8(u8"ZKBH  QYBH  SYFF          SYRQ      UUC  UUF  CUC    CUF  CUCE  CUFE  CDC    CDF\n"
                   u8"ZK9   2\n"
                   u8"ZK9   b,\"c  固结排水剪                                                1e+05  33.5\n"
                   u8"ZK10  1     固结不排水剪  2024.3.9            12.35  20   0.1   -1.5\n"));
}

TEST(ResultsCall, PrintsTheFormAskedFor) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    program.Do("new --root \"$ROOT\" --number A --name x");
    EXPECT_EQ(program.Do("results --root \"$ROOT\" --number A --json"), "[\n]\n");
    EXPECT_EQ(program.Do("results --root \"$ROOT\" --number A --csv"),
              "ZKBH,QYBH,SYFF,SYRQ,UUC,UUF,CUC,CUF,CUCE,CUFE,CDC,CDF\n");
    EXPECT_EQ(program.Tvdata("results --root \"$ROOT\" --number A --csv --json").m_nStatus, 2);
    EXPECT_EQ(program.Tvdata("results --root \"$ROOT\" --number B").m_nStatus, 1);
}
