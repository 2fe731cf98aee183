#pragma once

#include "platform/acad/db_object_id.h"
#include "platform/acad/geometry.h"
#include "platform/mfc/string.h"

/// A text centred in a cell of the sheet.
struct CTextCell {
    AcGePoint3d m_ptTopLeft;
    double m_dWidth, m_dHeight;
    double m_dTextHeight; ///< by which the text is set; its size is the style's
    CString m_strText;
};

/// Left end of the text's base line. The text's width is that of text style idStyle at height dMeasured.
AcGePoint3d TextPositionInCell(const CTextCell& cell, AcDbObjectId idStyle, double dMeasured);
