#include "platform/acad/field_table.h"

#include "platform/acad/db_line.h"
#include "platform/acad/rx_class.h"

#include <gtest/gtest.h>

namespace {

/// Three fields whose filing order differs from the declared one.
class CSampleTable : public CFieldTable {
public:
    int Count() const override { return 3; }
    CFieldInfo Info(int index) const override {
        static constexpr CFieldInfo rows[] = {
            {"m_strZKBH", 2, true}, {"m_nGCSY", 0, true}, {"m_dPhi", 1, false}};
        return rows[index];
    }
    CFieldValue Get(const AcDbObject&, int) const override { return Adesk::Int32{1}; }
    int Set(AcDbObject&, int, const CFieldValue& value) const override {
        return std::holds_alternative<Adesk::Int32>(value) ? 1 : 0;
    }
};

} // namespace

TEST(CFieldTable, FindsARowByItsExactName) {
    const CSampleTable table;
    EXPECT_EQ(table.Find("m_nGCSY"), 1);
    EXPECT_EQ(table.Find("m_ngcsy"), -1);
    EXPECT_EQ(table.Find(""), -1);
}

TEST(CFieldTable, KnowsTheDeclaredOrder) {
    EXPECT_EQ(CSampleTable().DeclaredOrder(), (std::vector<int>{1, 2, 0}));
}

TEST(CFieldTable, HangsOnAClassAsAnExtension) {
    CSampleTable table;
    AcRxClass* const pClass = newAcRxClass(L"CWithFields", L"AcDbEntity");
    ASSERT_NE(pClass, nullptr);
    pClass->addX(CFieldTable::desc(), &table);
    EXPECT_EQ(pClass->queryX(CFieldTable::desc()), &table);
    EXPECT_EQ(AcDbObject::desc()->queryX(CFieldTable::desc()), nullptr);
    deleteAcRxClass(pClass);
}

TEST(CFieldTable, IsThatOfAnObjectsClass) {
    CSampleTable table;
    const AcDbLine line;
    EXPECT_EQ(CFieldTable::Of(line), nullptr);
    AcDbLine::desc()->addX(CFieldTable::desc(), &table);
    EXPECT_EQ(CFieldTable::Of(line), &table);
    AcDbLine::desc()->delX(CFieldTable::desc());
    EXPECT_EQ(CFieldTable::Of(line), nullptr);
}
