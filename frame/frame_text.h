#pragma once
// Texts of the frame in both forms of output. Where a style is not given they are in the shared text style,
// at the size it has.

#include "drawing/text_cell.h"
#include "platform/acad/db_entity.h"
#include "platform/acad/gi_text_style.h"

/// Text styles of the exploded texts; all are measured by the first.
struct CFrameStyles {
    AcDbObjectId m_idText, m_idBanner;
};

void DrawFrameText(AcGiWorldDraw* pMode, const AcGePoint3d& ptPosition, const CString& strText);
void ExplodeFrameText(AcDbVoidPtrArray& entitySet, const AcGePoint3d& ptPosition, const CString& strText,
                      const CFrameStyles& styles);

/// Its text is measured at the cell's text height.
void DrawFrameCell(AcGiWorldDraw* pMode, const CTextCell& cell, const AcGiTextStyle& style,
                   const CFrameStyles& styles);
/// The text's own style is told by the big font of the given one; without one of the two known it is the
/// drawing's "Standard".
void ExplodeFrameCell(AcDbVoidPtrArray& entitySet, const CTextCell& cell, const AcGiTextStyle& style,
                      const CFrameStyles& styles);
