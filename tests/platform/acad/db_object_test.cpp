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

namespace {

/// Notes what it is told, and follows by one unit.
class CFollower : public AcDbPolyline {
public:
    void modified(const AcDbObject* pObject) override {
        m_bSawOpen = pObject->isReadEnabled() && !pObject->isWriteEnabled();
        Adesk::Boolean bWasWritable = Adesk::kTrue;
        m_upgraded = upgradeFromNotify(bWasWritable);
        if (m_upgraded != Acad::eOk) return;
        addVertexAt(numVerts(), {1.0, 1.0});
        downgradeToNotify(bWasWritable);
    }
    void erased(const AcDbObject*, Adesk::Boolean bErased) override { m_nErasures += bErased ? 1 : -1; }

    bool m_bSawOpen = false;
    Acad::ErrorStatus m_upgraded = Acad::eInvalidInput;
    int m_nErasures = 0;
};

class PersistentReactor : public testing::Test {
protected:
    PersistentReactor() {
        CDbOpen<AcDbPolyline> source(m_idSource, AcDb::kForWrite);
        source->addPersistentReactor(m_idFollower);
        m_database.TakeChangedEntities();
    }
    void Change() { CDbOpen<AcDbPolyline>(m_idSource, AcDb::kForWrite)->addVertexAt(0, {0.0, 0.0}); }

    AcDbDatabase m_database;
    CFollower* m_pFollower = new CFollower;
    AcDbObjectId m_idFollower = Append(m_database, m_pFollower);
    AcDbObjectId m_idSource = Append(m_database, new AcDbPolyline);
};

} // namespace

TEST_F(PersistentReactor, IsToldOfAChangeWhenTheChangedObjectIsClosed) {
    const unsigned int nBefore = m_pFollower->numVerts();
    {
        CDbOpen<AcDbPolyline> source(m_idSource, AcDb::kForWrite);
        source->addVertexAt(0, {0.0, 0.0});
        EXPECT_EQ(m_pFollower->numVerts(), nBefore);
    }
    EXPECT_EQ(m_pFollower->m_upgraded, Acad::eOk);
    EXPECT_EQ(m_pFollower->numVerts(), nBefore + 1);
    EXPECT_TRUE(m_pFollower->m_bSawOpen);
    EXPECT_EQ(OpenStatus(m_idFollower, AcDb::kForWrite), Acad::eOk) << "nothing is left open";
    EXPECT_EQ(m_database.TakeChangedEntities(), (std::vector<AcDbObjectId>{m_idFollower, m_idSource}));
}

TEST_F(PersistentReactor, IsNotToldWhenNothingWasSaidToChange) {
    const unsigned int nBefore = m_pFollower->numVerts();
    EXPECT_EQ(OpenStatus(m_idSource, AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(OpenStatus(m_idSource, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(m_pFollower->numVerts(), nBefore);
}

TEST_F(PersistentReactor, ThatSomebodyReadsCannotFollow) {
    const unsigned int nBefore = m_pFollower->numVerts();
    {
        const CDbOpen<AcDbPolyline> reader(m_idFollower);
        Change();
    }
    EXPECT_EQ(m_pFollower->m_upgraded, Acad::eWasOpenForRead);
    EXPECT_EQ(m_pFollower->numVerts(), nBefore);
}

TEST_F(PersistentReactor, ThatIsOpenForWritingFollowsAndStaysOpen) {
    CDbOpen<AcDbPolyline> writer(m_idFollower, AcDb::kForWrite);
    const unsigned int nBefore = m_pFollower->numVerts();
    Change();
    EXPECT_EQ(m_pFollower->numVerts(), nBefore + 1);
    EXPECT_TRUE(m_pFollower->isWriteEnabled());
}

TEST_F(PersistentReactor, IsToldOfErasureAndNotOnceItIsErasedItself) {
    CDbOpen<AcDbPolyline>(m_idSource, AcDb::kForWrite)->erase();
    EXPECT_EQ(m_pFollower->m_nErasures, 1);
    CDbOpen<AcDbPolyline>(m_idFollower, AcDb::kForWrite)->erase();
    AcDbObject* pSource = nullptr;
    ASSERT_EQ(acdbOpenAcDbObject(pSource, m_idSource, AcDb::kForWrite, true), Acad::eOk);
    pSource->erase(false);
    pSource->close();
    EXPECT_EQ(m_pFollower->m_nErasures, 1);
}

TEST_F(PersistentReactor, IsKnownOnceAndCanBeTakenAway) {
    CDbOpen<AcDbPolyline> source(m_idSource, AcDb::kForWrite);
    EXPECT_EQ(source->addPersistentReactor(m_idFollower), Acad::eOk);
    EXPECT_EQ(source->PersistentReactors().size(), 1U);
    EXPECT_EQ(source->addPersistentReactor(AcDbObjectId::kNull), Acad::eNullObjectId);
    AcDbDatabase other;
    EXPECT_EQ(source->addPersistentReactor(other.clayer()), Acad::eWrongDatabase);
    EXPECT_EQ(source->removePersistentReactor(m_idFollower), Acad::eOk);
    EXPECT_EQ(source->removePersistentReactor(m_idFollower), Acad::eKeyNotFound);
    EXPECT_FALSE(source->hasPersistentReactor(m_idFollower));
}

TEST(OpenForNotify, IsNoStateFromWhichAClosedObjectIsUpgraded) {
    AcDbDatabase database;
    const AcDbObjectId id = Append(database, new AcDbPolyline);
    AcDbObject* pObject = nullptr;
    ASSERT_EQ(acdbOpenAcDbObject(pObject, id, AcDb::kForRead), Acad::eOk);
    Adesk::Boolean bWasWritable = Adesk::kTrue;
    EXPECT_EQ(pObject->upgradeFromNotify(bWasWritable), Acad::eNotOpenForNotify);
    EXPECT_EQ(pObject->downgradeToNotify(Adesk::kFalse), Acad::eNotOpenForNotify);
    pObject->close();
}
