#include "host/datamanager/sheet_sketch.h"

#include "host/files/drawing_format.h"
#include "platform/acad/db_attribute.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"

#include <gtest/gtest.h>

#include <array>

namespace {

/// What a sketch's file holds.
class CReadSketch {
public:
    explicit CReadSketch(const CSheetSketch& sketch)
        : m_read(ReadDrawing(sketch.Bytes())) {}

    [[nodiscard]] std::vector<AcDbObjectId> Ids() const {
        return CDbOpen<AcDbBlockTableRecord>(m_read.m_pDatabase->ModelSpaceId())->EntityIds();
    }
    /// The entity at a place of the drawing's order, which must be of the class.
    template <class T>
    [[nodiscard]] const CDbOpen<T>& At(std::size_t nEntity) {
        auto pOpened = std::make_shared<CDbOpen<T>>(Ids().at(nEntity));
        m_arOpened.push_back(pOpened);
        EXPECT_TRUE(*pOpened);
        return *pOpened;
    }

private:
    CReadDrawing m_read;
    std::vector<std::shared_ptr<void>> m_arOpened;
};

} // namespace

TEST(SheetSketch, PutsTheSheetIntoTheDrawingsUnits) {
    CSheetSketch sketch({-24.0, 5.0}, 0.001);
    sketch.Line({4.0, 9.0}, {416.0, 9.0});
    sketch.Mark({26.0, 15.0}, "[SYFF]");
    CReadSketch read(sketch);
    const auto& line = read.At<AcDbLine>(0);
    EXPECT_NEAR(line->startPoint().x, 0.028, 1e-12);
    EXPECT_NEAR(line->startPoint().y, 0.004, 1e-12);
    EXPECT_NEAR(line->endPoint().x, 0.44, 1e-12);
    const auto& mark = read.At<AcDbText>(1);
    EXPECT_NEAR(mark->position().x, 0.05, 1e-12);
    EXPECT_NEAR(mark->position().y, 0.01, 1e-12);
    EXPECT_NEAR(mark->height(), 0.003, 1e-12);
}

TEST(SheetSketch, DrawsClosedRectanglesWithAWidth) {
    CSheetSketch sketch;
    sketch.Rectangle({1.0, 2.0}, {30.0, 40.0}, 0.5);
    CReadSketch read(sketch);
    const auto& rectangle = read.At<AcDbPolyline>(0);
    EXPECT_TRUE(rectangle->isClosed());
    ASSERT_EQ(rectangle->numVerts(), 4U);
    AcGePoint2d pt;
    rectangle->getPointAt(2, pt);
    EXPECT_EQ(pt.x, 30.0);
    EXPECT_EQ(pt.y, 40.0);
    double dStart = 0.0, dEnd = 0.0;
    rectangle->getWidthsAt(3, dStart, dEnd);
    EXPECT_EQ(dStart, 0.5);
    EXPECT_EQ(dEnd, 0.5);
}

TEST(SheetSketch, SetsTextsInTheMiddleInItsOwnStyle) {
    CSheetSketch sketch;
    sketch.Caption({10.0, 20.0}, {30.0, 40.0}, 6.0, "图名");
    CReadSketch read(sketch);
    const auto& caption = read.At<AcDbText>(0);
    EXPECT_STREQ(caption->textString(), L"图名");
    EXPECT_EQ(caption->StyleName(), "图框");
    EXPECT_EQ(caption->height(), 6.0);
    EXPECT_EQ(caption->widthFactor(), 0.7);
    EXPECT_EQ(caption->horizontalMode(), AcDb::kTextMid);
    EXPECT_EQ(caption->alignmentPoint(), AcGePoint3d(20.0, 30.0, 0.0));
    EXPECT_EQ(caption->position().y, 27.0);
    EXPECT_NEAR(caption->position().x, 20.0 - 4 * 0.8285 * 0.7 * 6.0 / 2.0, 1e-12);
}

TEST(SheetSketch, DrawsARowOfCells) {
    CSheetSketch sketch;
    constexpr std::array arCells = {CTitleCell{10.0, CellKind::Caption, "图号"},
                                    CTitleCell{20.0, CellKind::Field, "[GCBH]"}, CTitleCell{5.0},
                                    CTitleCell{15.0, CellKind::Place, "[SYFF]"}};
    sketch.Row({100.0, 50.0}, 8.0, arCells);
    CReadSketch read(sketch);
    ASSERT_EQ(read.Ids().size(), 7U); // three texts, three lines between, one above
    EXPECT_EQ(read.At<AcDbLine>(1)->startPoint(), AcGePoint3d(110.0, 50.0, 0.0));
    EXPECT_EQ(read.At<AcDbLine>(1)->endPoint(), AcGePoint3d(110.0, 58.0, 0.0));
    const auto& field = read.At<AcDbAttributeDefinition>(2);
    EXPECT_STREQ(field->tag(), L"[GCBH]");
    EXPECT_STREQ(field->textString(), L"");
    EXPECT_EQ(field->alignmentPoint(), AcGePoint3d(120.0, 54.0, 0.0));
    EXPECT_EQ(read.At<AcDbText>(5)->position(), AcGePoint3d(138.0, 54.0 - 2.5 / 2.0, 0.0));
    EXPECT_EQ(read.At<AcDbLine>(6)->startPoint(), AcGePoint3d(100.0, 58.0, 0.0));
    EXPECT_EQ(read.At<AcDbLine>(6)->endPoint(), AcGePoint3d(150.0, 58.0, 0.0));
}
