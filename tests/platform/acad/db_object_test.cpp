#include "platform/acad/db_object.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

Acad::ErrorStatus OpenStatus(AcDbObjectId id, AcDb::OpenMode mode) {
    const CDbOpen<AcDbObject> object(id, mode);
    return object.Status();
}

} // namespace

TEST(OpenObject, GivesManyReadersOrOneWriter) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    {
        const CDbOpen<AcDbPolyline> first(id), second(id);
        ASSERT_TRUE(first && second);
        EXPECT_EQ(first.Get(), second.Get());
        EXPECT_EQ(OpenStatus(id, AcDb::kForWrite), Acad::eWasOpenForRead);
    }
    const CDbOpen<AcDbPolyline> writer(id, AcDb::kForWrite);
    ASSERT_TRUE(writer);
    EXPECT_EQ(OpenStatus(id, AcDb::kForRead), Acad::eWasOpenForWrite);
    EXPECT_EQ(OpenStatus(id, AcDb::kForWrite), Acad::eWasOpenForWrite);
}

TEST(OpenObject, TakesNoMoreReadersThanItCanCount) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    AcDbPolyline* pPolyline = nullptr;
    for (int i = 0; i < 256; ++i)
        ASSERT_EQ(acdbOpenObject(pPolyline, id), Acad::eOk);
    AcDbPolyline* pOneMore = nullptr;
    EXPECT_EQ(acdbOpenObject(pOneMore, id), Acad::eAtMaxReaders);
    EXPECT_EQ(pOneMore, nullptr);
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(pPolyline->close(), Acad::eOk);
    EXPECT_EQ(pPolyline->close(), Acad::eNotOpenForRead);
}

TEST(OpenObject, RefusesANullIdAndAnotherClassAndLeavesNothingOpen) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    AcDbText* pText = nullptr;
    EXPECT_EQ(acdbOpenObject(pText, AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(acdbOpenObject(pText, id, AcDb::kForWrite), Acad::eNotThatKindOfClass);
    EXPECT_EQ(pText, nullptr);
    EXPECT_EQ(OpenStatus(id, AcDb::kForWrite), Acad::eOk);
}

TEST(OpenObject, GivesErasedOnesOnlyWhenAskedForThem) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    {
        CDbOpen<AcDbPolyline> polyline(id, AcDb::kForWrite);
        EXPECT_EQ(polyline->erase(), Acad::eOk);
        EXPECT_TRUE(polyline->isErased());
        EXPECT_TRUE(id.isErased());
    }
    AcDbPolyline* pPolyline = nullptr;
    EXPECT_EQ(acdbOpenObject(pPolyline, id), Acad::eWasErased);
    ASSERT_EQ(acdbOpenObject(pPolyline, id, AcDb::kForWrite, true), Acad::eOk);
    EXPECT_EQ(pPolyline->erase(false), Acad::eOk);
    pPolyline->close();
    EXPECT_EQ(OpenStatus(id, AcDb::kForRead), Acad::eOk);
}

TEST(OpenObject, ForNotificationGoesBesideOtherOpenings) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    {
        const CDbOpen<AcDbPolyline> writer(id, AcDb::kForWrite);
        const CDbOpen<AcDbPolyline> notified(id, AcDb::kForNotify);
        EXPECT_TRUE(notified);
        EXPECT_EQ(OpenStatus(id, AcDb::kForNotify), Acad::eWasOpenForNotify);
    }
    const CDbOpen<AcDbPolyline> notified(id, AcDb::kForNotify);
    EXPECT_TRUE(notified->isReadEnabled());
    EXPECT_FALSE(notified->isWriteEnabled());
    EXPECT_EQ(OpenStatus(id, AcDb::kForRead), Acad::eWasOpenForNotify);
    EXPECT_EQ(OpenStatus(id, AcDb::kForWrite), Acad::eWasOpenForNotify);
}

TEST(DbObject, IsUpgradedByItsOnlyReaderAndDowngradedAgain) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    CDbOpen<AcDbPolyline> polyline(id);
    EXPECT_FALSE(polyline->isWriteEnabled());
    {
        const CDbOpen<AcDbPolyline> other(id);
        EXPECT_EQ(polyline->upgradeOpen(), Acad::eWasOpenForRead);
    }
    EXPECT_EQ(polyline->downgradeOpen(), Acad::eNotOpenForWrite);
    EXPECT_EQ(polyline->upgradeOpen(), Acad::eOk);
    EXPECT_TRUE(polyline->isWriteEnabled());
    EXPECT_EQ(polyline->upgradeOpen(), Acad::eWasOpenForWrite);
    EXPECT_EQ(polyline->downgradeOpen(), Acad::eOk);
    EXPECT_FALSE(polyline->isWriteEnabled());
    EXPECT_TRUE(polyline->isReadEnabled());
}

TEST(DbObject, ThatIsFreeIsReadAndWrittenWithoutOpening) {
    AcDbPolyline polyline;
    EXPECT_TRUE(polyline.isReadEnabled());
    EXPECT_TRUE(polyline.isWriteEnabled());
    EXPECT_EQ(polyline.close(), Acad::eNoDatabase);
    EXPECT_EQ(polyline.upgradeOpen(), Acad::eNoDatabase);
    EXPECT_EQ(polyline.erase(), Acad::eNoDatabase);
    EXPECT_TRUE(polyline.objectId().isNull());
    EXPECT_EQ(polyline.database(), nullptr);
}

TEST(DbObject, IsErasedOnlyWhenOpenForWriting) {
    AcDbDatabase database;
    const CDbOpen<AcDbPolyline> polyline(Append(database, new AcDbPolyline));
    EXPECT_EQ(polyline->erase(), Acad::eNotOpenForWrite);
    EXPECT_FALSE(polyline->isErased());
}

TEST(DbObjectDeathTest, StopsTheProgramWhenAClosedObjectIsChanged) {
    AcDbDatabase database;
    auto* const pPolyline = new AcDbPolyline;
    Append(database, pPolyline);
    EXPECT_DEATH(pPolyline->addVertexAt(0, {1, 1}), "free or open for writing");
    AcGePoint2d point;
    EXPECT_DEATH(pPolyline->getPointAt(0, point), "free or open");
}
