#include "data/tu_ceng_record.h"

#include "data/criteria.h"
#include "tests/support/suite_fixture.h"

namespace {
class TuCengRecord : public CSuiteEngineTest {
protected:
    TuCengRecord() {
        Execute(
            "insert into z_g_TuCeng "
            "values(1,'ZK1',2,2,'填土'),(1,'ZK1',6,4,'粘土'),(1,'ZK2',9,9,'砂土'),(1,'ZK1',10.6,4.6,'卵石')");
    }
    /// Name of the layer found for a sample; empty for none.
    static std::string Layer(double dDepth, double dThickness) {
        CTuCengRecord record;
        if (!record.OpenRows(record.QueryFor(LayerCriterion(1, "ZK1", dDepth, dThickness)), 0, 1))
            return "not open";
        return record.MoveFirstRow() == 0 ? record.m_szTCMC : "";
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, TuCengRecord, TestEngines(), TestEngineName);
} // namespace

TEST_P(TuCengRecord, FindsTheLayerThatHoldsTheWholeSample) {
    EXPECT_EQ(Layer(1.0, 0.5), "填土");
    EXPECT_EQ(Layer(3.0, 0.5), "粘土");
    EXPECT_EQ(Layer(2.0, 4.0), "粘土");
    EXPECT_EQ(Layer(1.8, 0.5), "");
    EXPECT_EQ(Layer(10.1, 0.5), "卵石"); // down to its very end, which no binary fraction is
    EXPECT_EQ(Layer(10.1, 0.6), "");
}
