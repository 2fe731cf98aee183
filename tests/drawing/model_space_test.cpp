#include "drawing/model_space.h"

#include "platform/acad/db_text.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>
#include <memory>

TEST(AppendToModelSpace, ClosesTheEntityAndFillsANullDatabase) {
    CTestDrawing drawing;
    AcDbDatabase* pDatabase = nullptr;
    AcDbObjectId id;
    ASSERT_EQ(AppendToModelSpace(pDatabase, id, new AcDbText), 1);
    EXPECT_EQ(pDatabase, &drawing.Database());
    const CDbOpen<AcDbText> pText(id, AcDb::kForWrite);
    ASSERT_TRUE(pText); // it was closed, else it could not be opened for writing
    EXPECT_EQ(pText->ownerId(), drawing.Database().ModelSpaceId());
}

TEST(AppendToModelSpace, FailsWithoutADrawingAndLeavesTheEntityToItsMaker) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    const auto pText = std::make_unique<AcDbText>();
    AcDbDatabase* pDatabase = nullptr;
    AcDbObjectId id;
    EXPECT_EQ(AppendToModelSpace(pDatabase, id, pText.get()), 0);
    EXPECT_TRUE(id.isNull());
}

TEST(AppendToModelSpace, RefusesAnEntityThatStandsInADrawingAlready) {
    CTestDrawing drawing;
    AcDbDatabase* pDatabase = nullptr;
    AcDbObjectId id, idAgain;
    auto* pText = new AcDbText;
    ASSERT_EQ(AppendToModelSpace(pDatabase, id, pText), 1);
    EXPECT_EQ(AppendToModelSpace(pDatabase, idAgain, pText), 0);
}
