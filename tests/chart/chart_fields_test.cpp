#include "chart/chart_fields.h"

#include "chart/chart_entity.h"
#include "platform/acad/field_table.h"

#include <gtest/gtest.h>
#include <set>

TEST(ChartFields, GiveEachDeclaredPlaceOnce) {
    const CFieldTable& table = *ChartFields();
    std::set<int> places;
    std::set<std::string> names;
    for (int i = 0; i < table.Count(); i++) {
        places.insert(table.Info(i).m_nDeclared);
        names.insert(table.Info(i).m_pName);
    }
    EXPECT_EQ(static_cast<int>(places.size()), table.Count());
    EXPECT_EQ(static_cast<int>(names.size()), table.Count());
    EXPECT_EQ(*places.begin(), 0);
    EXPECT_EQ(*places.rbegin(), table.Count() - 1);
}

TEST(ChartFields, LeaveTheTwoPassingFlagsOutOfTheRecord) {
    const CFieldTable& table = *ChartFields();
    std::set<std::string> unfiled;
    for (int i = 0; i < table.Count(); i++)
        if (!table.Info(i).m_bFiled) unfiled.insert(table.Info(i).m_pName);
    EXPECT_EQ(unfiled, (std::set<std::string>{"m_bNoEnvelope", "m_bColorChanging"}));
}

TEST(ChartFields, ComeInTheOrderOfTheClassWhenAskedFor) {
    const CFieldTable& table = *ChartFields();
    const std::vector<int> order = table.DeclaredOrder();
    ASSERT_EQ(static_cast<int>(order.size()), table.Count());
    EXPECT_STREQ(table.Info(order.front()).m_pName, "m_ptBase");
    EXPECT_STREQ(table.Info(order[19]).m_pName, "m_arTotal");
    EXPECT_STREQ(table.Info(order.back()).m_pName, "m_nColor");
}

TEST(ChartFields, TakeBackWhatTheyGave) {
    const CFieldTable& table = *ChartFields();
    CBRENChart from, to;
    from.m_ptBase.set(1, 2, 3);
    from.m_nCurveRows = 7;
    from.m_nPolylineMode = -1;
    from.m_nColor = 65535;
    from.m_bSingleSpecimen = 0;
    from.m_dCalcC = 12.5;
    from.m_strSYFF = g_pMethodCU;
    from.m_arTotal.append(4.0);
    from.m_saCells.Add("含水量");
    CDoubleList series;
    series.append(0.1);
    series.append(0.2);
    from.m_arStrainSeries.Add(series);
    for (int i = 0; i < table.Count(); i++)
        ASSERT_EQ(table.Set(to, i, table.Get(from, i)), 1) << table.Info(i).m_pName;
    EXPECT_TRUE(to.m_ptBase == from.m_ptBase);
    EXPECT_EQ(to.m_nCurveRows, 7);
    EXPECT_EQ(to.m_nPolylineMode, -1);
    EXPECT_EQ(to.m_nColor, 65535);
    EXPECT_EQ(to.m_bSingleSpecimen, 0);
    EXPECT_EQ(to.m_dCalcC, 12.5);
    EXPECT_TRUE(to.m_strSYFF == g_pMethodCU);
    ASSERT_EQ(to.m_arTotal.length(), 1);
    EXPECT_EQ(to.m_arTotal[0], 4.0);
    ASSERT_EQ(to.m_saCells.GetSize(), 1);
    EXPECT_TRUE(to.m_saCells[0] == "含水量");
    ASSERT_EQ(to.m_arStrainSeries.GetSize(), 1);
    EXPECT_EQ(to.m_arStrainSeries[0].length(), 2);
}

TEST(ChartFields, RefuseAValueOfAnotherKind) {
    const CFieldTable& table = *ChartFields();
    CBRENChart chart;
    EXPECT_EQ(table.Set(chart, table.Find("m_nCurveRows"), 1.5), 0);
    EXPECT_EQ(table.Set(chart, table.Find("m_dCalcC"), std::string("1")), 0);
    EXPECT_EQ(table.Set(chart, table.Find("m_bSingleSpecimen"), Adesk::Int32{0}), 0);
    EXPECT_EQ(chart.m_nCurveRows, 8);
    EXPECT_EQ(chart.m_bSingleSpecimen, 1);
    EXPECT_EQ(table.Find("m_dNothing"), -1);
}
