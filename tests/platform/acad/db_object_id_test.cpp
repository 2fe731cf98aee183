#include "platform/acad/db_object_id.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(AcDbHandle, IsWrittenInUpperCaseHexWithoutLeadingZeros) {
    EXPECT_EQ(AcDbHandle(0x1F).Hex(), "1F");
    EXPECT_EQ(AcDbHandle(0xABCDEF0123456789u).Hex(), "ABCDEF0123456789");
    EXPECT_EQ(AcDbHandle().Hex(), "0");
    EXPECT_TRUE(AcDbHandle().isNull());
}

TEST(AcDbObjectId, OfNothingAnswersNothing) {
    const AcDbObjectId id;
    EXPECT_TRUE(id.isNull());
    EXPECT_TRUE(id.handle().isNull());
    EXPECT_EQ(id.database(), nullptr);
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(id, AcDbObjectId::kNull);
}

TEST(AcDbObjectId, NamesOneObjectOfOneDrawing) {
    AcDbDatabase database, other;
    EXPECT_EQ(database.ModelSpaceId().database(), &database);
    EXPECT_NE(database.ModelSpaceId(), other.ModelSpaceId());
    EXPECT_EQ(database.ModelSpaceId().handle(), other.ModelSpaceId().handle());
    AcDbObjectId id;
    EXPECT_EQ(database.getAcDbObjectId(id, database.ModelSpaceId().handle()), Acad::eOk);
    EXPECT_EQ(id, database.ModelSpaceId());
}
