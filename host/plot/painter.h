#pragma once

#include "host/plot/canvas.h"
#include "platform/acad/display_list.h"

#include <functional>
#include <string>
#include <vector>

/// The lengths of a line type by its name (GBK): strokes positive, gaps negative, dots 0; empty for a
/// continuous or unknown one.
using CLinetypeLookup = std::function<std::vector<double>(const std::string& strName)>;

/// How a display list comes onto a page.
struct CPaintContext {
    double m_dLeft = 0.0, m_dTop = 0.0; ///< the page's upper left corner in drawing units
    CLinetypeLookup m_fnLinetype;       ///< may be empty: all lines continuous
    double m_dLinetypeScale = 1.0;
    Adesk::UInt16 m_nLayerColor = 7; ///< what colour 256 (ByLayer) means
};

/// Paints the primitives in order, one drawing unit a millimetre, seen from above. What has a value that is
/// no finite number, or lies kilometres off the page, is left out. The line types "ByLayer", "ByBlock",
/// "Continuous" (in any case) and "" are continuous.
void PaintDisplayList(const CDisplayList& list, const CPaintContext& context, CFonts& fonts, CCanvas& canvas);
