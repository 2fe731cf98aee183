#pragma once
// The frame's picture, described once for both forms of output.

#include "frame/frame_text.h"

class AcDbPolyline;
class CBRENFrame;

/// Where lines and texts of the frame go.
class CFrameSink {
public:
    virtual ~CFrameSink() = default;
    virtual void Outline(const AcDbPolyline& polyline) = 0;
    virtual void Rule(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) = 0;
    virtual void Text(const AcGePoint3d& ptPosition, const CString& strText) = 0;
    virtual void Cell(const CTextCell& cell, const AcGiTextStyle& style) = 0;
};

/// In what the two forms differ besides.
struct CFrameForm {
    bool m_bZeroDate; ///< a year, month or day of 0 is written
};
inline constexpr CFrameForm g_frameWorldForm{false};
inline constexpr CFrameForm g_frameExplodeForm{true};

void DescribeFrameLines(CFrameSink& sink, const CBRENFrame& frame);
/// It leaves the size of its last text in the shared text style.
void DescribeFrameTexts(CFrameSink& sink, const CBRENFrame& frame, const CFrameForm& form);
