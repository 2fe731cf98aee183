#include "host/console/plot_drawing.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/console/redraw.h"
#include "host/plot/headless.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_polyline.h"

namespace {

class PlotDrawingTest : public testing::Test {
protected:
    PlotDrawingTest() {
        StartHeadlessQt();
        std::string folder = (std::filesystem::temp_directory_path() / "tvcad-test-XXXXXX").string();
        m_folder = mkdtemp(folder.data());
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
        auto* const pLine = new AcDbPolyline;
        pLine->addVertexAt(0, AcGePoint2d(0.0, 0.0));
        pLine->addVertexAt(1, AcGePoint2d(100.0, 0.0));
        space->appendAcDbEntity(m_idLine, pLine);
        pLine->close();
        DrawChanged(m_drawing);
    }
    ~PlotDrawingTest() override { std::filesystem::remove_all(m_folder); }
    PlotDrawingTest(const PlotDrawingTest&) = delete;
    PlotDrawingTest& operator=(const PlotDrawingTest&) = delete;

    void PlotSvg() {
        CFonts fonts({});
        std::string reason;
        EXPECT_TRUE(PlotDrawing(m_drawing, fonts, m_folder / "a.svg", {}, &reason)) << reason;
    }
    std::string TextOf(const std::string& strName) const {
        std::ostringstream text;
        text << std::ifstream(m_folder / strName).rdbuf();
        return text.str();
    }
    std::string Svg() {
        PlotSvg();
        return TextOf("a.svg");
    }
    bool IsThere(const std::string& strName) const { return std::filesystem::exists(m_folder / strName); }

    AcDbObjectId Append(AcDbObjectId idBlock, AcDbEntity* pEntity) {
        AcDbObjectId id;
        const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
        block->appendAcDbEntity(id, pEntity);
        pEntity->close();
        return id;
    }
    AcDbObjectId AddBlock(const wchar_t* name) {
        AcDbObjectId id;
        auto* const pBlock = new AcDbBlockTableRecord;
        pBlock->setName(name);
        CDbOpen<AcDbBlockTable>(m_drawing.blockTableId(), AcDb::kForWrite)->add(id, pBlock);
        pBlock->close();
        return id;
    }
    /// The block of a frame, an upright A4 sheet from the origin.
    AcDbObjectId AddFrame(const wchar_t* name) {
        const AcDbObjectId id = AddBlock(name);
        auto* const pOutline = new AcDbPolyline;
        for (const AcGePoint2d& corner : {AcGePoint2d(0, 0), {210, 0}, {210, 297}, {0, 297}})
            pOutline->addVertexAt(pOutline->numVerts(), corner);
        pOutline->setClosed(Adesk::kTrue);
        Append(id, pOutline);
        return id;
    }
    AcDbObjectId AddSheet(AcDbObjectId idBlock, double x) {
        const AcDbObjectId id = Append(m_drawing.ModelSpaceId(), new AcDbBlockReference({x, 0, 0}, idBlock));
        DrawChanged(m_drawing);
        return id;
    }

    AcDbDatabase m_drawing;
    AcDbObjectId m_idLine;
    std::filesystem::path m_folder;
};

} // namespace

TEST_F(PlotDrawingTest, ByLayerTakesColourAndLineTypeOfTheLayer) {
    const std::string plain = Svg();
    CDbOpen<AcDbLayerTableRecord>(m_drawing.clayer(), AcDb::kForWrite)->SetColorIndex(1);
    const std::string red = Svg();
    EXPECT_NE(red, plain);
    AcDbObjectId idDashed;
    {
        auto* const pDashed = new AcDbLinetypeTableRecord;
        pDashed->setName(L"Dashed2");
        pDashed->SetPattern(L"", {5.0, -3.0});
        CDbOpen<AcDbLinetypeTable>(m_drawing.linetypeTableId(), AcDb::kForWrite)->add(idDashed, pDashed);
        pDashed->close();
    }
    CDbOpen<AcDbLayerTableRecord>(m_drawing.clayer(), AcDb::kForWrite)->setLinetypeObjectId(idDashed);
    const std::string dashed = Svg();
    EXPECT_NE(dashed, red);
    m_drawing.setLtscale(2.0);
    EXPECT_NE(Svg(), dashed);
}

TEST_F(PlotDrawingTest, ShowsWhatWasDrawnLast) {
    const std::string before = Svg();
    {
        const CDbOpen<AcDbPolyline> line(m_idLine, AcDb::kForWrite);
        line->setPointAt(1, AcGePoint2d(50.0, 0.0));
    }
    EXPECT_EQ(Svg(), before);
    DrawChanged(m_drawing);
    EXPECT_NE(Svg(), before);
}

