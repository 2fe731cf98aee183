#include "data/criteria.h"

#include <gtest/gtest.h>

#include <string>

namespace {
const std::string g_strOrder =
    "ORDER BY isnumeric(left(ZKBH,1)),val(ZKBH), "
    "string(255-len(trim(ZKBH)),'0')+trim(ZKBH),isnumeric(left(qybh,1)),val(qybh), "
    "string(255-len(trim(qybh)),'0')+trim(qybh)";
} // namespace

TEST(Criteria, ListsAreSentWithTheNaturalOrderWordForWord) {
    EXPECT_EQ(ProjectListCriterion(7), CString("GCSY = 7 " + g_strOrder));
    EXPECT_EQ(OpenDialogListCriterion(7), CString("GCSY= 7 " + g_strOrder));
    EXPECT_EQ(BoreholeListCriterion(7, "K'1"), CString("GCSY = 7 AND ZKBH = 'K''1' " + g_strOrder + " "));
}

TEST(Criteria, SamplesAreChosenByThreeKeysWithQuotesDoubled) {
    EXPECT_EQ(ProjectCriterion(-1), CString("GCSY = -1"));
    EXPECT_EQ(SampleCriterion(7, "K'1", "'"), CString("GCSY = 7 AND ZKBH = 'K''1' AND QYBH = ''''"));
    EXPECT_EQ(ReadingsCriterion(7, "ZK1", "1-2"),
              CString("GCSY = 7 AND ZKBH = 'ZK1' AND QYBH = '1-2' ORDER BY GCSY,ZKBH,QYBH,SJBH,SHJHXH"));
}

TEST(Criteria, LayersTakeTheSamplesBottomThenItsTop) {
    EXPECT_EQ(LayerCriterion(7, "ZK1", 4.5, 0.2),
              CString("GCSY = 7 AND ZKBH = 'ZK1' AND TCCDSD >= 4.700000 AND TCCDSD - TCHD <= 4.500000"));
}

TEST(Criteria, TakesAPercentSignAsItStands) {
    EXPECT_EQ(SampleCriterion(1, "%s", "%d"), CString("GCSY = 1 AND ZKBH = '%s' AND QYBH = '%d'"));
}
