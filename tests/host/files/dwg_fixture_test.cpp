// Drawing files written on another day, and what stands in them.

#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "host/files/drawing_storage.h"
#include "host/files/drawing_text.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

namespace {

/// A drawing as text, GBK.
class CListing {
public:
    explicit CListing(const AcDbDatabase& database)
        : m_database(database) {}

    std::string Text() {
        AddRecords("layers", m_database.layerTableId());
        AddRecords("line types", m_database.linetypeTableId());
        AddRecords("styles", m_database.textStyleTableId());
        AddRecords("applications", m_database.regAppTableId());
        for (const AcDbObjectId& id : LivingRecords(m_database.blockTableId()))
            AddBlock(id);
        return m_text.str();
    }

private:
    void AddRecords(const char* pTable, AcDbObjectId idTable) {
        m_text << pTable << ':';
        for (const AcDbObjectId& id : LivingRecords(idTable))
            m_text << ' ' << SymbolName(id);
        m_text << '\n';
    }

    void AddBlock(AcDbObjectId id) {
        m_text << "block " << SymbolName(id) << '\n';
        for (const AcDbObjectId& idEntity : CDbOpen<AcDbBlockTableRecord>(id)->EntityIds())
            AddEntity(*CDbOpen<AcDbEntity>(idEntity).Get(), "  ");
    }

    void AddEntity(const AcDbEntity& entity, const char* pIndent) {
        m_text << pIndent << GbkFromWide(entity.isA()->name()) << ", layer " << entity.LayerName()
               << ", color " << entity.colorIndex();
        for (const CXDataOfApp& app : entity.XData().Apps())
            m_text << ", " << app.m_arItems.size() << " values of " << SymbolName(app.m_idApp);
        AddValues(entity);
        m_text << '\n';
        if (const auto* const pReference = AcDbBlockReference::cast(&entity))
            for (const AcDbObjectId& id : pReference->AttributeIds())
                AddEntity(*CDbOpen<AcDbEntity>(id).Get(), "    ");
    }

    void AddPoint(const AcGePoint3d& pt) { m_text << " (" << pt.x << ' ' << pt.y << ' ' << pt.z << ')'; }

    void AddValues(const AcDbEntity& entity) {
        m_text << ':';
        if (const auto* const pLine = AcDbLine::cast(&entity)) {
            AddPoint(pLine->startPoint());
            AddPoint(pLine->endPoint());
        } else if (const auto* const pArc = AcDbArc::cast(&entity)) {
            AddPoint(pArc->center());
            m_text << ' ' << pArc->radius() << ' ' << pArc->startAngle() << ' ' << pArc->endAngle();
        } else if (const auto* const pPolyline = AcDbPolyline::cast(&entity)) {
            m_text << ' ' << pPolyline->numVerts() << " points";
        } else if (const auto* const pSpline = AcDbSpline::cast(&entity)) {
            m_text << ' ' << pSpline->numFitPoints() << " fit points, "
                   << pSpline->Nurbs().m_arControlPoints.size() << " control points";
        } else if (const auto* const pText = AcDbText::cast(&entity)) {
            AddPoint(pText->position());
            m_text << ' ' << m_texts.Encode(pText->textString()) << ' ' << pText->height();
        } else if (const auto* const pReference = AcDbBlockReference::cast(&entity)) {
            AddPoint(pReference->position());
            m_text << ' ' << SymbolName(pReference->blockTableRecord());
        } else if (const auto* const pChart = CBRENChart::cast(&entity)) {
            AddPoint(pChart->m_ptBase);
            m_text << ' ' << pChart->m_strGCBH << ' ' << pChart->m_strZKBH << ' ' << pChart->m_strSoilName;
        } else if (const auto* const pFrame = CBRENFrame::cast(&entity)) {
            AddPoint(pFrame->m_ptBase);
            m_text << ' ' << pFrame->m_strGCMC << ' ' << pFrame->m_nYear;
        }
    }

    const AcDbDatabase& m_database;
    const CDrawingText m_texts{g_nChinesePage}; ///< which escapes what is not in it
    std::ostringstream m_text;
};

class DwgFixture : public testing::TestWithParam<std::string> {
protected:
    DwgFixture() {
        CBRENChart::rxInit();
        CBRENFrame::rxInit();
    }
    ~DwgFixture() override {
        CBRENFrame::rxExit();
        CBRENChart::rxExit();
    }
    static std::string Path(const char* pEnding) { return TERVO_TEST_DATA "/dwg/" + GetParam() + pEnding; }
};

} // namespace

TEST_P(DwgFixture, HoldsWhatWasWritten) {
    std::ifstream stream(Path(".txt"));
    const std::string strExpected{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    const CReadDrawing read = LoadDrawing(Path(".dwg"));
    EXPECT_EQ(read.m_losses, CDrawingLosses());
    EXPECT_EQ(ToUtf8(CListing(*read.m_pDatabase).Text()), strExpected);
}

INSTANTIATE_TEST_SUITE_P(November2026, DwgFixture, testing::Values("every_kind", "sheet"),
                         [](const auto& fixture) { return fixture.param; });