TEST_F(PlotDrawingTest, AnEntityErasedIsNotPlotted) {
    const std::string before = Svg();
    CDbOpen<AcDbPolyline>(m_idLine, AcDb::kForWrite)->erase();
    EXPECT_NE(Svg(), before);
}

TEST_F(PlotDrawingTest, ADrawingWithSheetsHasAPageForEachWithWhatLiesOnIt) {
    const AcDbObjectId idFrame = AddFrame(L"brmb"); // the line lies on the first sheet
    AddSheet(idFrame, 0.0);
    AddSheet(idFrame, 220.0);
    PlotSvg();
    EXPECT_FALSE(IsThere("a.svg"));
    EXPECT_FALSE(IsThere("a-3.svg"));
    const std::string first = TextOf("a-1.svg"), second = TextOf("a-2.svg");
    for (const std::string& page : {first, second}) {
        EXPECT_NE(page.find("width=\"210mm\" height=\"297mm\""), std::string::npos) << page;
        EXPECT_NE(page.find("M0 297 L210 297 L210 0 L0 0"), std::string::npos) << page;
    }
    EXPECT_NE(first.find("M0 297 L100 297"), std::string::npos) << first;
    EXPECT_EQ(second.find("M0 297 L100 297"), std::string::npos) << second;
}

TEST_F(PlotDrawingTest, AllOfADrawingIsOnOnePageWhereNoSheetHasExtents) {
    const std::string plain = Svg();
    AddSheet(AddBlock(L"BRMB"), 0.0);
    EXPECT_EQ(Svg(), plain);
    EXPECT_FALSE(IsThere("a-1.svg"));
    AddSheet(AddFrame(L"FRAME"), 0.0);
    Svg();
    EXPECT_FALSE(IsThere("a-1.svg"));
}

TEST_F(PlotDrawingTest, GivenUpItLeavesNoHalfFileAndWhatStoodThereStays) {
    const AcDbObjectId idFrame = AddFrame(L"BRMB");
    AddSheet(idFrame, 0.0);
    AddSheet(idFrame, 220.0);
    std::ofstream(m_folder / "old.pdf") << "before";
    CFonts fonts({});
    std::string reason, strAsked;
    const auto oneOnly = [&](std::size_t nDone, std::size_t nPages) {
        strAsked += std::to_string(nDone) + "/" + std::to_string(nPages) + " ";
        return nDone < 1;
    };
    for (const char* const szName : {"new.pdf", "old.pdf", "a.svg"}) {
        EXPECT_FALSE(PlotDrawing(m_drawing, fonts, m_folder / szName, oneOnly, &reason)) << szName;
        EXPECT_EQ(reason, "the plot is given up");
    }
    EXPECT_EQ(strAsked, "0/2 1/2 0/2 1/2 0/2 1/2 ");
    EXPECT_FALSE(IsThere("new.pdf"));
    EXPECT_EQ(TextOf("old.pdf"), "before");
    EXPECT_NE(TextOf("a-1.svg").find("</svg>"), std::string::npos) << "whole";
    EXPECT_FALSE(IsThere("a-2.svg"));
}

TEST_F(PlotDrawingTest, ASheetErasedHasNoPage) {
    const AcDbObjectId idFrame = AddFrame(L"BRMB");
    AddSheet(idFrame, 0.0);
    CDbOpen<AcDbBlockReference>(AddSheet(idFrame, 220.0), AcDb::kForWrite)->erase();
    PlotSvg();
    EXPECT_TRUE(IsThere("a.svg"));
    EXPECT_FALSE(IsThere("a-1.svg"));
}

TEST_F(PlotDrawingTest, AnAttributeBesideItsSheetDoesNotWidenThePage) {
    const AcDbObjectId idSheet = AddSheet(AddFrame(L"BRMB"), 0.0);
    {
        const CDbOpen<AcDbBlockReference> sheet(idSheet, AcDb::kForWrite);
        auto* const pAttribute = new AcDbAttribute;
        pAttribute->setPosition({300.0, 10.0, 0.0});
        pAttribute->setTextString(L"ZK1");
        sheet->appendAttribute(pAttribute);
        pAttribute->close();
    }
    DrawChanged(m_drawing);
    PlotSvg();
    EXPECT_NE(TextOf("a.svg").find("width=\"210mm\" height=\"297mm\""), std::string::npos);
}
