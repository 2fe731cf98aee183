#include "host/datamanager/sheet_sketch.h"

#include <cstring>

#include "host/files/drawing_format.h"
#include "platform/acad/db_attribute.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/windows/code_page.h"

namespace {

constexpr double g_dTextHeight = 3.0;
constexpr double g_dWidthFactor = 0.7;
/// Width of half a Chinese character, which is a Latin one's too, for a height of 1.
constexpr double g_dAdvance = 0.8285;
constexpr double g_dPlacedHeight = 2.5; // of what the chart module writes into a place
constexpr double g_dCellMargin = 3.0;

AcGePoint2d MiddleOf(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh) {
    return {(ptLow.x + ptHigh.x) / 2.0, (ptLow.y + ptHigh.y) / 2.0};
}

AcDbObjectId AddStyle(AcDbDatabase& drawing) {
    const CDbOpen<AcDbTextStyleTable> table(drawing.textStyleTableId(), AcDb::kForWrite);
    auto pStyle = std::make_unique<AcDbTextStyleTableRecord>();
    pStyle->setName(L"图框");
    pStyle->setFont(L"仿宋_GB2312", false, false, 134, 49);
    pStyle->setXScale(g_dWidthFactor);
    AcDbObjectId id;
    table->add(id, pStyle.get());
    pStyle.release()->close();
    return id;
}

} // namespace

CSheetSketch::CSheetSketch(const AcGePoint2d& ptOrigin, double dScale)
    : m_ptOrigin(ptOrigin)
    , m_dScale(dScale)
    , m_idStyle(AddStyle(m_drawing)) {}

AcGePoint3d CSheetSketch::At(const AcGePoint2d& pt) const {
    return {(pt.x - m_ptOrigin.x) * m_dScale, (pt.y - m_ptOrigin.y) * m_dScale, 0.0};
}

void CSheetSketch::Append(std::unique_ptr<AcDbEntity> pEntity) {
    const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
    space->appendAcDbEntity(pEntity.get());
    pEntity.release()->close();
}

void CSheetSketch::Line(const AcGePoint2d& ptFrom, const AcGePoint2d& ptTo) {
    Append(std::make_unique<AcDbLine>(At(ptFrom), At(ptTo)));
}

void CSheetSketch::Rectangle(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, double dLineWidth) {
    auto pRectangle = std::make_unique<AcDbPolyline>();
    for (const AcGePoint2d& ptCorner :
         {ptLow, AcGePoint2d(ptHigh.x, ptLow.y), ptHigh, AcGePoint2d(ptLow.x, ptHigh.y)}) {
        const AcGePoint3d pt = At(ptCorner);
        pRectangle->addVertexAt(pRectangle->numVerts(), {pt.x, pt.y}, 0.0, dLineWidth * m_dScale,
                                dLineWidth * m_dScale);
    }
    pRectangle->setClosed(true);
    Append(std::move(pRectangle));
}

void CSheetSketch::SetLook(AcDbText& text, double dHeight) const {
    text.setHeight(dHeight * m_dScale);
    text.setWidthFactor(g_dWidthFactor);
    text.setTextStyle(m_idStyle);
}

/// The text's left end stands where a text as long as pText begins: nothing is measured here.
void CSheetSketch::PutInMiddle(AcDbText& text, const AcGePoint2d& ptMiddle, const char* pText) const {
    const double dWidth =
        static_cast<double>(std::strlen(pText)) * g_dAdvance * g_dWidthFactor * text.height();
    const AcGePoint3d ptAlignment = At(ptMiddle);
    text.setHorizontalMode(AcDb::kTextMid);
    text.setAlignmentPoint(ptAlignment);
    text.setPosition({ptAlignment.x - dWidth / 2.0, ptAlignment.y - text.height() / 2.0, 0.0});
}

void CSheetSketch::Caption(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, double dHeight,
                           const char* pText) {
    auto pCaption = std::make_unique<AcDbText>(AcGePoint3d(), WideFromGbk(pText).c_str());
    SetLook(*pCaption, dHeight);
    PutInMiddle(*pCaption, MiddleOf(ptLow, ptHigh), pText);
    Append(std::move(pCaption));
}

void CSheetSketch::Mark(const AcGePoint2d& pt, const char* pText) {
    auto pMark = std::make_unique<AcDbText>(At(pt), WideFromGbk(pText).c_str());
    SetLook(*pMark, g_dTextHeight);
    Append(std::move(pMark));
}

void CSheetSketch::Field(const AcGePoint2d& ptMiddle, const char* pTag) {
    const std::wstring strTag = WideFromGbk(pTag);
    auto pField =
        std::make_unique<AcDbAttributeDefinition>(AcGePoint3d(), L"", strTag.c_str(), strTag.c_str());
    SetLook(*pField, g_dTextHeight);
    PutInMiddle(*pField, ptMiddle, pTag);
    Append(std::move(pField));
}

void CSheetSketch::Cell(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, const CTitleCell& cell) {
    switch (cell.m_kind) {
    case CellKind::Caption:
    case CellKind::Mark:
        return Caption(ptLow, ptHigh, g_dTextHeight, cell.m_pText);
    case CellKind::Place:
        return Mark({ptLow.x + g_dCellMargin, (ptLow.y + ptHigh.y - g_dPlacedHeight) / 2.0}, cell.m_pText);
    case CellKind::Field:
        return Field(MiddleOf(ptLow, ptHigh), cell.m_pText);
    case CellKind::Open:
        break;
    }
}

void CSheetSketch::Row(const AcGePoint2d& ptLow, double dHeight, std::span<const CTitleCell> arCells) {
    AcGePoint2d pt = ptLow;
    for (const CTitleCell& cell : arCells) {
        if (pt.x > ptLow.x) Line(pt, {pt.x, pt.y + dHeight});
        const AcGePoint2d ptHigh(pt.x + cell.m_dWidth, pt.y + dHeight);
        Cell(pt, ptHigh, cell);
        pt.x = ptHigh.x;
    }
    Line({ptLow.x, ptLow.y + dHeight}, {pt.x, ptLow.y + dHeight});
}

std::string CSheetSketch::Bytes() const {
    return WriteDrawing(m_drawing, CDrawingFormat::Dwg).m_strBytes;
}
