#pragma once
// A table as it is seen, whichever form it was written in.

#include "chart/chart_entity.h"
#include "chart/table_form.h"
#include "drawing/explode_sink.h"
#include "drawing/styles.h"
#include "drawing/world_sink.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "platform/windows/code_page.h"
#include "tests/support/drawing.h"

#include <tuple>

struct CSeenText {
    std::string m_strText;
    double x, y, m_dSize;
    bool operator==(const CSeenText& other) const {
        return std::tie(m_strText, x, y, m_dSize) ==
               std::tie(other.m_strText, other.x, other.y, other.m_dSize);
    }
};

inline std::ostream& operator<<(std::ostream& out, const CSeenText& text) {
    return out << '"' << text.m_strText << "\" at " << text.x << ", " << text.y << " size " << text.m_dSize;
}

/// From, to, and the width at both of its ends.
struct CSeenLine {
    double x1, y1, x2, y2, m_dWidth;
    bool operator==(const CSeenLine& other) const {
        return std::tie(x1, y1, x2, y2, m_dWidth) ==
               std::tie(other.x1, other.y1, other.x2, other.y2, other.m_dWidth);
    }
};

inline std::ostream& operator<<(std::ostream& out, const CSeenLine& line) {
    return out << line.x1 << ", " << line.y1 << " to " << line.x2 << ", " << line.y2 << " width "
               << line.m_dWidth;
}

struct CSeenTable {
    std::vector<CSeenText> m_arTexts;
    std::vector<CSeenLine> m_arLines;

    void AddLine(const std::vector<CPolylineVertex>& v) {
        const bool bEven = v.size() == 2 && v[0].m_dStartWidth == v[0].m_dEndWidth &&
                           v[0].m_dStartWidth == v[1].m_dStartWidth && v[0].m_dEndWidth == v[1].m_dEndWidth;
        m_arLines.push_back({v.front().m_pt.x, v.front().m_pt.y, v.back().m_pt.x, v.back().m_pt.y,
                             bEven ? v[0].m_dStartWidth : -2.0});
    }
};

using CDescribeTable = void (*)(CPictureSink&, const CBRENChart&, const CTableForm&);

inline CSeenTable SeenInWorldForm(CDescribeTable pDescribe, const CBRENChart& chart) {
    SetupChartTextStyle(g_ChartTextStyle);
    CDisplayRecorder recorder(chart);
    CWorldSink sink(&recorder, 0, 3);
    pDescribe(sink, chart, g_tableWorldForm);
    const CDisplayList list = recorder.Take();
    CSeenTable seen;
    for (const CTextPrimitive& text : Shapes<CTextPrimitive>(list))
        seen.m_arTexts.push_back({text.m_strText, text.m_ptPosition.x, text.m_ptPosition.y, text.m_dHeight});
    for (const CPlinePrimitive& line : Shapes<CPlinePrimitive>(list))
        seen.AddLine(line.m_arVertices);
    return seen;
}

inline CSeenTable SeenInExplodeForm(CDescribeTable pDescribe, const CBRENChart& chart) {
    SetupChartTextStyle(g_ChartTextStyle);
    AcDbVoidPtrArray entitySet;
    CExplodeSink sink(entitySet, 3, AcDbObjectId::kNull);
    pDescribe(sink, chart, g_tableExplodeForm);
    const CEntities entities = TakeOver(entitySet);
    CSeenTable seen;
    for (const AcDbText* pText : Parts<AcDbText>(entities))
        seen.m_arTexts.push_back(
            {GbkFromWide(pText->textString()), pText->position().x, pText->position().y, pText->height()});
    for (const AcDbPolyline* pLine : Parts<AcDbPolyline>(entities))
        seen.AddLine(pLine->Vertices());
    return seen;
}

/// The texts from nFirst on, as many as there are expected.
inline std::vector<CSeenText> Texts(const CSeenTable& seen, std::size_t nFirst, std::size_t nTexts) {
    const auto first = seen.m_arTexts.begin() + static_cast<std::ptrdiff_t>(nFirst);
    return {first, first + static_cast<std::ptrdiff_t>(nTexts)};
}

/// Where a text begins that is centred in a cell, at the width that every byte of it has in tests.
inline double CentredAt(double dLeft, double dWidth, const std::string& strText, double dMeasured) {
    return dLeft + (dWidth - 0.8 * static_cast<double>(strText.size()) * dMeasured * 0.7) / 2.0;
}
