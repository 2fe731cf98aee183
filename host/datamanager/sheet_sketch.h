#pragma once

#include <memory>
#include <span>
#include <string>

#include "platform/acad/db_database.h"
#include "platform/acad/db_text.h"

/// What stands in a cell of a title block.
enum class CellKind {
    Open,    ///< nothing
    Caption, ///< a fixed text
    Mark,    ///< a placeholder that the chart module replaces in the block, in the middle
    Place,   ///< the same at the left
    Field,   ///< an attribute of this tag
};

/// A cell of a title block's row.
struct CTitleCell {
    double m_dWidth; ///< in millimetres on the sheet
    CellKind m_kind = CellKind::Open;
    const char* m_pText = ""; ///< GBK: of the caption, the placeholder or the tag
};

/// A drawing of lines and texts for a template file. Lengths are millimetres on the sheet; texts are GBK and
/// set in the drawing's own style.
class CSheetSketch {
public:
    /// A point of the sheet lies in the drawing at (point - origin) * dScale.
    explicit CSheetSketch(const AcGePoint2d& ptOrigin = {}, double dScale = 1.0);

    void Line(const AcGePoint2d& ptFrom, const AcGePoint2d& ptTo);
    void Rectangle(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, double dLineWidth);
    /// A text in the middle of a rectangle.
    void Caption(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, double dHeight, const char* pText);
    /// A placeholder whose left end is at the point.
    void Mark(const AcGePoint2d& pt, const char* pText);
    /// A row of cells from a lower left corner, with lines above it and between them.
    void Row(const AcGePoint2d& ptLow, double dHeight, std::span<const CTitleCell> arCells);

    /// The drawing as a DWG file. Throws CDrawingFailure.
    [[nodiscard]] std::string Bytes() const;

private:
    [[nodiscard]] AcGePoint3d At(const AcGePoint2d& pt) const;
    void Append(std::unique_ptr<AcDbEntity> pEntity);
    void Cell(const AcGePoint2d& ptLow, const AcGePoint2d& ptHigh, const CTitleCell& cell);
    void Field(const AcGePoint2d& ptMiddle, const char* pTag);
    void SetLook(AcDbText& text, double dHeight) const;
    void PutInMiddle(AcDbText& text, const AcGePoint2d& ptMiddle, const char* pText) const;

    AcDbDatabase m_drawing;
    AcGePoint2d m_ptOrigin;
    double m_dScale;
    AcDbObjectId m_idStyle;
};
