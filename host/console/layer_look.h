#pragma once
// What pictures have from the tables of their drawing. Names are GBK.

#include "platform/acad/db_database.h"
#include "platform/acad/display_list.h"

#include <string>
#include <vector>

/// What an entity has from its layer.
struct CLayerLook {
    Adesk::UInt16 m_nColor = 7;
    std::string m_strLinetype; ///< empty for continuous
    bool operator==(const CLayerLook&) const = default;
};

/// Black and continuous for no layer.
CLayerLook LookOf(AcDbObjectId idLayer);

/// The primitives with the layer's line type where they have ByLayer.
CDisplayList WithLinetypesOf(const CLayerLook& look, const CDisplayList& list);

/// The row of strokes and gaps of a line type; empty for one that the drawing lacks.
std::vector<double> DashesOf(const AcDbDatabase& drawing, const std::string& strName);
