#include "data/san_zhou_csxm_record.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <tuple>

#include "data/criteria.h"
#include "tests/support/suite_fixture.h"

namespace {

class SanZhouCSXMRecord : public CSuiteEngineTest {
protected:
    void Insert(const std::string& strHole, const std::string& strSample) {
        m_pDatabase->Execute("insert into z_c_SanZhouCSXM(GCSY,ZKBH,QYBH) values(1,?,?)",
                             std::vector<CDbValue>{strHole, strSample});
    }
    static CTexts Listed(const CString& strCriterion) {
        CTexts arNames;
        CSanZhouCSXMRecord record;
        EXPECT_TRUE(record.OpenRows(record.QueryFor(strCriterion), 0, 1));
        for (int nMoved = record.MoveFirstRow(); nMoved == 0; nMoved = record.MoveNextRow())
            arNames.push_back(std::string(record.m_szZKBH) + "|" + record.m_szQYBH);
        return arNames;
    }
};

/// The three keys of the natural order of an ASCII name.
std::tuple<int, double, std::string> Key(const std::string& strName) {
    const bool bDigit = strName[0] >= '0' && strName[0] <= '9';
    return {bDigit ? 0 : 1, std::strtod(strName.c_str(), nullptr),
            std::string(255 - strName.size(), '0') + strName};
}

INSTANTIATE_TEST_SUITE_P(Engines, SanZhouCSXMRecord, TestEngines(), TestEngineName);

} // namespace

TEST_P(SanZhouCSXMRecord, BindsItsSixteenColumnsByPosition) {
    Execute("insert into z_c_SanZhouCSXM values(1,'ZK1','1-1',2,3,100,80,39.1,1.5,10,20,30,0.25,40,0.5,-2)");
    CSanZhouCSXMRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor(ReadingsCriterion(1, "ZK1", "1-1")), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_EQ(record.m_nSJBH, 2);
    EXPECT_EQ(record.m_nSHJHXH, 3);
    const std::vector<float> arValues = {record.m_fWY,     record.m_fSYGD,  record.m_fSYZJ, record.m_fCLHXS,
                                         record.m_fGJKXYL, record.m_fCLHDS, record.m_fZXBX, record.m_fJQPS,
                                         record.m_fKXYL,   record.m_fGJPS};
    EXPECT_EQ(arValues, (std::vector<float>{100, 80, 39.1F, 1.5F, 10, 20, 30, 0.25F, 40, 0.5F}));
    EXPECT_EQ(record.m_nJLLX, -2);
}

TEST_P(SanZhouCSXMRecord, ReadsASamplesReadingsSpecimenBySpecimen) {
    Execute("insert into z_c_SanZhouCSXM(GCSY,ZKBH,QYBH,SJBH,SHJHXH) values(1,'K','1',2,1),(1,'K','1',1,10),"
            "(1,'K','1',1,9),(2,'K','1',1,1),(1,'K','2',1,1)");
    CSanZhouCSXMRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor(ReadingsCriterion(1, "K", "1")), 0, 1));
    std::vector<std::pair<int, int>> arRead;
    for (int nMoved = record.MoveFirstRow(); nMoved == 0; nMoved = record.MoveNextRow())
        arRead.emplace_back(record.m_nSJBH, record.m_nSHJHXH);
    EXPECT_EQ(arRead, (std::vector<std::pair<int, int>>{{1, 9}, {1, 10}, {2, 1}}));
}

TEST_P(SanZhouCSXMRecord, ListsBoreholesAndSamplesInNaturalOrder) {
    const CTexts arNames = {"9", "10",  "A1", "ZK1", "ZK10", "1-2", "1-10",
                            "2", "K'1", "a1", "B",   "ZK9",  "1A"};
    std::vector<std::pair<std::string, std::string>> arPairs;
    for (const std::string& strHole : arNames)
        for (const std::string& strSample : arNames)
            arPairs.emplace_back(strHole, strSample);
    std::shuffle(arPairs.begin(), arPairs.end(), std::mt19937(11)); // NOLINT: the same order in every run
    m_pDatabase->BeginTransaction();
    for (const auto& [strHole, strSample] : arPairs)
        Insert(strHole, strSample);
    m_pDatabase->CommitTransaction();
    std::sort(arPairs.begin(), arPairs.end(), [](const auto& a, const auto& b) {
        return std::tuple(Key(a.first), Key(a.second)) < std::tuple(Key(b.first), Key(b.second));
    });
    CTexts arExpected;
    for (const auto& [strHole, strSample] : arPairs)
        arExpected.push_back(std::string(strHole).append("|").append(strSample));
    EXPECT_EQ(Listed(ProjectListCriterion(1)), arExpected);
    EXPECT_EQ(Listed(OpenDialogListCriterion(1)), arExpected);
}

TEST_P(SanZhouCSXMRecord, ListsOneBoreholesSamplesWithAnApostropheInItsNumber) {
    for (const char* pszSample : {"10", "A1", "9", "1-2"})
        Insert("K'1", pszSample);
    Insert("K1", "1");
    EXPECT_EQ(Listed(BoreholeListCriterion(1, "K'1")), (CTexts{"K'1|1-2", "K'1|9", "K'1|10", "K'1|A1"}));
}
