#include "ui/sample_context.h"

#include "tests/ui/project_fixture.h"

namespace {

class SampleContext : public CProjectFixture {
protected:
    // Reads the context of a sample with these values of QYSD, QYHD, QYHSL, QYLX, QYSY, QYYX.
    int Read(const char* values) {
        AddSample("1", "1-1", "NULL", values);
        return ReadSampleContext(GCSY, "1", "1-1", "1-1", &m_context, &m_bQuYangOk, &m_bTuCengOk);
    }
    std::string Shown() const {
        return std::string(m_context.m_strDepth) + "|" + m_context.m_strWater.GetString() + "|" +
               m_context.m_strIP.GetString() + "|" + m_context.m_strIL.GetString() + "|" +
               m_context.m_strLayer.GetString();
    }

    CSampleContext m_context;
    int m_bQuYangOk = 1, m_bTuCengOk = 1;
};

} // namespace

TEST_F(SampleContext, GivesEachValueWithTwoDecimals) {
    AddLayer("1");
    EXPECT_EQ(Read("12.346,0.2,28.5,0,20.25,33"), 1);
    EXPECT_EQ(m_bQuYangOk, 1);
    EXPECT_EQ(Shown(), "12.35|28.50|12.75|0.65| ");
}

TEST_F(SampleContext, WithoutWaterThereIsNoLiquidityIndexAndNoFault) {
    AddLayer("1");
    EXPECT_EQ(Read("2,0.2,NULL,0,20,33"), 1);
    EXPECT_EQ(Shown(), "2.00||13.00||粉质黏土");
    EXPECT_TRUE(m_bQuYangOk && m_bTuCengOk);
    EXPECT_EQ(m_strPrinted, "");
}

TEST_F(SampleContext, WithoutALimitThereIsNoIndex) {
    AddLayer("1");
    EXPECT_EQ(Read("2,0.2,25,0,NULL,33"), 1);
    EXPECT_EQ(Shown(), "2.00|25.00|||粉质黏土");
    Execute("DELETE FROM z_c_QuYang");
    m_context = {};
    EXPECT_EQ(Read("2,0.2,25,0,20,NULL"), 1);
    EXPECT_EQ(Shown(), "2.00|25.00|||粉质黏土");
    EXPECT_TRUE(m_bQuYangOk && m_bTuCengOk);
}

TEST_F(SampleContext, ATinyPlasticityIndexGivesNoLiquidityIndexButIsPrinted) {
    AddLayer("1");
    EXPECT_EQ(Read("2,0.2,25,0,0,0.00005"), 1);
    EXPECT_EQ(Shown(), "2.00|25.00|0.00||粉质黏土");
}

TEST_F(SampleContext, ThePlasticityIndexFromWhichALiquidityIndexIsGivenIsTheSameEitherWay) {
    AddLayer("1");
    for (const auto& [liquidLimit, bGiven] : std::vector<std::pair<const char*, bool>>{
             {"0.000101", true}, {"0.000099", false}, {"-0.000099", false}, {"-0.000101", true}}) {
        Execute("DELETE FROM z_c_QuYang");
        EXPECT_EQ(Read(("2,0.2,25,0,0," + std::string(liquidLimit)).c_str()), 1);
        EXPECT_EQ(!m_context.m_strIL.IsEmpty(), bGiven) << liquidLimit;
        EXPECT_FALSE(m_context.m_strIP.IsEmpty()) << liquidLimit;
        m_context = {};
    }
}

TEST_F(SampleContext, ANegativePlasticityIndexIsCalculatedWith) {
    AddLayer("1");
    EXPECT_EQ(Read("2,0.2,25,0,20,10"), 1);
    EXPECT_EQ(Shown(), "2.00|25.00|-10.00|-0.50|粉质黏土");
}

