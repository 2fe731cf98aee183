#include "drawing/field_rows.h"

#include "platform/acad/db_polyline.h"

#include <gtest/gtest.h>

namespace {
class CRowsObject : public AcDbPolyline {
public:
    Adesk::Int16 m_nShort = 0;
    Adesk::Int32 m_bFlag = 0;
    CArray<AcArray<double>, AcArray<double>> m_arLists;
};

const CFieldRow<CRowsObject> g_rows[] = {
    {"m_bFlag", 1, CFlagMember<CRowsObject>{&CRowsObject::m_bFlag}},
    {"m_nShort", 0, &CRowsObject::m_nShort},
    {"m_arLists", 2, &CRowsObject::m_arLists, CFiling::None},
};
} // namespace

TEST(FieldRows, TellFlagsFromNumbers) {
    const CFieldTableOf<CRowsObject> table(g_rows);
    CRowsObject object;
    EXPECT_TRUE(std::holds_alternative<CFlag>(table.Get(object, 0)));
    EXPECT_TRUE(std::holds_alternative<Adesk::Int32>(table.Get(object, 1)));
    EXPECT_EQ(table.Set(object, 0, CFlag{1}), 1);
    EXPECT_EQ(object.m_bFlag, 1);
}

TEST(FieldRows, ReplaceAListOfListsWhole) {
    const CFieldTableOf<CRowsObject> table(g_rows);
    CRowsObject object;
    const std::vector<std::vector<double>> lists = {{1.0, 2.0}, {}};
    ASSERT_EQ(table.Set(object, 2, lists), 1);
    ASSERT_EQ(table.Set(object, 2, lists), 1);
    ASSERT_EQ(object.m_arLists.GetSize(), 2);
    EXPECT_EQ(std::get<std::vector<std::vector<double>>>(table.Get(object, 2)), lists);
    EXPECT_FALSE(table.Info(2).m_bFiled);
}
