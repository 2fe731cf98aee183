#include "host/console/picked_entities.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

class PickedEntities : public testing::Test {
protected:
    AcDbObjectId AddLine() {
        auto* const pLine = new AcDbLine(AcGePoint3d::kOrigin, AcGePoint3d(1.0, 0.0, 0.0));
        AcDbObjectId id;
        CDbOpen<AcDbBlockTableRecord>(m_drawing.ModelSpaceId(), AcDb::kForWrite)->appendAcDbEntity(id, pLine);
        pLine->close();
        return id;
    }
    AcDbDatabase m_drawing;
    AcDbObjectId m_idA = AddLine(), m_idB = AddLine(), m_idC = AddLine();
    CPickedEntities m_picked;
};

} // namespace

TEST_F(PickedEntities, EachIsHeldOnceInTheOrderPicked) {
    for (const AcDbObjectId& id : {m_idC, m_idA, m_idC, m_idB, m_idA})
        m_picked.Add(id);
    EXPECT_EQ(m_picked.Ids(), (std::vector{m_idC, m_idA, m_idB}));
}

TEST_F(PickedEntities, WhatIsRemovedCanBePickedAnewAndComesLast) {
    for (const AcDbObjectId& id : {m_idA, m_idB, m_idC})
        m_picked.Add(id);
    m_picked.Remove({m_idA, m_idC});
    EXPECT_FALSE(m_picked.Contains(m_idA));
    EXPECT_TRUE(m_picked.Contains(m_idB));
    m_picked.Add(m_idA);
    EXPECT_EQ(m_picked.Ids(), (std::vector{m_idB, m_idA}));
    m_picked.Clear();
    EXPECT_TRUE(m_picked.Ids().empty());
    EXPECT_FALSE(m_picked.Contains(m_idB));
}
