#include "drawing/module_class.h"

#include "platform/acad/db_entity.h"
#include "platform/acad/field_table.h"
#include "platform/acad/rx_registry.h"

#include <gtest/gtest.h>

namespace {
class CNoFields final : public CFieldTable {
public:
    int Count() const override { return 0; }
    CFieldInfo Info(int) const override { return {}; }
    CFieldValue Get(const AcDbObject&, int) const override { return 0; }
    int Set(AcDbObject&, int, const CFieldValue&) const override { return 0; }
};

AcRxObject* MakeNone() {
    return nullptr;
}
} // namespace

TEST(ModuleClass, IsUnknownUntilItIsRegisteredAndAfterItIsNot) {
    CModuleClass sample(L"CSampleOfModule", L"SAMPLE");
    CNoFields fields;
    EXPECT_EQ(sample.Desc(), nullptr);
    sample.Register(&MakeNone, &fields);
    ASSERT_NE(sample.Desc(), nullptr);
    EXPECT_EQ(sample.Desc()->getX(CFieldTable::desc()), &fields);
    EXPECT_EQ(sample.Desc()->myParent(), AcDbEntity::desc());
    sample.Unregister();
    EXPECT_EQ(sample.Desc(), nullptr);
    sample.Unregister();
}

TEST(ModuleClass, LeavesAClassThatIsKnownAlreadyAsItIs) {
    AcRxClass* const pKnown = newAcRxClass(L"CSampleOfModule", L"AcDbEntity", 1, 2, 3);
    CModuleClass sample(L"CSampleOfModule", L"SAMPLE");
    CNoFields fields;
    sample.Register(&MakeNone, &fields);
    EXPECT_EQ(sample.Desc(), pKnown);
    EXPECT_EQ(pKnown->dwgVersion(), 1);
    EXPECT_EQ(pKnown->getX(CFieldTable::desc()), nullptr);
    sample.Unregister();
}