TEST_F(SampleContext, TakesTheLayerThatHoldsTheWholeSample) {
    Execute("INSERT INTO z_g_TuCeng VALUES (1,'1',2,2,'填土')");
    Execute("INSERT INTO z_g_TuCeng VALUES (1,'1',5,3,'黏土')");
    EXPECT_EQ(Read("4.5,0.5,25,0,20,10"), 1);
    EXPECT_STREQ(m_context.m_strLayer, "黏土"); // down to its very bottom
    Execute("DELETE FROM z_c_QuYang");
    EXPECT_EQ(Read("1.75,0.5,25,0,20,10"), 1);
    EXPECT_STREQ(m_context.m_strLayer, " "); // across two layers
    EXPECT_EQ(m_bTuCengOk, 0);
    EXPECT_EQ(m_bQuYangOk, 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_g_TuCengSet表中无相应土层名称!");
}

TEST_F(SampleContext, WithoutAThicknessTheSampleIsAPoint) {
    AddLayer("1");
    EXPECT_EQ(Read("10,NULL,25,0,20,10"), 1);
    EXPECT_STREQ(m_context.m_strLayer, "粉质黏土");
    EXPECT_EQ(m_bTuCengOk, 0);
    EXPECT_EQ(m_bQuYangOk, 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang取样编号1-1数据QYHD不全!");
}

TEST_F(SampleContext, WithoutADepthZeroIsTaken) {
    Execute("INSERT INTO z_g_TuCeng VALUES (1,'1',1,1,'填土')");
    EXPECT_EQ(Read("NULL,0.5,25,0,20,10"), 1);
    EXPECT_EQ(Shown(), "|25.00|-10.00|-0.50|填土");
    EXPECT_EQ(m_bQuYangOk, 0);
    EXPECT_EQ(m_bTuCengOk, 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang数据QYSD不全!\n数据库z_c_QuYang取样编号1-1数据QYSD不全!");
}

TEST_F(SampleContext, TellsEveryFaultOfASampleInTurn) {
    EXPECT_EQ(Read("NULL,NULL,NULL,0,NULL,NULL"), 1);
    EXPECT_EQ(Shown(), "|||| ");
    EXPECT_EQ(m_bQuYangOk, 0);
    EXPECT_EQ(m_bTuCengOk, 0);
    EXPECT_EQ(m_strPrinted,
              "\n数据库z_c_QuYang数据QYSD不全!\n数据库z_c_QuYang取样编号1-1数据QYSD不全!"
              "\n数据库z_c_QuYang取样编号1-1数据QYHD不全!\n数据库z_g_TuCengSet表中无相应土层名称!");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SampleContext, ASampleWithoutARowFailsBeforeItsLayerIsLookedFor) {
    Execute("DROP TABLE z_g_TuCeng");
    EXPECT_EQ(ReadSampleContext(GCSY, "1", "1-1", "1-1", &m_context, &m_bQuYangOk, &m_bTuCengOk), 0);
    EXPECT_EQ(m_bQuYangOk, 0);
    EXPECT_EQ(m_bTuCengOk, 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang数据不全!");
    EXPECT_EQ(Boxes(), "");
}

TEST_F(SampleContext, ARegisterThatCannotBeOpenedFails) {
    Execute("DROP TABLE z_c_QuYang");
    EXPECT_EQ(ReadSampleContext(GCSY, "1", "1-1", "1-1", &m_context, &m_bQuYangOk, &m_bTuCengOk), 0);
    EXPECT_EQ(m_bQuYangOk, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_QuYang打开有错误!]");
}

TEST_F(SampleContext, LayersThatCannotBeOpenedAreAFaultOnly) {
    Execute("DROP TABLE z_g_TuCeng");
    EXPECT_EQ(Read("2,0.5,25,0,20,10"), 1);
    EXPECT_STREQ(m_context.m_strLayer, " ");
    EXPECT_EQ(m_bTuCengOk, 0);
    EXPECT_EQ(m_strPrinted, "\n数据库z_g_TuCengSet表取样编号1-1数据TCMC不全!");
}
