#include "frame/frame_fields.h"

#include "frame/frame_entity.h"
#include "platform/acad/field_table.h"

#include <gtest/gtest.h>

TEST(FrameFields, ComeInTheOrderOfTheClassWhenAskedFor) {
    const CFieldTable& table = *FrameFields();
    std::vector<std::string> names;
    for (const int nRow : table.DeclaredOrder())
        names.emplace_back(table.Info(nRow).m_pName);
    const std::vector<std::string> expected = {
        "m_ptBase",      "m_vecGripOffset", "m_dTextHeight", "m_dBorderWidth", "m_nPolylineMode", "m_nGCSY",
        "m_strZKBH",     "m_strQYBH",       "m_strGCMC",     "m_strSYFF",      "m_strQYSD",       "m_strGCBH",
        "m_idTextStyle", "m_idBannerStyle", "m_bRQ",         "m_bJCZ",         "m_bSYZ",          "m_bWCDW",
        "m_bReserved",   "m_sJCZ",          "m_sReserved",   "m_sWCDW",        "m_sSYZ",          "m_nYear",
        "m_nMonth",      "m_nDay",          "m_nGCBZ"};
    EXPECT_EQ(names, expected);
}

TEST(FrameFields, LeaveTheGripOffsetOutOfTheRecord) {
    const CFieldTable& table = *FrameFields();
    for (int i = 0; i < table.Count(); i++)
        EXPECT_EQ(table.Info(i).m_bFiled, i != table.Find("m_vecGripOffset")) << table.Info(i).m_pName;
}

TEST(FrameFields, TakeBackWhatTheyGave) {
    const CFieldTable& table = *FrameFields();
    CBRENFrame from, to;
    from.m_ptBase.set(1, 2, 3);
    from.m_vecGripOffset.set(4, 5, 6);
    from.m_nGCBZ = 2;
    from.m_bRQ = 1;
    from.m_sSYZ = "张三";
    for (int i = 0; i < table.Count(); i++)
        ASSERT_EQ(table.Set(to, i, table.Get(from, i)), 1) << table.Info(i).m_pName;
    EXPECT_TRUE(to.m_ptBase == from.m_ptBase);
    EXPECT_TRUE(to.m_vecGripOffset == from.m_vecGripOffset);
    EXPECT_EQ(to.m_nGCBZ, 2);
    EXPECT_EQ(to.m_bRQ, 1);
    EXPECT_STREQ(to.m_sSYZ, "张三");
    EXPECT_EQ(table.Set(to, table.Find("m_vecGripOffset"), 1.0), 0);
}
