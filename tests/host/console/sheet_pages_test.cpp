// Which pages a drawing has; what they look like is tested with PLOT.

#include "host/console/sheet_pages.h"

#include "host/console/redraw.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

class SheetPages : public testing::Test {
protected:
    AcDbObjectId Append(AcDbObjectId idBlock, AcDbEntity* pEntity) {
        AcDbObjectId id;
        EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idBlock, AcDb::kForWrite)->appendAcDbEntity(id, pEntity),
                  Acad::eOk);
        pEntity->close();
        return id;
    }
    AcDbObjectId AddLine(double x) {
        return Append(m_drawing.ModelSpaceId(), new AcDbLine({x, 10.0, 0.0}, {x + 50.0, 10.0, 0.0}));
    }
    /// A block whose extents are an upright A4 sheet.
    AcDbObjectId AddFrame(const wchar_t* szName) {
        auto* const pBlock = new AcDbBlockTableRecord;
        pBlock->setName(szName);
        AcDbObjectId id;
        EXPECT_EQ(CDbOpen<AcDbBlockTable>(m_drawing.blockTableId(), AcDb::kForWrite)->add(id, pBlock),
                  Acad::eOk);
        pBlock->close();
        Append(id, new AcDbLine({0.0, 0.0, 0.0}, {210.0, 297.0, 0.0}));
        return id;
    }
    void AddSheet(AcDbObjectId idBlock, double x) {
        Append(m_drawing.ModelSpaceId(), new AcDbBlockReference({x, 0.0, 0.0}, idBlock));
    }
    /// Each page as its left edge and the number of pictures on it.
    std::string Pages() {
        DrawChanged(m_drawing);
        const CPlottedDrawing plotted(m_drawing);
        std::string strPages;
        for (const CPlotPage& page : plotted.Pages())
            strPages += std::to_string(std::lround(page.m_box.m_dLeft)) + ":" +
                        std::to_string(page.m_arPictures.size()) + " ";
        return strPages;
    }
    AcDbDatabase m_drawing;
};

} // namespace

TEST_F(SheetPages, AnEmptyDrawingHasOneEmptyPage) {
    EXPECT_EQ(Pages(), "-105:0 ");
}

TEST_F(SheetPages, WithoutAFrameAllOfItIsOnOnePageInTheMiddle) {
    AddLine(0.0);
    AddLine(50.0);
    EXPECT_EQ(Pages(), "-55:2 ");
}

TEST_F(SheetPages, FramesMakePagesInDatabaseOrderWithWhatMeetsThem) {
    const AcDbObjectId idFrame = AddFrame(L"BRMB");
    AddSheet(idFrame, 300.0);
    AddSheet(idFrame, 0.0);
    AddLine(180.0); // over the edge of the second
    AddLine(600.0); // on none
    EXPECT_EQ(Pages(), "300:1 0:2 ");
}

TEST_F(SheetPages, AnotherBlockIsNoFrame) {
    AddSheet(AddFrame(L"BRMB2"), 0.0);
    EXPECT_EQ(Pages(), "0:1 ");
    AddSheet(AddFrame(L"brmb"), 500.0);
    EXPECT_EQ(Pages(), "500:1 ");
}
