#include "frame/frame_text.h"

#include "commands/text_conversion.h"
#include "drawing/chart_text.h"
#include "drawing/explode_set.h"
#include "drawing/styles.h"
#include "platform/acad/db_text.h"

#include <memory>
#include <string_view>

namespace {
constexpr double g_dWidthFactor = 0.7;

AcGePoint3d TextPosition(const CTextCell& cell, const CFrameStyles& styles) {
    return TextPositionInCell(cell, styles.m_idText, cell.m_dTextHeight);
}

AcDbObjectId StyleOfBigFont(std::wstring_view strBigFont, const CFrameStyles& styles) {
    if (strBigFont == L"st64f.shx") return styles.m_idBanner;
    if (strBigFont == L"hztxt.shx") return styles.m_idText;
    return AcDbObjectId::kNull;
}

void AddText(AcDbVoidPtrArray& entitySet, const AcGePoint3d& ptPosition, const CString& strText,
             AcDbObjectId idStyle, double dHeight) {
    auto pText = std::make_unique<AcDbText>(ptPosition, ToWide(strText), idStyle, dHeight, 0.0);
    pText->setWidthFactor(g_dWidthFactor);
    HandOver(entitySet, std::move(pText));
}
} // namespace

void DrawFrameText(AcGiWorldDraw* pMode, const AcGePoint3d& ptPosition, const CString& strText) {
    DrawChartText(pMode, ptPosition, strText, 0, g_ChartTextStyle);
}

void ExplodeFrameText(AcDbVoidPtrArray& entitySet, const AcGePoint3d& ptPosition, const CString& strText,
                      const CFrameStyles& styles) {
    AddText(entitySet, ptPosition, strText, styles.m_idText, g_ChartTextStyle.textSize());
}

void DrawFrameCell(AcGiWorldDraw* pMode, const CTextCell& cell, const AcGiTextStyle& style,
                   const CFrameStyles& styles) {
    DrawChartText(pMode, TextPosition(cell, styles), cell.m_strText, 0, style);
}

void ExplodeFrameCell(AcDbVoidPtrArray& entitySet, const CTextCell& cell, const AcGiTextStyle& style,
                      const CFrameStyles& styles) {
    AddText(entitySet, TextPosition(cell, styles), cell.m_strText,
            StyleOfBigFont(style.bigFontFileName(), styles), style.textSize());
}
