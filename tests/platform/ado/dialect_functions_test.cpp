#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "tests/platform/ado/database_fixture.h"

namespace {

/// The functions of the suite's dialect, as every engine has them.
class DialectFunctions : public CEngineTest {
protected:
    DialectFunctions() { m_pDatabase->LayOutDialect(); }

    std::string Value(const std::string& strExpression) {
        return Rows(*m_pDatabase, "select " + strExpression).at(0);
    }
    bool IsNull(const std::string& strExpression) {
        return Value("case when (" + strExpression + ") is null then 1 else 0 end") == "1";
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, DialectFunctions, TestEngines(), TestEngineName);

/// The three keys by which a borehole or sample number stands in natural order.
std::tuple<int, double, std::string> NaturalKey(const std::string& strName) {
    const bool bDigit = !strName.empty() && strName[0] >= '0' && strName[0] <= '9';
    return {bDigit ? 0 : 1, std::strtod(strName.c_str(), nullptr),
            std::string(255 - strName.size(), '0') + strName};
}

constexpr const char* g_pNaturalOrder =
    "isnumeric(left(ZKBH,1)),val(ZKBH), string(255-len(trim(ZKBH)),'0')+trim(ZKBH),"
    "isnumeric(left(qybh,1)),val(qybh), string(255-len(trim(qybh)),'0')+trim(qybh)";

} // namespace

TEST_P(DialectFunctions, IsNumericAnswersMinusOneForTrue) {
    EXPECT_EQ(Value("isnumeric('9')"), "-1");
    EXPECT_EQ(Value("isnumeric(5)"), "-1");
    EXPECT_EQ(Value("isnumeric('A')"), "0");
    EXPECT_EQ(Value("isnumeric('')"), "0");
    for (const char* pszNumber : {" 5 ", "-1.5", "1e5", "1d-5", ".5", "3."})
        EXPECT_EQ(Value("isnumeric('" + std::string(pszNumber) + "')"), "-1") << pszNumber;
    for (const char* pszText : {" ", "1A", "-", "1-2", ".", "1e", "1 2"})
        EXPECT_EQ(Value("isnumeric('" + std::string(pszText) + "')"), "0") << pszText;
    EXPECT_EQ(Value("isnumeric(2.5)"), "-1");
    EXPECT_EQ(Value("isnumeric(NULL)"), "0");
}

TEST_P(DialectFunctions, LeftCountsCharacters) {
    EXPECT_EQ(Value("left('ZK1',2)"), "ZK");
    EXPECT_EQ(Value("left('钻孔1',1)"), "钻");
    EXPECT_EQ(Value("LEFT('ab',9)"), "ab");
    EXPECT_EQ(Value("left('ab',0)"), "");
    EXPECT_EQ(Value("left('ab',-1)"), "");
    EXPECT_EQ(Value("left(12,1)"), "1");
    EXPECT_EQ(Value("left('ab',9999999999)"), "ab");
    EXPECT_TRUE(IsNull("left(NULL,1)"));
    EXPECT_TRUE(IsNull("left('ab',NULL)"));
}

TEST_P(DialectFunctions, ValReadsTheLeadingNumber) {
    EXPECT_EQ(Value("val('12A')"), "12");
    EXPECT_EQ(Value("val('ZK1')"), "0");
    EXPECT_EQ(Value("val(2.5)"), "2.5");
    EXPECT_EQ(Value("val(' 1 2 ')"), "12");
    EXPECT_EQ(Value("val('1D2')"), "100");
    EXPECT_EQ(Value("val('7E+')"), "7");
    EXPECT_EQ(Value("val('+.5')"), "0.5");
    EXPECT_EQ(Value("val('-1.5x')"), "-1.5");
    EXPECT_EQ(Value("val('+-1')"), "0");
    EXPECT_EQ(Value("val('')"), "0");
    EXPECT_EQ(Value("val('1e999')"), "1.7976931348623157e+308");
    EXPECT_EQ(Value("val('-1d999')"), "-1.7976931348623157e+308");
    EXPECT_EQ(Value("val('1e-999')"), "0");
    EXPECT_TRUE(IsNull("val(NULL)"));
}

TEST_P(DialectFunctions, StringRepeatsTheFirstCharacter) {
    EXPECT_EQ(Value("string(3,'0')"), "000");
    EXPECT_EQ(Value("string(2,'孔x')"), "孔孔");
    EXPECT_EQ(Value("string(0,'0')"), "");
    EXPECT_EQ(Value("string(-4,'0')"), "");
    EXPECT_EQ(Value("len(string(9999999999,'0'))"), "65535");
    EXPECT_TRUE(IsNull("string(NULL,'0')"));
}

TEST_P(DialectFunctions, LenAndTrimCountCharactersAndTakeBlanksOff) {
    EXPECT_EQ(Value("len('钻孔1')"), "3");
    EXPECT_EQ(Value("len(trim('  a b '))"), "3");
    EXPECT_TRUE(IsNull("len(NULL)"));
}

TEST_P(DialectFunctions, PlusJoinsTextsAndAddsNumbers) {
    EXPECT_EQ(Value("'a'+'b'"), "ab");
    EXPECT_EQ(Value("'1'+'2'+'3'"), "123");
    EXPECT_EQ(Value("'a'+1"), "a1");
    EXPECT_EQ(Value("abs(-2)+3"), "5");
    EXPECT_EQ(Value("abs(-2)+0.5"), "2.5");
    EXPECT_EQ(Value("10-abs(2)+1"), "9");
    EXPECT_EQ(Value("1+2*abs(3)"), "7");
    if (IsSqlite()) {
        EXPECT_EQ(Value("typeof(abs(9223372036854775807)+1)"), "real");
    }
    EXPECT_TRUE(IsNull("'a'+NULL"));
}

TEST_P(DialectFunctions, PlusGoesByTheColumnsValues) {
    m_pDatabase->Execute("create table t(name text, depth real, n integer)");
    m_pDatabase->Execute("insert into t values('5', 1.5, 2)");
    EXPECT_EQ(Rows(*m_pDatabase, "select name+name, depth+n, n+n from t where depth + n = 3.5"),
              CRows{"55|3.5|4"});
}

TEST_P(DialectFunctions, NaturalOrderEqualsASortByItsThreeKeys) {
    std::vector<std::string> arNames = {"9", "10", "A1",  "ZK1", "ZK10", "ZK9", "1-2", "1",   "1-10", "A",
                                        "B", "1A", "ZK2", "a1",  "孔1",  "孔",  "2.5", "100", "-1",   "K'1"};
    m_pDatabase->Execute("create table t(ZKBH text, QYBH text)");
    std::vector<std::pair<std::string, std::string>> arPairs;
    for (const std::string& strHole : arNames)
        for (const std::string& strSample : arNames)
            arPairs.emplace_back(strHole, strSample);
    std::shuffle(arPairs.begin(), arPairs.end(), std::mt19937(7)); // NOLINT: the same order in every run
    m_pDatabase->BeginTransaction();
    for (const auto& [strHole, strSample] : arPairs)
        m_pDatabase->Execute("insert into t values(?,?)", std::vector<CDbValue>{strHole, strSample});
    m_pDatabase->CommitTransaction();
    // GBK and Unicode order the characters used here alike, and characters count once in a key but twice in
    // bytes
    const auto key = [](const std::string& strName) {
        auto [nFirst, dValue, strPadded] = NaturalKey(strName);
        const auto nDouble = std::count_if(strName.begin(), strName.end(), [](char c) { return c < 0; }) / 2;
        strPadded.insert(0, static_cast<std::size_t>(nDouble), '0');
        return std::tuple(nFirst, dValue, strPadded);
    };
    std::sort(arPairs.begin(), arPairs.end(), [&](const auto& a, const auto& b) {
        return std::tuple(key(a.first), key(a.second)) < std::tuple(key(b.first), key(b.second));
    });
    CRows arExpected;
    for (const auto& [strHole, strSample] : arPairs)
        arExpected.push_back(std::string(strHole).append("|").append(strSample));
    EXPECT_EQ(Rows(*m_pDatabase, std::string("select * from t order by ").append(g_pNaturalOrder)),
              arExpected);
}

TEST_P(DialectFunctions, NaturalOrderPutsTenBehindNineAndLettersBehindDigits) {
    m_pDatabase->Execute("create table t(ZKBH text, QYBH text)");
    m_pDatabase->Execute(
        "insert into t values('A1','1'),('10','1'),('ZK10','1'),('9','1'),('ZK9','1'),('1-2','1')");
    EXPECT_EQ(Rows(*m_pDatabase, std::string("select ZKBH from t order by ").append(g_pNaturalOrder)),
              (CRows{"1-2", "9", "10", "A1", "ZK9", "ZK10"}));
}

TEST_P(DialectFunctions, ThirdKeyComparesByCodePointWhateverTheColumnSays) {
    m_pDatabase->Execute(In("create table t(ZKBH text collate nocase, QYBH text)",
                            "create table t(ZKBH text collate \"en-x-icu\", QYBH text)"));
    m_pDatabase->Execute("insert into t values('b','1'),('B','1'),('a','1'),('_','1')");
    EXPECT_EQ(Rows(*m_pDatabase, std::string("select ZKBH from t order by ").append(g_pNaturalOrder)),
              (CRows{"B", "_", "a", "b"}));
}
