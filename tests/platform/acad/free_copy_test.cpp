#include "platform/acad/free_copy.h"

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_polyline.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(FreeCopy, HasWhatTheObjectFilesAndIsInNoDrawing) {
    AcDbDatabase database;
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, {1, 2}, 0.5);
    pPolyline->setColorIndex(3);
    const CDbOpen<AcDbPolyline> source(Append(database, pPolyline));
    const std::unique_ptr<AcDbPolyline> pCopy = FreeCopy(*source.Get());
    ASSERT_NE(pCopy, nullptr);
    EXPECT_TRUE(pCopy->objectId().isNull());
    EXPECT_EQ(pCopy->numVerts(), 1U);
    EXPECT_EQ(pCopy->colorIndex(), 3);
    EXPECT_EQ(pCopy->layerId(), database.clayer());
}

TEST(FreeCopy, OwnsNothingOfTheOriginal) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbBlockReference({0, 0, 0}, database.ModelSpaceId()));
    const CDbOpen<AcDbBlockReference> reference(id, AcDb::kForWrite);
    auto* const pAttribute = new AcDbAttribute;
    reference->appendAttribute(pAttribute);
    pAttribute->close();
    const std::unique_ptr<AcDbBlockReference> pCopy = FreeCopy(*reference.Get());
    EXPECT_EQ(reference->AttributeIds().size(), 1U);
    EXPECT_TRUE(pCopy->AttributeIds().empty());
    EXPECT_EQ(pCopy->blockTableRecord(), database.ModelSpaceId());
}

TEST(FreeCopy, IsNoneOfAClassThatMakesNoObjects) {
    EXPECT_EQ(FreeCopy(CSampleEntity()), nullptr);
}
