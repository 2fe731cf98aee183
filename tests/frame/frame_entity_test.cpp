#include "frame/frame_entity.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/field_table.h"
#include "platform/acad/rx_registry.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <numbers>

namespace {
class FrameClass : public testing::Test {
protected:
    FrameClass() { CBRENFrame::rxInit(); }
    ~FrameClass() override { CBRENFrame::rxExit(); }
};

/// Draws a wide line by the frame's mode, to see which mode a saving has.
class CModeFrame : public CBRENFrame {
public:
    Adesk::Int16 m_nModeWhenDrawn = -1;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw*) override {
        m_nModeWhenDrawn = m_nPolylineMode;
        return 1;
    }
};

/// Notes by how much the frame that it watches moved.
class CFollower : public AcDbPolyline {
public:
    AcGeVector3d m_vecHeard;
    void modified(const AcDbObject* pObject) override {
        if (const CBRENFrame* pFrame = CBRENFrame::cast(pObject)) m_vecHeard = pFrame->m_vecGripOffset;
    }
};

constexpr double g_dHalfTurn = std::numbers::pi;
} // namespace

TEST_F(FrameClass, IsRegisteredWithItsNamesAndNumbers) {
    const AcRxClass* pClass = CBRENFrame::desc();
    ASSERT_NE(pClass, nullptr);
    EXPECT_STREQ(pClass->name(), L"CBRENFrame");
    EXPECT_STREQ(pClass->dxfName(), L"CBRENFRAME");
    EXPECT_STREQ(pClass->appName(), L"CBRENFRAME");
    EXPECT_EQ(pClass->myParent(), AcDbEntity::desc());
    EXPECT_EQ(pClass->dwgVersion(), 31);
    EXPECT_EQ(pClass->maintenanceVersion(), 55);
    EXPECT_EQ(pClass->proxyFlags(), 255);
    EXPECT_NE(pClass->queryX(CFieldTable::desc()), nullptr);
}

TEST_F(FrameClass, MakesDefaultObjects) {
    const std::unique_ptr<AcRxObject> pObject(CBRENFrame::desc()->create());
    ASSERT_NE(pObject, nullptr);
    EXPECT_EQ(pObject->isA(), CBRENFrame::desc());
    EXPECT_EQ(CBRENFrame::cast(pObject.get()), pObject.get());
    const AcDbPolyline other;
    EXPECT_EQ(CBRENFrame::cast(&other), nullptr);
}

TEST_F(FrameClass, IsGoneAfterItsRemoval) {
    CBRENFrame::rxExit();
    const auto* pDictionary = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    EXPECT_EQ(pDictionary->at(L"CBRENFrame"), nullptr);
    EXPECT_EQ(CBRENFrame::desc(), nullptr);
}

TEST_F(FrameClass, IsWatchedByWhatFollowsItsGrip) {
    CTestDrawing drawing;
    const auto append = [&](AcDbEntity* pEntity) {
        const CDbOpen<AcDbBlockTableRecord> pSpace(drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        AcDbObjectId id;
        pSpace->appendAcDbEntity(id, pEntity);
        pEntity->close();
        return id;
    };
    auto* const pFollower = new CFollower;
    const AcDbObjectId idFollower = append(pFollower);
    const AcDbObjectId idFrame = append(new CBRENFrame);
    const CDbOpen<CBRENFrame> pFrame(idFrame, AcDb::kForWrite);
    ASSERT_TRUE(pFrame);
    pFrame->addPersistentReactor(idFollower);
    AcDbIntArray indices;
    indices.append(0);
    pFrame->moveGripPointsAt(indices, {5.0, -2.0, 0.0});
    EXPECT_TRUE(pFollower->m_vecHeard.isZeroLength()) << "told when the frame is closed";
    pFrame->downgradeOpen();
    EXPECT_TRUE(pFollower->m_vecHeard == AcGeVector3d(5.0, -2.0, 0.0));
}

TEST(Frame, BeginsWithTheDefaultsOfANewSheet) {
    const CBRENFrame frame;
    EXPECT_EQ(frame.m_dTextHeight, 2.5);
    EXPECT_EQ(frame.m_dBorderWidth, 0.5);
    EXPECT_EQ(frame.m_nPolylineMode, 0);
    EXPECT_EQ(frame.m_bRQ, 0);
    EXPECT_EQ(frame.m_nYear, 0);
    EXPECT_EQ(frame.m_nGCBZ, 0);
    EXPECT_TRUE(frame.m_ptBase == AcGePoint3d::kOrigin);
    EXPECT_TRUE(frame.m_vecGripOffset.isZeroLength());
    EXPECT_TRUE(frame.m_strZKBH.IsEmpty() && frame.m_sWCDW.IsEmpty());
    EXPECT_TRUE(frame.m_idTextStyle.isNull() && frame.m_idBannerStyle.isNull());
}

TEST(Frame, IsMovedByATranslation) {
    CBRENFrame frame;
    frame.m_ptBase.set(10.0, 20.0, 0.0);
    EXPECT_EQ(frame.transformBy(AcGeMatrix3d::translation({1.0, 2.0, 3.0})), Acad::eOk);
    EXPECT_TRUE(frame.m_ptBase == AcGePoint3d(11.0, 22.0, 3.0));
    EXPECT_TRUE(frame.m_vecGripOffset.isZeroLength());
}

TEST(Frame, RefusesToBeTurnedMirroredOrScaled) {
    CBRENFrame frame;
    frame.m_ptBase.set(10.0, 20.0, 0.0);
    for (const AcGeMatrix3d& matrix :
         {AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin),
          AcGeMatrix3d::rotation(g_dHalfTurn, AcGeVector3d::kZAxis, {10.0, 20.0, 0.0}),
          AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis),
          AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin)}) {
        EXPECT_EQ(frame.transformBy(matrix), 2);
        EXPECT_TRUE(frame.m_ptBase == AcGePoint3d(10.0, 20.0, 0.0));
    }
}

