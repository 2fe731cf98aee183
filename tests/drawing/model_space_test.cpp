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

TEST(AddToModelSpace, AppendsToTheGivenDrawingOrTheWorkingOneAndClosesTheEntity) {
    CTestDrawing drawing;
    AcDbDatabase other;
    AcDbObjectId idHere, idThere;
    AddToModelSpace(new AcDbText, idHere);
    AddToModelSpace(new AcDbText, idThere, &other);
    EXPECT_EQ(idHere.database(), &drawing.Database());
    EXPECT_EQ(idThere.database(), &other);
    EXPECT_TRUE(CDbOpen<AcDbText>(idHere, AcDb::kForWrite));
    EXPECT_TRUE(CDbOpen<AcDbText>(idThere, AcDb::kForWrite));
}

TEST(AddToModelSpace, LeavesANullIdWhereThereIsNoDrawing) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    const auto pText = std::make_unique<AcDbText>();
    AcDbDatabase other;
    AcDbObjectId id = other.ModelSpaceId();
    AddToModelSpace(pText.get(), id);
    EXPECT_TRUE(id.isNull());
}

TEST(IsCurrentDrawing, ComparesTheFilesNameWithoutCaseAndKindOfSlash) {
    CTestDrawing drawing;
    EXPECT_EQ(IsCurrentDrawing("C:\\out\\BR勘察-1.dwg"), 0) << "a drawing without a file";
    drawing.Database().SetFilename(L"C:\\out\\BR勘察-1.dwg");
    EXPECT_EQ(IsCurrentDrawing("c:\\OUT\\br勘察-1.DWG"), 1);
    EXPECT_EQ(IsCurrentDrawing("C:/out\\BR勘察-1.dwg"), 1);
    EXPECT_EQ(IsCurrentDrawing("C:\\out\\BR勘察-2.dwg"), 0);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(IsCurrentDrawing("C:\\out\\BR勘察-1.dwg"), 0);
}
