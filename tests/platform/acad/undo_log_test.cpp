#include "platform/acad/undo_log.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/db_text.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

class UndoLogTest : public testing::Test {
protected:
    AcDbObjectId AppendLine(double dLength) {
        auto* pLine = new AcDbPolyline;
        pLine->addVertexAt(0, {0.0, 0.0});
        pLine->addVertexAt(1, {dLength, 0.0});
        return Append(m_database, pLine);
    }
    void SetLength(AcDbObjectId id, double dLength) {
        CDbOpen<AcDbPolyline> line(id, AcDb::kForWrite);
        line->setPointAt(1, {dLength, 0.0});
    }
    static double Length(AcDbObjectId id) {
        CDbOpen<AcDbPolyline> line(id);
        AcGePoint2d end;
        line->getPointAt(1, end);
        return end.x;
    }

    AcDbDatabase m_database;
    CUndoLog& m_log = m_database.UndoLog();
};

/// Notes what it is told.
class CWatcher : public AcDbPolyline {
public:
    void modified(const AcDbObject* pObject) override {
        m_strHeard += pObject->isUndoing() ? "undone " : "modified ";
    }
    void erased(const AcDbObject*, Adesk::Boolean bErased) override {
        m_strHeard += bErased ? "erased " : "back ";
    }
    std::string m_strHeard;
};

} // namespace

TEST_F(UndoLogTest, RecordsNothingBeforeTheFirstStep) {
    const AcDbObjectId id = AppendLine(10.0);
    SetLength(id, 20.0);
    EXPECT_FALSE(m_log.IsRecording());
    EXPECT_EQ(m_log.Undo(1), 0);
    EXPECT_EQ(Length(id), 20.0);
}

TEST_F(UndoLogTest, BringsAChangedEntityBackAndForth) {
    const AcDbObjectId id = AppendLine(10.0);
    m_log.BeginStep();
    SetLength(id, 20.0);
    m_log.BeginStep();
    SetLength(id, 30.0);
    SetLength(id, 40.0);
    EXPECT_EQ(m_log.Undo(1), 1);
    EXPECT_EQ(Length(id), 20.0);
    EXPECT_EQ(m_log.Undo(5), 1);
    EXPECT_EQ(Length(id), 10.0);
    EXPECT_EQ(m_log.Redo(1), 1);
    EXPECT_EQ(Length(id), 20.0);
    EXPECT_EQ(m_log.Redo(9), 1);
    EXPECT_EQ(Length(id), 40.0);
    EXPECT_EQ(m_log.Redo(1), 0);
}

TEST_F(UndoLogTest, ErasesWhatWasAppendedAndBringsItBackWithItsLaterChanges) {
    m_log.BeginStep();
    const AcDbObjectId id = AppendLine(10.0);
    SetLength(id, 20.0);
    m_log.Undo(1);
    EXPECT_TRUE(id.isErased());
    m_log.Redo(1);
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(Length(id), 20.0);
}

TEST_F(UndoLogTest, BringsAnErasedEntityBack) {
    const AcDbObjectId id = AppendLine(10.0);
    m_log.BeginStep();
    CDbOpen<AcDbPolyline>(id, AcDb::kForWrite)->erase();
    EXPECT_TRUE(id.isErased());
    m_log.Undo(1);
    EXPECT_FALSE(id.isErased());
    EXPECT_EQ(Length(id), 10.0);
    m_log.Redo(1);
    EXPECT_TRUE(id.isErased());
}

TEST_F(UndoLogTest, UndoesVariablesAndTableRecords) {
    m_log.BeginStep();
    const AcDbObjectId idLayer =
        AddRecord<AcDbLayerTable>(m_database.layerTableId(), L"探孔", new AcDbLayerTableRecord);
    const AcDbObjectId idZero = m_database.clayer();
    m_database.setClayer(idLayer);
    m_database.setLtscale(10.0);
    m_log.Undo(1);
    EXPECT_EQ(m_database.clayer(), idZero);
    EXPECT_EQ(m_database.ltscale(), 1.0);
    CDbOpen<AcDbLayerTable> layers(m_database.layerTableId());
    EXPECT_FALSE(layers->has(L"探孔"));
}

TEST_F(UndoLogTest, LeavesNoTraceOfAStepWithoutChanges) {
    const AcDbObjectId id = AppendLine(10.0);
    m_log.BeginStep();
    SetLength(id, 20.0);
    m_log.BeginStep();
    SetLength(id, 20.0); // opened and set, but as it was
    m_log.BeginStep();
    m_log.BeginStep();
    EXPECT_EQ(m_log.Undo(1), 1);
    EXPECT_EQ(Length(id), 10.0);
}

TEST_F(UndoLogTest, ForgetsTheRedoOnceSomethingElseChanges) {
    const AcDbObjectId id = AppendLine(10.0);
    m_log.BeginStep();
    SetLength(id, 20.0);
    m_log.Undo(1);
    SetLength(id, 30.0);
    EXPECT_EQ(m_log.Redo(1), 0);
    EXPECT_EQ(Length(id), 30.0);
    EXPECT_EQ(m_log.Undo(1), 1);
    EXPECT_EQ(Length(id), 10.0);
}

TEST_F(UndoLogTest, NamesWhatItChangedForTheNextDrawing) {
    const AcDbObjectId id = AppendLine(10.0);
    m_log.BeginStep();
    SetLength(id, 20.0);
    m_database.TakeChangedEntities();
    m_log.Undo(1);
    EXPECT_EQ(m_database.TakeChangedEntities(), std::vector<AcDbObjectId>{id});
}

TEST_F(UndoLogTest, TellsReactorsThatItIsAnUndo) {
    const AcDbObjectId id = AppendLine(10.0);
    auto* pWatcher = new CWatcher;
    const AcDbObjectId idWatcher = Append(m_database, pWatcher);
    CDbOpen<AcDbPolyline>(id, AcDb::kForWrite)->addPersistentReactor(idWatcher);
    pWatcher->m_strHeard.clear();
    m_log.BeginStep();
    SetLength(id, 20.0);
    m_log.BeginStep();
    CDbOpen<AcDbPolyline>(id, AcDb::kForWrite)->erase();
    m_log.Undo(2);
    EXPECT_EQ(pWatcher->m_strHeard, "modified erased modified back undone undone ");
}
