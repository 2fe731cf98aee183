// The frame's two forms of output.

#include "drawing/explode_set.h"
#include "drawing/line_entities.h"
#include "drawing/polyline_output.h"
#include "drawing/polyline_vertices.h"
#include "drawing/styles.h"
#include "frame/frame_entity.h"
#include "frame/frame_picture.h"

namespace {
CFrameStyles StylesOf(const CBRENFrame& frame) {
    return {frame.m_idTextStyle, frame.m_idBannerStyle};
}

/// Sends primitives to the context and keeps nothing.
class CFrameWorldSink final : public CFrameSink {
public:
    CFrameWorldSink(AcGiWorldDraw* pMode, const CBRENFrame& frame)
        : m_pMode(pMode)
        , m_frame(frame) {}

    void Outline(const AcDbPolyline& polyline) override {
        DrawPolylineByMode(m_frame.m_nPolylineMode, m_pMode, polyline);
    }
    void Rule(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override {
        AcDbPolyline rule(2);
        for (const AcGePoint3d& pt : {ptFrom, ptTo})
            AppendVertex(rule, {{pt.x, pt.y}});
        Outline(rule);
    }
    void Text(const AcGePoint3d& ptPosition, const CString& strText) override {
        DrawFrameText(m_pMode, ptPosition, strText);
    }
    void Cell(const CTextCell& cell, const AcGiTextStyle& style) override {
        DrawFrameCell(m_pMode, cell, style, StylesOf(m_frame));
    }

private:
    AcGiWorldDraw* m_pMode;
    const CBRENFrame& m_frame;
};

/// Makes entities and hands them to the array's owner.
class CFrameExplodeSink final : public CFrameSink {
public:
    CFrameExplodeSink(AcDbVoidPtrArray& entitySet, const CBRENFrame& frame)
        : m_entitySet(entitySet)
        , m_styles(StylesOf(frame)) {}

    void Outline(const AcDbPolyline& polyline) override {
        auto pPolyline = std::make_unique<AcDbPolyline>(polyline.numVerts());
        for (const CPolylineVertex& vertex : polyline.Vertices())
            AppendVertex(*pPolyline, vertex);
        HandOver(m_entitySet, std::move(pPolyline));
    }
    void Rule(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override {
        AddLineEntity(m_entitySet, ptFrom, ptTo);
    }
    void Text(const AcGePoint3d& ptPosition, const CString& strText) override {
        ExplodeFrameText(m_entitySet, ptPosition, strText, m_styles);
    }
    void Cell(const CTextCell& cell, const AcGiTextStyle& style) override {
        ExplodeFrameCell(m_entitySet, cell, style, m_styles);
    }

private:
    AcDbVoidPtrArray& m_entitySet;
    CFrameStyles m_styles;
};
} // namespace

Adesk::Boolean CBRENFrame::subWorldDraw(AcGiWorldDraw* pMode) {
    SetupChartTextStyle(g_ChartTextStyle);
    if (pMode->isDragging()) return 1; // a drag shows nothing
    DrawFrameLines(pMode);
    DrawFrameTexts(pMode);
    return 1;
}

Acad::ErrorStatus CBRENFrame::subExplode(AcDbVoidPtrArray& entitySet) const {
    ExplodeFrameLines(entitySet);
    ExplodeFrameTexts(entitySet);
    return Acad::eOk;
}

void CBRENFrame::DrawFrameLines(AcGiWorldDraw* pMode) const {
    CFrameWorldSink sink(pMode, *this);
    DescribeFrameLines(sink, *this);
}

void CBRENFrame::DrawFrameTexts(AcGiWorldDraw* pMode) const {
    CFrameWorldSink sink(pMode, *this);
    DescribeFrameTexts(sink, *this, g_frameWorldForm);
}

void CBRENFrame::ExplodeFrameLines(AcDbVoidPtrArray& entitySet) const {
    CFrameExplodeSink sink(entitySet, *this);
    DescribeFrameLines(sink, *this);
}

void CBRENFrame::ExplodeFrameTexts(AcDbVoidPtrArray& entitySet) const {
    CFrameExplodeSink sink(entitySet, *this);
    DescribeFrameTexts(sink, *this, g_frameExplodeForm);
}
