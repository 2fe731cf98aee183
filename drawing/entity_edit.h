#pragma once
// Small operations on entities of a drawing, by id.

#include "platform/acad/db_object_id.h"
#include "platform/acad/geometry.h"
#include "platform/mfc/string.h"

class AcDbPolyline;

/// Erases those that can be opened; the number of them.
int EraseEntities(const AcDbObjectIdArray& ids);

/// Name of the entity's layer; empty when it can't be opened.
CString LayerOfEntity(AcDbObjectId idEntity);

/// Turns a polyline round whose end lies left of its start, with its bulges and widths. 1 when it was turned.
int ReverseIfLeftward(AcDbObjectId idPolyline);

/// Whether a vertex lies inside the rectangle of two corners, further than 0.1 from all its sides.
bool HasVertexInside(const AcDbPolyline& polyline, const AcGePoint3d& ptCorner,
                     const AcGePoint3d& ptOpposite);
