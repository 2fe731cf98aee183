#include "platform/acad/result_buffer.h"

#include <gtest/gtest.h>

#include <string>

TEST(BuildList, ChainsValuesByTheirCodes) {
    const ads_point point = {1.0, 2.0, 3.0};
    const CResbufChain chain(acutBuildList(1001, L"NAME", 1000, L"值", 1040, 2.5, 1010, point, 1070, -7, 1071,
                                           Adesk::Int32{70000}, RTNONE));
    const resbuf* pBuffer = chain.Get();
    ASSERT_TRUE(pBuffer);
    EXPECT_EQ(pBuffer->restype, 1001);
    EXPECT_STREQ(pBuffer->resval.rstring, L"NAME");
    pBuffer = pBuffer->rbnext;
    EXPECT_STREQ(pBuffer->resval.rstring, L"值");
    pBuffer = pBuffer->rbnext;
    EXPECT_EQ(pBuffer->resval.rreal, 2.5);
    pBuffer = pBuffer->rbnext;
    EXPECT_EQ(pBuffer->resval.rpoint[2], 3.0);
    pBuffer = pBuffer->rbnext;
    EXPECT_EQ(pBuffer->resval.rint, -7);
    pBuffer = pBuffer->rbnext;
    EXPECT_EQ(pBuffer->resval.rlong, 70000);
    EXPECT_EQ(pBuffer->rbnext, nullptr);
}

TEST(BuildList, EndsAtZeroAndHasAWordOfItsOwnForGroupZero) {
    const CResbufChain chain(acutBuildList(RTDXF0, L"INSERT", 8, L"0", 0));
    ASSERT_TRUE(chain);
    EXPECT_EQ(chain->restype, 0);
    EXPECT_STREQ(chain->resval.rstring, L"INSERT");
    EXPECT_STREQ(chain->rbnext->resval.rstring, L"0");
    EXPECT_EQ(chain->rbnext->rbnext, nullptr);
}

TEST(BuildList, GivesNothingForNoValueAndForACodeOfNoKind) {
    EXPECT_EQ(acutBuildList(RTNONE), nullptr);
    EXPECT_EQ(acutBuildList(1000, L"a", 4711, 1, RTNONE), nullptr);
}

TEST(ResbufKind, IsThatOfTypeAndGroupCodes) {
    EXPECT_EQ(ResbufKind(RTSTR), CResbufKind::Text);
    EXPECT_EQ(ResbufKind(RTREAL), CResbufKind::Real);
    EXPECT_EQ(ResbufKind(RTSHORT), CResbufKind::Short);
    EXPECT_EQ(ResbufKind(RT3DPOINT), CResbufKind::Point);
    EXPECT_EQ(ResbufKind(RTLONG), CResbufKind::Long);
    EXPECT_EQ(ResbufKind(8), CResbufKind::Text);
    EXPECT_EQ(ResbufKind(11), CResbufKind::Point);
    EXPECT_EQ(ResbufKind(40), CResbufKind::Real);
    EXPECT_EQ(ResbufKind(62), CResbufKind::Short);
    EXPECT_EQ(ResbufKind(90), CResbufKind::Long);
    EXPECT_EQ(ResbufKind(1005), CResbufKind::Text);
    EXPECT_EQ(ResbufKind(1004), CResbufKind::None);
    EXPECT_EQ(ResbufKind(RTNONE), CResbufKind::None);
}

TEST(NewString, CopiesATextAndDelStringForgetsIt) {
    ACHAR* text = acutNewString(L"三轴");
    EXPECT_STREQ(text, L"三轴");
    acutDelString(text);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(acutNewString(nullptr), nullptr);
    EXPECT_EQ(acutRelRb(nullptr), RTNORM);
}