TEST(Frame, HasItsCornerAsTheOnlyGrip) {
    CBRENFrame frame;
    frame.m_ptBase.set(10.0, 20.0, 0.0);
    AcGePoint3dArray grips;
    AcDbIntArray osnapModes, geomIds;
    EXPECT_EQ(frame.getGripPoints(grips, osnapModes, geomIds), Acad::eOk);
    ASSERT_EQ(grips.length(), 1);
    EXPECT_TRUE(grips[0] == AcGePoint3d(10.0, 20.0, 0.0));
    EXPECT_TRUE(osnapModes.isEmpty() && geomIds.isEmpty());
}

TEST(Frame, FollowsItsGripOnceForEveryEntryOfTheList) {
    CBRENFrame frame;
    AcDbIntArray indices;
    for (const int nIndex : {0, 1, 0, -1})
        indices.append(nIndex);
    EXPECT_EQ(frame.moveGripPointsAt(indices, {1.0, 2.0, 0.0}), Acad::eOk);
    EXPECT_TRUE(frame.m_ptBase == AcGePoint3d(2.0, 4.0, 0.0));
    EXPECT_TRUE(frame.m_vecGripOffset == AcGeVector3d(1.0, 2.0, 0.0));
}

TEST(Frame, OnlyNotesTheOffsetOfAGripMoveWithoutGrips) {
    CBRENFrame frame;
    EXPECT_EQ(frame.moveGripPointsAt(AcDbIntArray(), {1.0, 2.0, 0.0}), Acad::eOk);
    EXPECT_TRUE(frame.m_ptBase == AcGePoint3d::kOrigin);
    EXPECT_TRUE(frame.m_vecGripOffset == AcGeVector3d(1.0, 2.0, 0.0));
}

TEST_F(FrameClass, MayNotBeMovedByItsGripWhileItIsOpenForReadingOnly) {
    CTestDrawing drawing;
    AcDbObjectId id;
    {
        auto* const pFrame = new CBRENFrame;
        const CDbOpen<AcDbBlockTableRecord> pSpace(drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        pSpace->appendAcDbEntity(id, pFrame);
        pFrame->close();
    }
    const CDbOpen<CBRENFrame> pFrame(id);
    EXPECT_DEATH(pFrame->moveGripPointsAt(AcDbIntArray(), {1.0, 0.0, 0.0}), "open for writing");
}

TEST(Frame, TakesAColourWithItsParts) {
    CBRENFrame frame;
    EXPECT_EQ(frame.setColorIndex(3, Adesk::kFalse), Acad::eOk);
    EXPECT_EQ(frame.colorIndex(), 3);
    EXPECT_EQ(frame.setColorIndex(300), Acad::eInvalidInput);
}

TEST(Frame, IsDrawnInTheModeOfFilesWhileItsPictureIsSaved) {
    CModeFrame frame;
    CDisplayRecorder recorder(frame);
    frame.saveAs(&recorder, AcDb::kR14Save);
    EXPECT_EQ(frame.m_nModeWhenDrawn, 1);
    EXPECT_EQ(frame.m_nPolylineMode, 0);
    frame.worldDraw(&recorder);
    EXPECT_EQ(frame.m_nModeWhenDrawn, 0);
}
